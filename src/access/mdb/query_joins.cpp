// The sources of a query and the joins between them, put together to the list behind FROM.
// Nodes are sets united by size; the join that united two sources is found on the way up.
#include "access/mdb/query_joins.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "access/mdb/query_names.h"

namespace tarrowin::mdb {
namespace {

constexpr int kNone = -1;

std::string lowerAscii(std::string_view text) {
  std::string lower(text);
  for (char& c : lower) {
    if ('A' <= c && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return lower;
}

// Sources by name; a name not yet known is added as a source.
class SourceList {
 public:
  explicit SourceList(std::vector<QuerySource> sources) : sources_(std::move(sources)) {
    for (std::size_t i = 0; i < sources_.size(); ++i) index(static_cast<int>(i));
  }

  int find(const std::string& name) {
    if (const auto found = exact_.find(name); found != exact_.end()) return found->second;
    if (const auto found = lower_.find(lowerAscii(name)); found != lower_.end()) {
      return found->second;
    }
    sources_.push_back({name, bracketedName(name)});
    index(static_cast<int>(sources_.size()) - 1);
    return static_cast<int>(sources_.size()) - 1;
  }

  const std::vector<QuerySource>& all() const { return sources_; }

 private:
  void index(int source) {
    exact_.emplace(sources_[source].name, source);
    lower_.emplace(lowerAscii(sources_[source].name), source);
  }

  std::vector<QuerySource> sources_;
  std::unordered_map<std::string, int> exact_;
  std::unordered_map<std::string, int> lower_;
};

// Nodes 0 to n - 1 are the sources, node n + j is join j.
class JoinForest {
 public:
  explicit JoinForest(const std::vector<QuerySource>& sources)
      : sources_(sources), sets_(sources.size()) {
    for (std::size_t i = 0; i < sets_.size(); ++i) {
      sets_[i].place = sets_[i].node = static_cast<int>(i);
    }
  }

  void add(int left, int right, const QueryJoin& row) {
    const int leftRoot = rootOf(left);
    const int rightRoot = rootOf(right);
    if (leftRoot != rightRoot) {
      unite(leftRoot, rightRoot, row);
    } else if (const int join = innermostJoin(left, right); join != kNone) {
      joins_[join].conditions.push_back(row.condition);
    }
  }

  std::string text() const {
    std::string text;
    for (std::size_t i = 0; i < sets_.size(); ++i) {
      const Set& set = sets_[rootOf(static_cast<int>(i))];
      if (set.place != static_cast<int>(i)) continue;
      if (!text.empty()) text += ", ";
      appendNode(set.node, text);
    }
    return text;
  }

 private:
  struct Join {
    int left;
    int right;
    JoinKind kind;
    std::vector<std::string_view> conditions;
  };

  // The node that holds a source, as one tree of sets; all but uniting counts at the root alone.
  struct Set {
    int parent = kNone;
    int unitingJoin = kNone;  // the join that hung this set below its parent; grows upwards
    int firstJoin = kNone;    // the first join that took this source in
    int size = 1;
    int place = 0;  // number of the earliest source inside
    int node = 0;   // what is printed there
  };

  // Something still to be printed: a node, or a piece of text.
  struct Piece {
    int node;
    std::string_view text;
  };

  int rootOf(int source) const {
    while (sets_[source].parent != kNone) source = sets_[source].parent;
    return source;
  }

  void unite(int leftRoot, int rightRoot, const QueryJoin& row) {
    const int number = static_cast<int>(joins_.size());
    joins_.push_back({sets_[leftRoot].node, sets_[rightRoot].node, row.kind, {row.condition}});
    for (const int root : {leftRoot, rightRoot}) {
      if (sets_[root].firstJoin == kNone) sets_[root].firstJoin = number;
    }
    const bool leftIsUpper = sets_[leftRoot].size >= sets_[rightRoot].size;
    Set& upper = sets_[leftIsUpper ? leftRoot : rightRoot];
    Set& lower = sets_[leftIsUpper ? rightRoot : leftRoot];
    lower.parent = leftIsUpper ? leftRoot : rightRoot;
    lower.unitingJoin = number;
    upper.size += lower.size;
    upper.place = std::min(upper.place, lower.place);
    upper.node = static_cast<int>(sets_.size()) + number;
  }

  // Both sources stand in one set. The later a set was hung up, the wider the join.
  int innermostJoin(int left, int right) const {
    if (left == right) return sets_[left].firstJoin;
    int join = kNone;
    while (left != right) {
      int& deeper = hungUpBefore(left, right) ? left : right;
      join = sets_[deeper].unitingJoin;
      deeper = sets_[deeper].parent;
    }
    return join;
  }

  bool hungUpBefore(int left, int right) const {
    if (sets_[left].parent == kNone) return false;
    if (sets_[right].parent == kNone) return true;
    return sets_[left].unitingJoin < sets_[right].unitingJoin;
  }

  void appendNode(int root, std::string& text) const {
    std::vector<Piece> pending{{root, {}}};
    while (!pending.empty()) {
      const Piece piece = pending.back();
      pending.pop_back();
      if (piece.node == kNone) {
        text += piece.text;
      } else if (!isJoin(piece.node)) {
        text += sources_[piece.node].text;
      } else {
        pushJoin(joins_[piece.node - static_cast<int>(sets_.size())], pending);
      }
    }
  }

  bool isJoin(int node) const { return node >= static_cast<int>(sets_.size()); }

  // The pieces of a join, the last one first, as they are taken from the end.
  void pushJoin(const Join& join, std::vector<Piece>& pending) const {
    pushConditions(join.conditions, pending);
    pending.push_back({kNone, " ON "});
    pushSide(join.right, pending);
    pending.push_back({kNone, keywords(join.kind)});
    pushSide(join.left, pending);
  }

  static void pushConditions(const std::vector<std::string_view>& conditions,
                             std::vector<Piece>& pending) {
    if (conditions.size() == 1) {
      pending.push_back({kNone, conditions.front()});
      return;
    }
    pending.push_back({kNone, ")"});
    for (std::size_t i = 0; i < conditions.size(); ++i) {
      if (i > 0) pending.push_back({kNone, ") AND ("});
      pending.push_back({kNone, conditions[i]});
    }
    pending.push_back({kNone, "("});
  }

  void pushSide(int node, std::vector<Piece>& pending) const {
    if (isJoin(node)) pending.push_back({kNone, ")"});
    pending.push_back({node, {}});
    if (isJoin(node)) pending.push_back({kNone, "("});
  }

  static std::string_view keywords(JoinKind kind) {
    switch (kind) {
      case JoinKind::kLeft:
        return " LEFT JOIN ";
      case JoinKind::kRight:
        return " RIGHT JOIN ";
      case JoinKind::kInner:
        break;
    }
    return " INNER JOIN ";
  }

  const std::vector<QuerySource>& sources_;
  std::vector<Set> sets_;  // one a source
  std::vector<Join> joins_;
};

struct NumberedJoin {
  int left;
  int right;
  const QueryJoin* row;
};

}  // namespace

std::string joinedSources(std::vector<QuerySource> sources, const std::vector<QueryJoin>& joins) {
  SourceList list(std::move(sources));
  std::vector<NumberedJoin> numbered;
  for (const QueryJoin& join : joins) {
    if (join.left.empty() || join.right.empty() || join.condition.empty()) continue;
    const int left = list.find(join.left);
    numbered.push_back({left, list.find(join.right), &join});
  }
  JoinForest forest(list.all());
  for (const NumberedJoin& join : numbered) forest.add(join.left, join.right, *join.row);
  return forest.text();
}

}  // namespace tarrowin::mdb
