// A JSON text as a flat tree: all nodes in one array, all texts in one buffer. Reading a large
// recording this way takes a fraction of the time and memory of a general document.
#pragma once

#include <cstdint>
#include <exception>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarrowin {

// Why a recording cannot be used: a place such as "/queries/3/sql" and what is wrong with it.
class SnapshotError : public std::exception {
 public:
  explicit SnapshotError(std::string message) : message_(std::move(message)) {}
  const std::string& message() const { return message_; }  // UTF-8, without a final stop
  const char* what() const noexcept override { return message_.c_str(); }

 private:
  std::string message_;
};

enum class JsonKind : std::uint8_t { kNull, kBoolean, kInteger, kDouble, kText, kArray, kObject };

class JsonTree;

// One value of a tree, which has to outlive it.
class JsonValue {
 public:
  JsonValue(const JsonTree& tree, std::uint32_t node) : tree_(&tree), node_(node) {}

  JsonKind kind() const;
  bool isNull() const { return kind() == JsonKind::kNull; }
  bool boolean() const;
  std::int64_t integer() const;
  double number() const;
  std::string_view text() const;
  // The name under which it stands in its object; empty in a list.
  std::string_view key() const;

  // The elements of a list or the members of an object.
  std::uint32_t size() const;
  class Iterator;
  Iterator begin() const;
  Iterator end() const;
  // The member of that name, of several the last one; none as well for one that is null.
  std::optional<JsonValue> member(std::string_view name) const;

  // Throws SnapshotError with this value's place and "expected " and the words.
  [[noreturn]] void failExpected(std::string_view what) const;
  // Throws SnapshotError with this value's place and the words.
  [[noreturn]] void fail(std::string_view what) const;
  // "/queries/3/sql"; empty for the whole document.
  std::string place() const;

  friend bool operator==(const JsonValue& a, const JsonValue& b) { return a.node_ == b.node_; }

 private:
  const JsonTree* tree_;
  std::uint32_t node_;
};

class JsonTree {
 public:
  // Deeper nesting is refused, before anything could recurse over it.
  static constexpr std::size_t kDeepestNesting = 200;
  // Values in one document; some gigabytes of memory.
  static constexpr std::size_t kMostValues = 40'000'000;

  // Parses UTF-8, with or without a byte order mark. Throws SnapshotError for what is not JSON
  // (with line and column), is nested too deeply or has too many values.
  static JsonTree parse(std::string_view utf8);

  JsonValue root() const { return {*this, 0}; }

 private:
  friend class JsonValue;
  friend class JsonTreeBuilder;
  static constexpr std::uint32_t kNone = UINT32_MAX;
  struct Text {
    std::uint32_t start = 0, length = 0;
  };
  struct Node {
    JsonKind kind = JsonKind::kNull;
    std::uint32_t parent = kNone;
    std::uint32_t next = kNone;   // the following sibling
    std::uint32_t first = kNone;  // the first child
    std::uint32_t count = 0;      // of children
    Text key;
    union {
      bool boolean;
      std::int64_t integer;
      double number;
      Text text;
    };
    Node() : integer(0) {}
  };
  std::string_view textOf(Text text) const {
    return std::string_view(texts_).substr(text.start, text.length);
  }

  std::vector<Node> nodes_;
  std::string texts_;
};

class JsonValue::Iterator {
 public:
  Iterator(const JsonTree& tree, std::uint32_t node) : tree_(&tree), node_(node) {}
  JsonValue operator*() const { return {*tree_, node_}; }
  Iterator& operator++() {
    node_ = tree_->nodes_[node_].next;
    return *this;
  }
  friend bool operator!=(const Iterator& a, const Iterator& b) { return a.node_ != b.node_; }

 private:
  const JsonTree* tree_;
  std::uint32_t node_;
};

inline JsonKind JsonValue::kind() const { return tree_->nodes_[node_].kind; }
inline bool JsonValue::boolean() const { return tree_->nodes_[node_].boolean; }
inline std::int64_t JsonValue::integer() const { return tree_->nodes_[node_].integer; }
inline double JsonValue::number() const { return tree_->nodes_[node_].number; }
inline std::string_view JsonValue::text() const { return tree_->textOf(tree_->nodes_[node_].text); }
inline std::string_view JsonValue::key() const { return tree_->textOf(tree_->nodes_[node_].key); }
inline std::uint32_t JsonValue::size() const { return tree_->nodes_[node_].count; }
inline JsonValue::Iterator JsonValue::begin() const { return {*tree_, tree_->nodes_[node_].first}; }
inline JsonValue::Iterator JsonValue::end() const { return {*tree_, JsonTree::kNone}; }

}  // namespace tarrowin
