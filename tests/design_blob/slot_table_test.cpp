// The tables of objects and slots, at the places where they are easily taken for one another.
#include "access/design_blob/slot_table.h"

#include <gtest/gtest.h>

namespace tarrowin {
namespace {

std::string_view keyword(std::uint16_t type, std::uint32_t id) {
  const Slot* const slot = findSlot(objectType(type).numbering, id);
  return slot ? slot->keyword : "";
}

TEST(ObjectTypes, KnownAndUnknownNumbers) {
  EXPECT_EQ(objectType(100).kind, "Label");
  EXPECT_EQ(objectType(130).kind, "NavigationButton");
  EXPECT_EQ(objectType(151).kind, "Report");
  EXPECT_EQ(objectType(159).kind, "BreakLevel");
  for (const int number : {0, 99, 115, 116, 117, 120, 121, 125, 131, 149, 160, 200, 201, 65535}) {
    EXPECT_EQ(objectType(static_cast<std::uint16_t>(number)).kind, "") << number;
    EXPECT_EQ(objectType(static_cast<std::uint16_t>(number)).numbering, Numbering::kNone);
  }
}

TEST(SlotTable, ListsAndOleObjectsAreShiftedByOne) {
  EXPECT_EQ(keyword(109, 96), "Left");
  EXPECT_EQ(keyword(110, 97), "Left");
  EXPECT_EQ(keyword(111, 99), "Left");
  EXPECT_EQ(keyword(114, 97), "Left");
  EXPECT_EQ(keyword(119, 96), "Left");
}

TEST(SlotTable, KindsThatShareANumbering) {
  EXPECT_EQ(keyword(150, 228), "OnClose");
  EXPECT_EQ(keyword(151, 228), "OnClose");
  EXPECT_EQ(keyword(105, 156), "OptionValue");
  EXPECT_EQ(keyword(106, 156), "OptionValue");
  EXPECT_EQ(keyword(113, 227), "Class");
  EXPECT_EQ(keyword(114, 227), "Class");
  for (std::uint16_t section = 152; section <= 158; ++section)
    EXPECT_EQ(keyword(section, 223), "Name");
}

TEST(SlotTable, NamesOfControlsStandAt220) {
  for (const int type : {100, 101, 102, 103, 104, 105, 106, 107, 108, 109,
                         110, 111, 112, 113, 114, 118, 119, 122, 123, 124})
    EXPECT_EQ(keyword(static_cast<std::uint16_t>(type), 220), "Name") << type;
}

TEST(SlotTable, KindsOfPrefixedValues) {
  EXPECT_EQ(findSlot(Numbering::kForm, 199)->kind, ValueKind::kBinary);
  EXPECT_EQ(findSlot(Numbering::kForm, 206)->kind, ValueKind::kDouble);
  EXPECT_EQ(findSlot(Numbering::kForm, 208)->kind, ValueKind::kGuid);
  EXPECT_EQ(findSlot(Numbering::kForm, 221)->kind, ValueKind::kText);
  EXPECT_EQ(findSlot(Numbering::kComboBox, 188)->kind, ValueKind::kText);  // ColumnInfo
  EXPECT_EQ(findSlot(Numbering::kTextBox, 249)->kind, ValueKind::kBinary);
}

TEST(SlotTable, NumbersOfCompactRecordsTellTheKind) {
  const auto kindOf = [](std::uint32_t id) {
    return id < 48    ? ValueKind::kBoolean
           : id < 96  ? ValueKind::kByte
           : id < 156 ? ValueKind::kInteger
                      : ValueKind::kLong;
  };
  for (int numbering = 0; numbering < static_cast<int>(Numbering::kNone); ++numbering)
    for (std::uint32_t id = 0; id < 188; ++id)
      if (const Slot* const slot = findSlot(static_cast<Numbering>(numbering), id)) {
        EXPECT_EQ(slot->kind, kindOf(id)) << slot->keyword;
      }
}

TEST(SlotTable, TerminatorsAreNoSlots) {
  for (int numbering = 0; numbering < static_cast<int>(Numbering::kNone); ++numbering)
    for (std::uint32_t id = 253; id < 256; ++id)
      EXPECT_EQ(findSlot(static_cast<Numbering>(numbering), id), nullptr);
}

TEST(SlotTable, WhatIsNotThere) {
  EXPECT_EQ(findSlot(Numbering::kForm, 8), nullptr);
  EXPECT_EQ(findSlot(Numbering::kForm, 511), nullptr);
  EXPECT_EQ(findSlot(Numbering::kForm, 512), nullptr);
  EXPECT_EQ(findSlot(Numbering::kForm, 0xFFFFFFFF), nullptr);
  EXPECT_EQ(findSlot(Numbering::kNone, 0), nullptr);
}

TEST(SlotTable, CodesOfRecords) {
  EXPECT_EQ(keywordOfCode(17), "Caption");
  EXPECT_EQ(keywordOfCode(20), "Name");
  EXPECT_EQ(keywordOfCode(0), "");
  EXPECT_EQ(keywordOfCode(586), "");  // differs between builds
  EXPECT_EQ(keywordOfCode(0xFFFF), "");
}

}  // namespace
}  // namespace tarrowin
