// The sources of a query and the joins between them, put together to the list behind FROM.
// Works on any number of joins in near-linear time and without recursion.
#pragma once

#include <string>
#include <vector>

namespace tarrowin::mdb {

// One source. The name is what join rows call it: its alias, or the table or query without one.
struct QuerySource {
  std::string name;
  std::string text;  // as printed
};

enum class JoinKind { kInner, kLeft, kRight };

// One join row: a condition between two sources, by their names.
struct QueryJoin {
  std::string left;
  std::string right;
  std::string condition;
  JoinKind kind = JoinKind::kInner;
};

// The text behind FROM. Each source begins as a node of its own. A join row between two nodes makes
// one join of them, at the place of the earlier one; a row whose sources already stand in one node
// adds a condition to the innermost join that holds both. The remaining nodes are joined by commas.
// A side that is itself a join stands in parentheses; several conditions are printed last row
// first, each in parentheses.
//
// Names are found exactly, else without regard to the case of ASCII letters; of two sources with
// one name the first counts. Damaged rows:
// - a name that no source bears becomes one more source, behind the others;
// - a row without one of its names or without a condition joins nothing and is left out;
// - a row between a source and itself is a condition of the innermost join that holds it, and is
//   left out when no row before joined that source.
std::string joinedSources(std::vector<QuerySource> sources, const std::vector<QueryJoin>& joins);

}  // namespace tarrowin::mdb
