// Bounds and contents of the growing list.
#include "shared/growing_list.h"

#include <gtest/gtest.h>

#include "shared/expect_error.h"

namespace tarrowin {
namespace {

TEST(GrowingList, ResetHasBoundsZeroToOne) {
  GrowingList list;
  EXPECT_EQ(list.upperBound(), 1);
  EXPECT_EQ(list.count(), 0);
  EXPECT_EQ(list[0], "");
  EXPECT_EQ(list[1], "");
  EXPECT_EQ(list.begin(), list.end());
}

TEST(GrowingList, AppendWritesAtTheUpperBoundAndGrows) {
  GrowingList list;
  list.append("a");
  list.append("b");
  EXPECT_EQ(list.upperBound(), 3);
  EXPECT_EQ(list.count(), 2);
  EXPECT_EQ(list[0], "");
  EXPECT_EQ(list[1], "a");
  EXPECT_EQ(list[2], "b");
  EXPECT_EQ(list[3], "");
}

TEST(GrowingList, IterationVisitsTheEntriesOnly) {
  GrowingList list;
  list.append("a");
  list.append("");
  list.append("c");
  std::string visited;
  for (const auto& entry : list) visited += entry + ";";
  EXPECT_EQ(visited, "a;;c;");
  EXPECT_EQ(list.entries().size(), 3u);
}

TEST(GrowingList, OutsideTheBoundsRaisesNine) {
  GrowingList list;
  EXPECT_RAISES(9, list[2]);
  EXPECT_RAISES(9, list[-1]);
  const GrowingList& constant = list;
  EXPECT_RAISES(9, constant[2]);
}

TEST(GrowingList, ErasedListIsReadyToBeFilledAgain) {
  GrowingList list;
  list.append("a");
  list[0] = "x";
  list.reset();
  EXPECT_EQ(list.upperBound(), 1);
  EXPECT_EQ(list[0], "");
  list.append("b");
  EXPECT_EQ(list[1], "b");
}

TEST(GrowingList, FilledFromElementZeroByAnIndexOfItsOwn) {
  GrowingList names;
  for (std::int32_t index = 0; index < 3; ++index) {
    names[index] = "T" + std::to_string(index);
    names.grow();
  }
  EXPECT_EQ(names.upperBound() - 1, 3);
  EXPECT_EQ(names[0], "T0");
  EXPECT_EQ(names[2], "T2");
  EXPECT_EQ(names[3], "");
  EXPECT_EQ(names[4], "");
}

}  // namespace
}  // namespace tarrowin
