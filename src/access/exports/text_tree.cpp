// The blocks of the grammar:
//   Begin Form
//       Width =7021                        a number
//       AutoCenter = NotDefault            a flag
//       GUID = Begin                       bytes
//           0x85154994
//       End
//       OnOpenEmMacro = Begin              a macro, as in a file of its own
//           Begin
//           End
//       End
//       UnknownProp = {400 ,1 ,3 ,1 ,1 } Begin
//           0x01
//       End
//       Begin
//       ...
#include "access/exports/text_tree.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace tarrowin::exports {

namespace {

constexpr std::string_view kBegin = "Begin", kEnd = "End", kHex = "0x";

class TreeParser {
 public:
  TreeParser(std::string_view text, const CodePage& codePage) : lines_(text, codePage) {}

  TextTree parse() {
    constexpr std::string_view kCode = "CodeBehindForm";
    TextTree tree;
    bool more = lines_.next();
    while (more && lines_.line() != kCode) {
      if (lines_.line() == kEnd || lines_.line().starts_with(kHex))
        lines_.fail("the line with which its block began is missing");
      item(tree.top, 0);
      more = !lines_.line().empty();
    }
    if (more) tree.code = std::string(lines_.rest());
    return tree;
  }

 private:
  void countItem() {
    if (++items_ > kMostItems) lines_.fail("more properties than any object has");
  }

  // "Begin", or "Begin" and a kind.
  static bool beginsBlock(std::string_view line) {
    return line.starts_with(kBegin) &&
           (line.size() == kBegin.size() || line[kBegin.size()] == ' ') &&
           line.find('=') == std::string_view::npos;
  }

  // Takes one property or block, its last line too.
  void item(TextBlock& block, std::size_t depth) {
    countItem();
    if (beginsBlock(lines_.line()))
      child(block, depth + 1);
    else
      property(block, depth);
  }

  void child(TextBlock& parent, std::size_t depth) {
    if (depth > kDeepestBlocks) lines_.fail("blocks nested too deeply");
    TextBlock& block = parent.children.emplace_back();
    block.line = lines_.number();
    std::string_view kind = lines_.line().substr(kBegin.size());
    kind.remove_prefix(std::min(kind.find_first_not_of(' '), kind.size()));
    if (kind.find(' ') != std::string_view::npos)
      lines_.fail("more than one word behind \"Begin\"");
    block.kind = kind;
    lines_.next();
    items(block, depth);
  }

  // Up to the "End" and behind it.
  void items(TextBlock& block, std::size_t depth) {
    while (lines_.line() != kEnd) {
      if (lines_.line().empty()) throw ExportTextError(block.line, "a block without \"End\"");
      item(block, depth);
    }
    lines_.next();
  }

  void property(TextBlock& block, std::size_t depth) {
    const ExportLines::Property found = lines_.property();
    TextProperty& added = block.properties.emplace_back();
    added.keyword = found.keyword;
    added.typed = !found.type.empty();
    added.line = lines_.number();
    added.childrenBefore = block.children.size();
    std::string_view value = found.value;
    value.remove_prefix(std::min(value.find_first_not_of(' '), value.size()));
    if (value.starts_with('"')) {
      std::string text;
      lines_.readText(value, text);
      added.content = Value(std::move(text));
    } else if (value == kBegin) {
      lines_.next();
      added.content = bytesOrMacro(added.line, depth + 1);
    } else if (value.starts_with('{') && value.ends_with(kBegin)) {
      lines_.next();
      lines_.readHex(added.line);
      lines_.next();
      added.content = UnknownContent{};
    } else {
      added.content = plain(value);
      lines_.next();
    }
  }

  // Bytes or a macro, behind the line that began them.
  TextContent bytesOrMacro(std::size_t start, std::size_t depth) {
    if (lines_.line() == kEnd || lines_.line().starts_with(kHex)) {
      Bytes bytes = lines_.readHex(start);
      lines_.next();
      return Value(std::move(bytes));
    }
    if (depth > kDeepestBlocks) lines_.fail("blocks nested too deeply");
    TextBlock macro;
    macro.line = start;
    items(macro, depth);
    return EmbeddedMacro{};
  }

  TextContent plain(std::string_view value) const {
    if (value == "NotDefault") return TurnedOver{};
    const char* const end = value.data() + value.size();
    std::int32_t whole = 0;
    if (const auto [rest, error] = std::from_chars(value.data(), end, whole);
        error == std::errc() && rest == end)
      return Value(whole);
    double number = 0;
    if (const auto [rest, error] = std::from_chars(value.data(), end, number);
        error == std::errc() && rest == end)
      return Value(number);
    lines_.fail("neither a number nor a text behind \"=\"");
  }

  ExportLines lines_;
  std::size_t items_ = 0;
};

}  // namespace

const std::string* TextProperty::text() const {
  const Value* value = std::get_if<Value>(&content);
  return value ? value->text() : nullptr;
}

const std::int32_t* TextProperty::number() const {
  const Value* value = std::get_if<Value>(&content);
  return value ? value->longInteger() : nullptr;
}

const TextProperty* TextBlock::find(std::string_view keyword) const {
  for (auto property = properties.rbegin(); property != properties.rend(); ++property)
    if (property->keyword == keyword) return &*property;
  return nullptr;
}

TextTree parseTextTree(std::string_view text, const CodePage& codePage) {
  return TreeParser(text, codePage).parse();
}

}  // namespace tarrowin::exports
