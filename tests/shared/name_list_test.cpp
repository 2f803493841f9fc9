// The list of names with its look-up.
#include "shared/name_list.h"

#include <gtest/gtest.h>

namespace tarrowin {
namespace {

TEST(NameList, AnEmptyListHoldsNothing) {
  const NameList list;
  EXPECT_EQ(list.count(), 0);
  EXPECT_FALSE(list.contains(""));
}

TEST(NameList, NamesAreComparedLetterByLetter) {
  NameList list;
  list.append("txtA");
  EXPECT_TRUE(list.contains("txtA"));
  EXPECT_FALSE(list.contains("TXTA"));
  EXPECT_FALSE(list.contains("txtA "));
}

TEST(NameList, KeepsTheOrderAndRepetitions) {
  NameList list;
  for (const char* name : {"b", "a", "b"}) list.append(name);
  EXPECT_EQ(list.count(), 3);
  EXPECT_EQ(std::vector<std::string>(list.entries().begin(), list.entries().end()),
            (std::vector<std::string>{"b", "a", "b"}));
}

TEST(NameList, HoldsNothingAfterAReset) {
  NameList list;
  list.append("a");
  list.reset();
  EXPECT_EQ(list.count(), 0);
  EXPECT_FALSE(list.contains("a"));
}

}  // namespace
}  // namespace tarrowin
