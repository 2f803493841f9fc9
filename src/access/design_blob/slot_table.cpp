// The tables, indexed by numbers: reading a design looks up every record of it.
// See slot_table.h.
#include "access/design_blob/slot_table.h"

#include <array>
#include <cstddef>
#include <iterator>

namespace tarrowin {

namespace {

using enum Numbering;
using enum ValueKind;

struct SlotRow {
  Numbering numbering;
  std::uint16_t id;
  Slot slot;

  constexpr SlotRow(Numbering of, std::uint16_t number, std::string_view keyword, ValueKind kind)
      : numbering(of), id(number), slot{keyword, kind} {}
};

constexpr SlotRow kSlotRows[] = {
#include "access/design_blob/slots.inc"
};

struct CodeRow {
  std::uint16_t code;
  std::string_view keyword;
};

constexpr CodeRow kCodeRows[] = {
#include "access/design_blob/property_codes.inc"
};

// Above every number and every code of the tables.
constexpr std::size_t kIds = 512;
constexpr std::size_t kCodes = 400;
constexpr std::size_t kNumberings = static_cast<std::size_t>(kNone);

constexpr std::size_t indexOf(Numbering numbering, std::size_t id) {
  return static_cast<std::size_t>(numbering) * kIds + id;
}

// The number of the row, counted from 1; 0 is no row.
constexpr auto kSlotIndex = [] {
  std::array<std::uint16_t, kNumberings * kIds> index{};
  for (std::size_t row = 0; row < std::size(kSlotRows); ++row)
    index[indexOf(kSlotRows[row].numbering, kSlotRows[row].id)] =
        static_cast<std::uint16_t>(row + 1);
  return index;
}();

constexpr auto kKeywordsByCode = [] {
  std::array<std::string_view, kCodes> keywords;
  for (const CodeRow& row : kCodeRows) keywords[row.code] = row.keyword;
  return keywords;
}();

constexpr bool everySlotHasItsPlace() {
  for (std::size_t row = 0; row < std::size(kSlotRows); ++row) {
    const SlotRow& slot = kSlotRows[row];
    if (slot.id >= kIds || kSlotIndex[indexOf(slot.numbering, slot.id)] != row + 1) return false;
  }
  return true;
}
static_assert(everySlotHasItsPlace(), "a number beyond the table, or two rows for one slot");

}  // namespace

const Slot* findSlot(Numbering numbering, std::uint32_t id) {
  if (numbering == kNone || id >= kIds) return nullptr;
  const std::uint16_t row = kSlotIndex[indexOf(numbering, id)];
  return row == 0 ? nullptr : &kSlotRows[row - 1].slot;
}

std::string_view keywordOfCode(std::uint16_t code) {
  return code < kCodes ? kKeywordsByCode[code] : std::string_view();
}

}  // namespace tarrowin
