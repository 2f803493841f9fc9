// Reordering.
// See menu_arguments.h.
#include "access/macro/menu_arguments.h"

namespace tarrowin {

std::vector<std::string> menuArguments(std::span<const std::string> slots) {
  std::vector<std::string> arguments;
  for (const std::size_t slot :
       {kMenuBarSlot, std::size_t{0}, std::size_t{1}, std::size_t{2}, std::size_t{3}})
    arguments.push_back(slot < slots.size() ? slots[slot] : std::string());
  while (!arguments.empty() && arguments.back().empty()) arguments.pop_back();
  return arguments;
}

}  // namespace tarrowin
