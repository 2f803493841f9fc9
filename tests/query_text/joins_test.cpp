// The list behind FROM: shapes of joins with the text written by hand, and a plain reading of the
// rule as a second opinion on random rows.
#include <algorithm>
#include <memory>
#include <random>

#include <gtest/gtest.h>

#include "access/mdb/query_joins.h"

namespace tarrowin::mdb {
namespace {

std::vector<QuerySource> plain(std::initializer_list<const char*> names) {
  std::vector<QuerySource> sources;
  for (const char* name : names) sources.push_back({name, name});
  return sources;
}

TEST(Joins, SingleSource) { EXPECT_EQ(joinedSources(plain({"A"}), {}), "A"); }

TEST(Joins, NoSource) { EXPECT_EQ(joinedSources({}, {}), ""); }

TEST(Joins, CrossProduct) { EXPECT_EQ(joinedSources(plain({"A", "B", "C"}), {}), "A, B, C"); }

TEST(Joins, OneOfEachKind) {
  EXPECT_EQ(joinedSources(plain({"A", "B"}), {{"A", "B", "A.x = B.x", JoinKind::kInner}}),
            "A INNER JOIN B ON A.x = B.x");
  EXPECT_EQ(joinedSources(plain({"A", "B"}), {{"A", "B", "A.x = B.x", JoinKind::kLeft}}),
            "A LEFT JOIN B ON A.x = B.x");
  EXPECT_EQ(joinedSources(plain({"A", "B"}), {{"A", "B", "A.x = B.x", JoinKind::kRight}}),
            "A RIGHT JOIN B ON A.x = B.x");
}

TEST(Joins, LeftSideIsThatOfTheRow) {
  EXPECT_EQ(joinedSources(plain({"A", "B"}), {{"B", "A", "B.x = A.x"}}),
            "B INNER JOIN A ON B.x = A.x");
}

TEST(Joins, ChainToTheRight) {
  EXPECT_EQ(
      joinedSources(plain({"A", "B", "C", "D"}),
                    {{"A", "B", "A.x = B.x"}, {"B", "C", "B.y = C.y"}, {"C", "D", "C.z = D.z"}}),
      "((A INNER JOIN B ON A.x = B.x) INNER JOIN C ON B.y = C.y) INNER JOIN D ON C.z = D.z");
}

TEST(Joins, ChainFromTheEnd) {
  EXPECT_EQ(
      joinedSources(plain({"A", "B", "C", "D"}),
                    {{"C", "D", "C.z = D.z"}, {"B", "C", "B.y = C.y"}, {"A", "B", "A.x = B.x"}}),
      "A INNER JOIN (B INNER JOIN (C INNER JOIN D ON C.z = D.z) ON B.y = C.y) ON A.x = B.x");
}

TEST(Joins, Star) {
  EXPECT_EQ(
      joinedSources(plain({"B", "C", "A", "D"}),
                    {{"A", "B", "A.b = B.id"}, {"A", "C", "A.c = C.id"}, {"A", "D", "A.d = D.id"}}),
      "((A INNER JOIN B ON A.b = B.id) INNER JOIN C ON A.c = C.id) "
      "INNER JOIN D ON A.d = D.id");
}

TEST(Joins, StarWithTheCentreOnTheRight) {
  EXPECT_EQ(
      joinedSources(plain({"A", "B", "C"}), {{"B", "A", "B.id = A.b"}, {"C", "A", "C.id = A.c"}}),
      "C INNER JOIN (B INNER JOIN A ON B.id = A.b) ON C.id = A.c");
}

TEST(Joins, TwoPairsThenTogether) {
  EXPECT_EQ(
      joinedSources(plain({"A", "B", "C", "D"}),
                    {{"A", "B", "A.x = B.x"}, {"C", "D", "C.z = D.z"}, {"B", "C", "B.y = C.y"}}),
      "(A INNER JOIN B ON A.x = B.x) INNER JOIN (C INNER JOIN D ON C.z = D.z) ON B.y = C.y");
}

TEST(Joins, SeveralConditionsLastRowFirst) {
  EXPECT_EQ(
      joinedSources(plain({"A", "B"}),
                    {{"A", "B", "A.x = B.x"}, {"A", "B", "A.y = B.y"}, {"A", "B", "A.z = B.z"}}),
      "A INNER JOIN B ON (A.z = B.z) AND (A.y = B.y) AND (A.x = B.x)");
}

TEST(Joins, FirstRowOfAPairSetsKindAndSides) {
  EXPECT_EQ(joinedSources(plain({"A", "B"}), {{"A", "B", "A.x = B.x", JoinKind::kLeft},
                                              {"B", "A", "B.y = A.y", JoinKind::kRight}}),
            "A LEFT JOIN B ON (B.y = A.y) AND (A.x = B.x)");
}

TEST(Joins, ConditionGoesToTheInnermostJoinThatHoldsBoth) {
  EXPECT_EQ(
      joinedSources(plain({"A", "B", "C"}),
                    {{"A", "B", "A.x = B.x"}, {"B", "C", "B.y = C.y"}, {"A", "B", "A.z = B.z"}}),
      "(A INNER JOIN B ON (A.z = B.z) AND (A.x = B.x)) INNER JOIN C ON B.y = C.y");
}

TEST(Joins, TriangleEndsInTheOuterJoin) {
  EXPECT_EQ(
      joinedSources(plain({"A", "B", "C"}),
                    {{"A", "B", "A.x = B.x"}, {"B", "C", "B.y = C.y"}, {"A", "C", "A.z = C.z"}}),
      "(A INNER JOIN B ON A.x = B.x) INNER JOIN C ON (A.z = C.z) AND (B.y = C.y)");
}

TEST(Joins, MixedLeftAndRight) {
  EXPECT_EQ(joinedSources(plain({"A", "B", "C"}), {{"A", "B", "A.x = B.x", JoinKind::kLeft},
                                                   {"B", "C", "B.y = C.y", JoinKind::kRight}}),
            "(A LEFT JOIN B ON A.x = B.x) RIGHT JOIN C ON B.y = C.y");
}

TEST(Joins, LeftJoinOfALeftJoin) {
  EXPECT_EQ(joinedSources(plain({"A", "B", "C"}), {{"B", "C", "B.y = C.y", JoinKind::kLeft},
                                                   {"A", "B", "A.x = B.x", JoinKind::kLeft}}),
            "A LEFT JOIN (B LEFT JOIN C ON B.y = C.y) ON A.x = B.x");
}

TEST(Joins, JoinAndCrossProductKeepThePlaceOfTheEarlier) {
  EXPECT_EQ(joinedSources(plain({"A", "B", "C", "D"}), {{"D", "B", "D.x = B.x"}}),
            "A, D INNER JOIN B ON D.x = B.x, C");
  EXPECT_EQ(joinedSources(plain({"A", "B", "C", "D"}),
                          {{"C", "D", "C.x = D.x"}, {"D", "A", "D.y = A.y"}}),
            "(C INNER JOIN D ON C.x = D.x) INNER JOIN A ON D.y = A.y, B");
}

TEST(Joins, TwoSeparateJoins) {
  EXPECT_EQ(joinedSources(plain({"A", "B", "C", "D"}),
                          {{"B", "D", "B.x = D.x"}, {"A", "C", "A.x = C.x"}}),
            "A INNER JOIN C ON A.x = C.x, B INNER JOIN D ON B.x = D.x");
}

TEST(Joins, SelfJoinByAlias) {
  EXPECT_EQ(
      joinedSources(
          {{"Staff", "Staff"}, {"Boss", "Staff AS Boss"}, {"Top Boss", "Staff AS [Top Boss]"}},
          {{"Staff", "Boss", "Staff.BossID = Boss.ID", JoinKind::kLeft},
           {"Boss", "Top Boss", "Boss.BossID = [Top Boss].ID", JoinKind::kLeft}}),
      "(Staff LEFT JOIN Staff AS Boss ON Staff.BossID = Boss.ID) "
      "LEFT JOIN Staff AS [Top Boss] ON Boss.BossID = [Top Boss].ID");
}

TEST(Joins, SubqueryByAlias) {
  EXPECT_EQ(joinedSources({{"A", "A"}, {"%$##@_Alias", "[SELECT x FROM B]. AS [%$##@_Alias]"}},
                          {{"A", "%$##@_Alias", "A.x = [%$##@_Alias].x", JoinKind::kRight}}),
            "A RIGHT JOIN [SELECT x FROM B]. AS [%$##@_Alias] ON A.x = [%$##@_Alias].x");
}

TEST(Joins, NamesDifferInCaseOnly) {
  EXPECT_EQ(joinedSources(plain({"qryChart", "tblAccount"}), {{"QRYchart", "TBLACCOUNT", "a = b"}}),
            "qryChart INNER JOIN tblAccount ON a = b");
}

TEST(Joins, ExactCaseWins) {
  EXPECT_EQ(joinedSources(plain({"a", "A", "B"}), {{"A", "B", "c"}}), "a, A INNER JOIN B ON c");
}

TEST(Joins, FirstOfTwoSourcesOfOneNameCounts) {
  EXPECT_EQ(joinedSources(plain({"A", "A", "B"}), {{"A", "B", "c"}}), "A INNER JOIN B ON c, A");
}

TEST(Joins, UnknownSourceBecomesASource) {
  EXPECT_EQ(joinedSources(plain({"A", "B"}), {{"Lost One", "A", "c"}, {"lost one", "B", "d"}}),
            "([Lost One] INNER JOIN A ON c) INNER JOIN B ON d");
}

TEST(Joins, RowsWithoutNameOrConditionAreLeftOut) {
  EXPECT_EQ(joinedSources(plain({"A", "B"}), {{"", "B", "c"}, {"A", "", "c"}, {"A", "B", ""}}),
            "A, B");
}

TEST(Joins, SourceJoinedToItself) {
  EXPECT_EQ(joinedSources(plain({"A"}), {{"A", "A", "c"}}), "A");
  EXPECT_EQ(
      joinedSources(plain({"A", "B", "C"}), {{"A", "B", "c"}, {"B", "C", "d"}, {"A", "A", "e"}}),
      "(A INNER JOIN B ON (e) AND (c)) INNER JOIN C ON d");
}

// The rule read word by word: a list of trees, searched in full for each row.
struct Tree {
  std::string source;
  std::unique_ptr<Tree> left, right;
  JoinKind kind = JoinKind::kInner;
  std::vector<std::string> conditions;

  bool holds(const std::string& name) const {
    return left ? left->holds(name) || right->holds(name) : source == name;
  }
  Tree& innermost(const std::string& a, const std::string& b) {
    if (left->left && left->holds(a) && left->holds(b)) return left->innermost(a, b);
    if (right->left && right->holds(a) && right->holds(b)) return right->innermost(a, b);
    return *this;
  }
  std::string text() const {
    if (!left) return source;
    const auto side = [](const Tree& tree) {
      return tree.left ? "(" + tree.text() + ")" : tree.text();
    };
    std::string on = conditions.size() == 1 ? conditions[0] : "";
    for (auto it = conditions.rbegin(); conditions.size() > 1 && it != conditions.rend(); ++it) {
      on += (on.empty() ? "(" : " AND (") + *it + ")";
    }
    const char* word = kind == JoinKind::kLeft    ? " LEFT JOIN "
                       : kind == JoinKind::kRight ? " RIGHT JOIN "
                                                  : " INNER JOIN ";
    return side(*left) + word + side(*right) + " ON " + on;
  }
};

std::string wordByWord(const std::vector<QuerySource>& sources,
                       const std::vector<QueryJoin>& joins) {
  std::vector<std::unique_ptr<Tree>> nodes;
  for (const QuerySource& source : sources) {
    nodes.push_back(std::make_unique<Tree>());
    nodes.back()->source = source.name;
  }
  const auto holding = [&](const std::string& name) {
    return std::ranges::find_if(nodes, [&](const auto& node) { return node->holds(name); });
  };
  for (const QueryJoin& row : joins) {
    const auto left = holding(row.left);
    const auto right = holding(row.right);
    if (left == right) {
      if ((*left)->left)
        (*left)->innermost(row.left, row.right).conditions.push_back(row.condition);
      continue;
    }
    auto joined = std::make_unique<Tree>();
    joined->left = std::move(*left);
    joined->right = std::move(*right);
    joined->kind = row.kind;
    joined->conditions = {row.condition};
    *std::min(left, right) = std::move(joined);
    nodes.erase(std::max(left, right));
  }
  std::string text;
  for (const auto& node : nodes) text += (text.empty() ? "" : ", ") + node->text();
  return text;
}

TEST(Joins, RandomRowsAgreeWithTheRuleReadWordByWord) {
  std::mt19937 random(20031);
  const auto below = [&random](int bound) {
    return static_cast<int>(random() % static_cast<unsigned>(bound));
  };
  for (int round = 0; round < 5000; ++round) {
    const int count = 1 + below(9);
    std::vector<QuerySource> sources;
    for (int i = 0; i < count; ++i) {
      const std::string name(1, static_cast<char>('A' + i));
      sources.push_back({name, name});
    }
    std::vector<QueryJoin> joins;
    const int rows = below(2 * count + 1);
    for (int i = 0; i < rows; ++i) {
      joins.push_back({sources[below(count)].name, sources[below(count)].name,
                       "c" + std::to_string(i), static_cast<JoinKind>(below(3))});
    }
    ASSERT_EQ(joinedSources(sources, joins), wordByWord(sources, joins)) << "round " << round;
  }
}

}  // namespace
}  // namespace tarrowin::mdb
