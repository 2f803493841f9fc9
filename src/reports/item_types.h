// What an Access control becomes on a Data Report, and where the designer allows it.
#pragma once

#include <cstdint>
#include <string_view>

namespace tarrowin {

// ItemType numbers of the Data Report designer.
enum class ItemType : std::int32_t {
  kLabel = 3,
  kTextBox = 4,
  kLine = 5,
  kShape = 6,
  kImage = 7,
  kFunction = 13,
};

// The item of a control of that ControlType; a text box whose source begins with "=" is a function.
// What has no counterpart survives as a shape of its size.
ItemType itemTypeOf(std::int32_t controlType, std::string_view source);

// Whether the designer takes the item in that section (Access's number).
bool isAllowed(ItemType item, std::int32_t section);

// The lines that only labels, texts and functions have.
bool hasFont(ItemType item);
bool isBound(ItemType item);

// What a text box shows in a section that does not take it, by a word of its source: today's date,
// the time, the page number. Null for none of the words.
struct PlaceholderRow {
  std::string_view word;
  std::string_view caption;
};
const PlaceholderRow* placeholderFor(std::string_view source);

// FunctionType numbers of the Data Report designer.
inline constexpr std::int32_t kNoFunction = 7;
// The number of the function in the source, by the first word that occurs; kNoFunction for none.
// Raises 13 for Max, which the designer has no number for.
std::int32_t functionTypeOf(std::string_view source);

}  // namespace tarrowin
