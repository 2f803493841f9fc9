// The header of a form file, from "VERSION 5.00" to the Tag line, of a form or of a report that is
// shown as one.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "core/main_object.h"
#include "core/statement.h"
#include "forms/printer_rows.h"

namespace tarrowin {

// What differs between the two.
struct HeaderKind {
  std::string_view procedure;  // the name in its error box
  LateBound ConversionState::*design;
  std::int32_t ConversionState::*clientHeight;  // set to 32767 by every error 6
  void (*readHeights)(Procedure& procedure, ConversionState& state);
  std::span<const PrinterRow> captionAndHeight;  // the rows Caption and ClientHeight
  std::span<const PrinterRow> keys;              // the rows of the keyboard
};

void printHeader(MainObject& main, const HeaderKind& kind);

// The most that Visual Basic shows of a form's height, a screen of its time, and what stands for a
// height that does not fit 16 bits: twips.
inline constexpr std::int32_t kHighestClient = 11520;
inline constexpr std::int32_t kOverflowedClient = 32767;

// The text of the Caption line: cleaned from its first to its last character that is no blank; a
// caption of blanks as it stands. Sets strCleanText.
const std::string& cleanedCaption(const PrintedControl& design);
void printCaption(const PrintedControl& design, std::string_view caption);

}  // namespace tarrowin
