// A limit on the work of one operation, so that no damaged file can make it run for ever: pointers
// that lead in circles use the budget up.
#pragma once

#include <cstddef>
#include <cstdint>

#include "access/mdb/damage.h"

namespace tarrowin::mdb {

class StepBudget {
 public:
  // Enough for an operation that looks at every byte of the file several times. A step is about the
  // work of copying one byte.
  static StepBudget forFile(std::size_t fileSize) {
    return StepBudget(8 * static_cast<std::uint64_t>(fileSize) + (1u << 20));
  }

  explicit StepBudget(std::uint64_t steps) : left_(steps) {}

  // Throws Error (kDamaged) when the steps are used up.
  void spend(std::uint64_t steps) {
    if (steps > left_) raiseDamaged("its parts point at each other in circles");
    left_ -= steps;
  }

 private:
  std::uint64_t left_;
};

}  // namespace tarrowin::mdb
