// What a block of a stored design stands for.
#pragma once

#include <cstdint>
#include <string_view>

namespace tarrowin {

enum class BlockRole : std::uint8_t { kUnknown, kForm, kReport, kGroupLevel, kSection, kControl };

struct BlockKind {
  BlockRole role = BlockRole::kUnknown;
  // Of a control its ControlType; of a section its number, of a group section that on level 0.
  std::int32_t number = 0;
};

// By the name of a kind, or by "#" and the ControlType of a control.
BlockKind blockKind(std::string_view kind);

// Sections of the same kind on the next group level are this much apart.
inline constexpr std::int32_t kSectionsPerLevel = 2;
// Whether the section number is of a group section.
constexpr bool isGroupSection(std::int32_t number) { return number >= 5; }
// As many group levels as a report can have.
inline constexpr std::int32_t kMostGroupLevels = 10;

}  // namespace tarrowin
