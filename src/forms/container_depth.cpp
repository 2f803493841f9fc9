// Counts the containers around a control.
#include "forms/container_depth.h"

#include <utility>

#include "forms/control_types.h"

namespace tarrowin {

namespace {

// Containers around a container whose members are printed.
constexpr int kDeepest = 6;
// Links of the chain of Parents that are followed; pages stand between tab controls.
constexpr int kLongestChain = 4 * kDeepest;

bool isContainer(const LateBound& ctl) {
  const Reading type = ctl.tryGet("ControlType");
  const std::int32_t* number = type.value.longInteger();
  return number && (*number == control_type::kOptionGroup || *number == control_type::kTabControl);
}

}  // namespace

bool isTooDeepContainer(const LateBound& ctl) {
  LateBound below = ctl;
  int containers = 0;
  for (int link = 0; link < kLongestChain; ++link) {
    LateBound above(below.tryGet("Parent").value.object());
    if (!above) return false;
    if (isContainer(above) && ++containers >= kDeepest) return true;
    below = std::move(above);
  }
  return true;
}

}  // namespace tarrowin
