// A small reader of XML without document types.
#include "access/exports/xml_element.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <optional>

#include "access/macro/export_lines.h"

namespace tarrowin::exports {

namespace {

constexpr std::string_view kBlanks = " \t\r\n";

std::string utf8Of(std::uint32_t code) {
  std::string text;
  const auto more = [&](int shift) { text += static_cast<char>(0x80 | ((code >> shift) & 0x3F)); };
  if (code < 0x80) {
    text += static_cast<char>(code);
  } else if (code < 0x800) {
    text += static_cast<char>(0xC0 | (code >> 6));
    more(0);
  } else if (code < 0x10000) {
    text += static_cast<char>(0xE0 | (code >> 12));
    more(6);
    more(0);
  } else if (code < 0x110000) {
    text += static_cast<char>(0xF0 | (code >> 18));
    more(12);
    more(6);
    more(0);
  }
  return text;
}

class XmlParser {
 public:
  XmlParser(std::string_view text, const CodePage& codePage)
      : all_(text), rest_(text), codePage_(codePage) {}

  XmlElement parse() {
    skipAside();
    if (!rest_.starts_with('<')) fail("XML begins with \"<\"");
    XmlElement root;
    element(root, 0);
    return root;
  }

 private:
  [[noreturn]] void fail(const std::string& problem) const {
    const std::string_view done = all_.substr(0, all_.size() - rest_.size());
    throw ExportTextError(static_cast<std::size_t>(std::ranges::count(done, '\n')) + 1, problem);
  }

  void skipBlanks() {
    rest_.remove_prefix(std::min(rest_.find_first_not_of(kBlanks), rest_.size()));
  }

  bool skipBetween(std::string_view start, std::string_view end) {
    if (!rest_.starts_with(start)) return false;
    const std::size_t at = rest_.find(end, start.size());
    if (at == std::string_view::npos) fail("\"" + std::string(start) + "\" without its end");
    rest_.remove_prefix(at + end.size());
    return true;
  }

  bool skipOneAside() {
    return skipBetween("<?", "?>") || skipBetween("<!--", "-->") || skipBetween("<!D", ">");
  }
  void skipAside() {
    do skipBlanks();
    while (skipOneAside());
  }

  std::string name() {
    const std::size_t end = std::min(rest_.find_first_of(" \t\r\n=/>\"'<"), rest_.size());
    if (end == 0) fail("a name is missing");
    std::string found(rest_.substr(0, end));
    rest_.remove_prefix(end);
    return found;
  }

  // From the "<" to behind the end tag.
  void element(XmlElement& into, std::size_t depth) {
    if (depth > kDeepestElements) fail("elements nested too deeply");
    if (++elements_ > kMostElements) fail("too many elements");
    rest_.remove_prefix(1);
    into.name = name();
    if (!attributes(into)) content(into, depth);
  }

  // True when the tag is its own end.
  bool attributes(XmlElement& into) {
    while (true) {
      skipBlanks();
      if (rest_.starts_with("/>")) {
        rest_.remove_prefix(2);
        return true;
      }
      if (rest_.starts_with('>')) {
        rest_.remove_prefix(1);
        return false;
      }
      std::string attributeName = name();
      skipBlanks();
      if (!rest_.starts_with('=')) fail("an attribute without value");
      rest_.remove_prefix(1);
      skipBlanks();
      const char quote = rest_.empty() ? ' ' : rest_.front();
      if (quote != '"' && quote != '\'') fail("an attribute without quotes");
      const std::size_t end = rest_.find(quote, 1);
      if (end == std::string_view::npos) fail("an attribute without closing quote");
      into.attributes.emplace_back(std::move(attributeName), decoded(rest_.substr(1, end - 1)));
      rest_.remove_prefix(end + 1);
    }
  }

  void content(XmlElement& into, std::size_t depth) {
    while (true) {
      const std::size_t end = std::min(rest_.find('<'), rest_.size());
      into.text += decoded(rest_.substr(0, end));
      rest_.remove_prefix(end);
      if (rest_.empty()) fail("\"" + into.name + "\" without its end");
      if (rest_.starts_with("</")) return endTag(into);
      if (characterData(into) || skipOneAside()) continue;
      element(into.children.emplace_back(), depth + 1);
    }
  }

  void endTag(const XmlElement& of) {
    rest_.remove_prefix(2);
    if (name() != of.name) fail("\"" + of.name + "\" without its end");
    skipBlanks();
    if (!rest_.starts_with('>')) fail("an end tag without \">\"");
    rest_.remove_prefix(1);
  }

  bool characterData(XmlElement& into) {
    constexpr std::string_view kStart = "<![CDATA[", kEnd = "]]>";
    if (!rest_.starts_with(kStart)) return false;
    const std::size_t end = rest_.find(kEnd);
    if (end == std::string_view::npos) fail("\"<![CDATA[\" without its end");
    into.text += rest_.substr(kStart.size(), end - kStart.size());
    rest_.remove_prefix(end + kEnd.size());
    return true;
  }

  // The text with its entities replaced.
  std::string decoded(std::string_view text) const {
    std::string result;
    while (true) {
      const std::size_t start = std::min(text.find('&'), text.size());
      result += text.substr(0, start);
      text.remove_prefix(start);
      if (text.empty()) return result;
      constexpr std::size_t kLongest = 12;
      const std::size_t end = text.substr(0, kLongest).find(';');
      const auto character =
          end == std::string_view::npos ? std::nullopt : entity(text.substr(1, end - 1));
      result += character ? *character : "&";
      text.remove_prefix(character ? end + 1 : 1);
    }
  }

  std::optional<std::string> entity(std::string_view entityName) const {
    if (entityName == "amp") return "&";
    if (entityName == "lt") return "<";
    if (entityName == "gt") return ">";
    if (entityName == "quot") return "\"";
    if (entityName == "apos") return "'";
    if (!entityName.starts_with('#')) return std::nullopt;
    entityName.remove_prefix(1);
    const bool isHex = entityName.starts_with('x');
    if (isHex) entityName.remove_prefix(1);
    std::uint32_t code = 0;
    const char* const end = entityName.data() + entityName.size();
    const auto [rest, error] = std::from_chars(entityName.data(), end, code, isHex ? 16 : 10);
    if (error != std::errc() || rest != end) return std::nullopt;
    return codePage_.fromUtf8(utf8Of(code));
  }

  std::string_view all_, rest_;
  CodePage codePage_;
  std::size_t elements_ = 0;
};

}  // namespace

std::string_view XmlElement::localName() const {
  const std::string_view whole = name;
  return whole.substr(whole.find(':') + 1);
}

std::string_view XmlElement::attribute(std::string_view attributeName) const {
  for (const auto& [key, value] : attributes)
    if (key == attributeName) return value;
  return {};
}

const XmlElement* XmlElement::child(std::string_view childName) const {
  for (const XmlElement& each : children)
    if (each.localName() == childName) return &each;
  return nullptr;
}

XmlElement parseXml(std::string_view text, const CodePage& codePage) {
  return XmlParser(text, codePage).parse();
}

std::string decodedXmlName(std::string_view name, const CodePage& codePage) {
  constexpr std::string_view kStart = "_x";
  constexpr std::size_t kLength = 7, kDigits = 4;
  std::string result;
  while (!name.empty()) {
    const std::size_t start = std::min(name.find(kStart), name.size());
    result += name.substr(0, start);
    name.remove_prefix(start);
    if (name.empty()) break;
    std::uint32_t code = 0;
    const std::string_view digits = name.substr(kStart.size()).substr(0, kDigits);
    const auto [rest, error] =
        std::from_chars(digits.data(), digits.data() + digits.size(), code, 16);
    const bool isCode = name.size() >= kLength && name[kLength - 1] == '_' &&
                        error == std::errc() && rest == digits.data() + digits.size();
    result += isCode ? codePage.fromUtf8(utf8Of(code)) : std::string(name.substr(0, 1));
    name.remove_prefix(isCode ? kLength : 1);
  }
  return result;
}

}  // namespace tarrowin::exports
