// Fills the flat tree from the events of the JSON parser.
#include "access/snapshot/json_tree.h"

#include <nlohmann/json.hpp>

namespace tarrowin {

// The parser's event handler.
class JsonTreeBuilder {
 public:
  using Json = nlohmann::json;

  explicit JsonTreeBuilder(JsonTree& tree) : tree_(tree) {}

  bool null() {
    add(JsonKind::kNull);
    return true;
  }
  bool boolean(bool value) {
    add(JsonKind::kBoolean).boolean = value;
    return true;
  }
  bool number_integer(Json::number_integer_t value) {
    add(JsonKind::kInteger).integer = value;
    return true;
  }
  bool number_unsigned(Json::number_unsigned_t value) {
    if (value > static_cast<Json::number_unsigned_t>(INT64_MAX))
      add(JsonKind::kDouble).number = static_cast<double>(value);
    else
      add(JsonKind::kInteger).integer = static_cast<std::int64_t>(value);
    return true;
  }
  bool number_float(Json::number_float_t value, const std::string&) {
    add(JsonKind::kDouble).number = value;
    return true;
  }
  bool string(std::string& value) {
    const JsonTree::Text text = store(value);
    add(JsonKind::kText).text = text;
    return true;
  }
  bool binary(Json::binary_t&) { return false; }  // never occurs in a text
  bool start_object(std::size_t) { return open(JsonKind::kObject); }
  bool end_object() { return close(); }
  bool start_array(std::size_t) { return open(JsonKind::kArray); }
  bool end_array() { return close(); }
  bool key(std::string& name) {
    key_ = store(name);
    return true;
  }
  bool parse_error(std::size_t, const std::string&, const nlohmann::detail::exception& error) {
    // "[json.exception.parse_error.101] parse error at line 1, column 2: what; last read: '...'"
    std::string message = error.what();
    message.erase(0, message.find(']') + 2);
    if (const auto tail = message.find("; last read"); tail != std::string::npos)
      message.erase(tail);
    throw SnapshotError("is not JSON: " + message);
  }

 private:
  struct Level {
    std::uint32_t node;
    std::uint32_t lastChild = JsonTree::kNone;
  };

  JsonTree::Text store(const std::string& text) {
    const JsonTree::Text result{static_cast<std::uint32_t>(tree_.texts_.size()),
                                static_cast<std::uint32_t>(text.size())};
    tree_.texts_ += text;
    return result;
  }

  JsonTree::Node& add(JsonKind kind) {
    if (tree_.nodes_.size() >= JsonTree::kMostValues)
      throw SnapshotError("holds more than " + std::to_string(JsonTree::kMostValues) + " values");
    const auto index = static_cast<std::uint32_t>(tree_.nodes_.size());
    JsonTree::Node& node = tree_.nodes_.emplace_back();
    node.kind = kind;
    node.key = key_;
    key_ = {};
    if (levels_.empty()) return node;
    Level& level = levels_.back();
    node.parent = level.node;
    JsonTree::Node& parent = tree_.nodes_[level.node];
    ++parent.count;
    if (level.lastChild == JsonTree::kNone)
      parent.first = index;
    else
      tree_.nodes_[level.lastChild].next = index;
    level.lastChild = index;
    return node;
  }

  bool open(JsonKind kind) {
    add(kind);
    const auto index = static_cast<std::uint32_t>(tree_.nodes_.size() - 1);
    levels_.push_back({index});
    if (levels_.size() > JsonTree::kDeepestNesting)
      JsonValue(tree_, index)
          .fail("nested more than " + std::to_string(JsonTree::kDeepestNesting) + " levels deep");
    return true;
  }
  bool close() {
    levels_.pop_back();
    return true;
  }

  JsonTree& tree_;
  JsonTree::Text key_;
  std::vector<Level> levels_;
};

JsonTree JsonTree::parse(std::string_view utf8) {
  // Positions in the tree are 32 bits wide.
  if (utf8.size() >= UINT32_MAX) throw SnapshotError("is larger than 4 GB");
  // The parser takes a zero byte for the end of the text.
  if (utf8.find('\0') != std::string_view::npos)
    throw SnapshotError("is not JSON: there is a zero byte in it");
  JsonTree tree;
  tree.nodes_.reserve(utf8.size() / 32);
  tree.texts_.reserve(utf8.size());
  JsonTreeBuilder builder(tree);
  nlohmann::json::sax_parse(utf8.data(), utf8.data() + utf8.size(), &builder);
  return tree;
}

std::optional<JsonValue> JsonValue::member(std::string_view name) const {
  std::optional<JsonValue> found;
  for (const JsonValue value : *this)
    if (value.key() == name) found = value;
  if (found && found->isNull()) return std::nullopt;
  return found;
}

void JsonValue::fail(std::string_view what) const {
  const std::string where = place();
  throw SnapshotError((where.empty() ? "the document" : where) + ": " + std::string(what));
}

void JsonValue::failExpected(std::string_view what) const { fail("expected " + std::string(what)); }

std::string JsonValue::place() const {
  std::string result;
  for (JsonValue at = *this; tree_->nodes_[at.node_].parent != JsonTree::kNone;) {
    const JsonValue parent(*tree_, tree_->nodes_[at.node_].parent);
    std::string step(at.key());
    if (parent.kind() == JsonKind::kArray) {
      std::size_t index = 0;
      for (const JsonValue sibling : parent) {
        if (sibling == at) break;
        ++index;
      }
      step = std::to_string(index);
    }
    result.insert(0, "/" + step);
    at = parent;
  }
  return result;
}

}  // namespace tarrowin
