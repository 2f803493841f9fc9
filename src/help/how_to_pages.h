// The pages of the How to tab as data.
#pragma once

#include <array>
#include <span>
#include <string_view>

#include "help/how_to.h"

namespace tarrowin {

struct HowToPage {
  std::string_view title;
  // One a label, without its number; the unused ones at the end are empty.
  std::array<std::string_view, 7> steps;
};

std::span<const HowToPage, kHowToPages> howToPages();

}  // namespace tarrowin
