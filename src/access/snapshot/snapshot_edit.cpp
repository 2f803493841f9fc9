// A walk over the outermost values of the text, which finds their first and last bytes.
#include "access/snapshot/snapshot_edit.h"

#include <algorithm>
#include <optional>

#include "access/snapshot/json_tree.h"

namespace tarrowin {

namespace {

// A part of the text: from the first byte to behind the last.
struct Span {
  std::size_t begin = 0, end = 0;
};

// Knows no more of JSON than where a value ends.
class JsonWalk {
 public:
  explicit JsonWalk(std::string_view text) : text_(text) {
    if (text_.starts_with("\xEF\xBB\xBF")) at_ = 3;
  }

  char next() {
    at_ = std::min(text_.find_first_not_of(" \t\r\n", at_), text_.size());
    if (at_ == text_.size()) throw SnapshotError("is not JSON: it ends too early");
    return text_[at_];
  }
  std::size_t at() const { return at_; }
  std::string_view of(Span span) const { return text_.substr(span.begin, span.end - span.begin); }

  void expect(char wanted) {
    if (next() != wanted)
      throw SnapshotError("is not JSON: \"" + std::string(1, wanted) + "\" is missing");
    ++at_;
  }
  // Whether another element follows; steps over the comma. The close bracket is stepped over, too.
  bool another(char close, bool isFirst) {
    if (next() == close) {
      ++at_;
      return false;
    }
    if (!isFirst) expect(',');
    return true;
  }

  Span value() {
    next();
    Span span{at_, at_};
    if (text_[at_] == '"')
      skipText();
    else if (text_[at_] == '{' || text_[at_] == '[')
      skipNested();
    else
      at_ = std::min(text_.find_first_of(" \t\r\n,]}", at_), text_.size());
    span.end = at_;
    return span;
  }

 private:
  void skipText() {
    for (++at_; at_ < text_.size() && text_[at_] != '"'; ++at_)
      if (text_[at_] == '\\') ++at_;
    if (at_ >= text_.size()) throw SnapshotError("is not JSON: a text has no end");
    ++at_;
  }

  void skipNested() {
    std::size_t depth = 0;
    do {
      at_ = std::min(text_.find_first_of("\"{}[]", at_), text_.size());
      if (at_ == text_.size()) throw SnapshotError("is not JSON: a bracket is missing");
      const char c = text_[at_];
      if (c == '"') {
        skipText();
        continue;
      }
      depth = c == '{' || c == '[' ? depth + 1 : depth - 1;
      ++at_;
    } while (depth > 0);
  }

  std::string_view text_;
  std::size_t at_ = 0;
};

// Where the document can be changed.
struct Places {
  std::size_t behindLastMember = 0;  // behind the open brace where there is none
  bool isEmpty = true;
  std::optional<Span> list;  // of several of that key the last, as the reader takes it
};

Places findPlaces(std::string_view document, std::string_view key) {
  JsonWalk walk(document);
  walk.expect('{');
  Places places;
  places.behindLastMember = walk.at();
  while (walk.another('}', places.isEmpty)) {
    places.isEmpty = false;
    const Span name = walk.value();
    walk.expect(':');
    const Span value = walk.value();
    places.behindLastMember = value.end;
    const JsonTree tree = JsonTree::parse(walk.of(name));
    if (tree.root().kind() == JsonKind::kText && tree.root().text() == key) places.list = value;
  }
  return places;
}

// Of a list; the positions are those in the document.
std::vector<Span> elementsOf(std::string_view document, Span list) {
  std::vector<Span> elements;
  const std::string_view text = document.substr(0, list.end);
  JsonWalk walk(text.substr(list.begin));
  walk.expect('[');
  while (walk.another(']', elements.empty())) {
    const Span element = walk.value();
    elements.push_back({element.begin + list.begin, element.end + list.begin});
  }
  return elements;
}

bool isNull(std::string_view document, Span value) {
  return document.substr(value.begin, value.end - value.begin) == "null";
}

std::string replaced(std::string_view document, Span part, const std::string& by) {
  std::string result;
  result.reserve(document.size() + by.size());
  result.append(document.substr(0, part.begin)).append(by).append(document.substr(part.end));
  return result;
}

// As recordings are written: two blanks a level, the entries of a list at the second.
std::string listOf(const std::string& entry) { return "[\n    " + entry + "\n  ]"; }

std::string indented(std::string_view entry) {
  std::string result;
  for (const char c : entry) {
    result += c;
    if (c == '\n') result += "    ";
  }
  return result;
}

}  // namespace

std::vector<std::string_view> snapshotEntries(std::string_view document, std::string_view list) {
  std::vector<std::string_view> entries;
  const Places places = findPlaces(document, list);
  if (!places.list || isNull(document, *places.list)) return entries;
  for (const Span& element : elementsOf(document, *places.list))
    entries.push_back(document.substr(element.begin, element.end - element.begin));
  return entries;
}

std::string withEntry(std::string_view document, std::string_view list, std::string_view entry,
                      std::size_t position) {
  const Places places = findPlaces(document, list);
  const std::string added = indented(entry);
  if (!places.list) {
    const std::string comma = places.isEmpty ? "" : ",";
    return replaced(document, {places.behindLastMember, places.behindLastMember},
                    comma + "\n  \"" + std::string(list) + "\": " + listOf(added));
  }
  if (isNull(document, *places.list)) return replaced(document, *places.list, listOf(added));
  const std::vector<Span> elements = elementsOf(document, *places.list);
  if (elements.empty()) return replaced(document, *places.list, listOf(added));
  if (position < elements.size()) return replaced(document, elements[position], added);
  const std::size_t end = elements.back().end;
  return replaced(document, {end, end}, ",\n    " + added);
}

}  // namespace tarrowin
