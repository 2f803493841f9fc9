// The arguments of the action DoMenuItem, the only one that Access keeps in another order than its
// documentation has them in: Menu Bar, Menu Name, Command, Subcommand, version of the menus.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarrowin {

inline constexpr std::string_view kMenuAction = "DoMenuItem";
// The first of them stands behind the others, in the seventh of the ten places.
inline constexpr std::size_t kMenuBarSlot = 6;

// The arguments in the documented order; the slots may be fewer than ten.
std::vector<std::string> menuArguments(std::span<const std::string> slots);

}  // namespace tarrowin
