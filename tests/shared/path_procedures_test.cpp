// Cutting paths with either separator.
#include "shared/path_procedures.h"

#include <gtest/gtest.h>

namespace tarrowin {
namespace {

TEST(FileNameOf, BothSeparators) {
  EXPECT_EQ(FileNameOf("C:\\Data\\Orders.mdb"), "Orders.mdb");
  EXPECT_EQ(FileNameOf("/home/me/Orders.mdb"), "Orders.mdb");
  EXPECT_EQ(FileNameOf("C:\\Data/Orders.mdb"), "Orders.mdb");
  EXPECT_EQ(FileNameOf("/srv/a\\Orders.mdb"), "Orders.mdb");
}

TEST(FileNameOf, NoSeparatorOrNothingBehindIt) {
  EXPECT_EQ(FileNameOf("Orders.mdb"), "Orders.mdb");
  EXPECT_EQ(FileNameOf("C:\\Data\\"), "");
  EXPECT_EQ(FileNameOf(""), "");
}

TEST(DirectoryOf, KeepsTheSeparator) {
  EXPECT_EQ(DirectoryOf("C:\\Data\\Orders.mdb"), "C:\\Data\\");
  EXPECT_EQ(DirectoryOf("/home/me/Orders.mdb"), "/home/me/");
  EXPECT_EQ(DirectoryOf("/Orders.mdb"), "/");
  EXPECT_EQ(DirectoryOf("Orders.mdb"), "");
  EXPECT_EQ(DirectoryOf(""), "");
}

}  // namespace
}  // namespace tarrowin
