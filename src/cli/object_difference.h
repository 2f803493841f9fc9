// Where two objects differ.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/object_facts.h"

namespace tarrowin {

struct Difference {
  std::string part;      // label; empty for the object itself
  std::string property;  // empty: the part as a whole is on one side alone
  // Absent on the side that has no such property or part.
  std::optional<Json> first, second;
};

enum class ComparedProperties {
  kAll,
  kGenerators,  // those alone that the conversions read
};

// In the order of the first object, what only the second has behind it. Names of properties and
// parts are matched without regard to case; parts may stand in any order, only controls that change
// places are a difference of the object itself.
std::vector<Difference> differencesBetween(const ObjectFacts& first, const ObjectFacts& second,
                                           ComparedProperties compared);

// Both values of a difference for a person, "120" and "\"a\"": of long texts only the first line
// that differs.
std::pair<std::string, std::string> shownValues(const Difference& difference);

}  // namespace tarrowin
