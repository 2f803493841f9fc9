// Which references the user is told to select.
#include "core/access_references.h"

#include <string>

#include <gtest/gtest.h>

#include "support/test_session.h"

namespace tarrowin::test {
namespace {

// A database opened by an Access with that many references, the last unknown of them without a
// file.
Json databaseWith(int references, int unknown = 0) {
  Json database = emptyDatabase();
  std::vector<Json> list;
  for (int i = 0; i < references; ++i) {
    const bool known = i < references - unknown;
    list.push_back({{"name", i == 0 ? "Access" : "Lib" + std::to_string(i)},
                    {"fullPath", known ? "C:\\Office\\LIB.OLB" : ""}});
  }
  database["application"] = {{"references", list}};
  return database;
}

const std::string kHead =
    "To ensure that the Tarrowin displays correctly, select the following References, \r\n"
    "in order of priority, from the current database.\r\n"
    "\r\n"
    "       Filename\t\tReference\r\n"
    "\r\n";
const std::string kTail =
    "\r\n"
    "To view and select the current References, open a Form in Code view or a Module in \r\n"
    "Design view and select the References/Tools menu item (Alt-TR). Select a Reference \r\n"
    "from the displayed list or click the Browse button to locate any missing files.\r\n"
    "\r\n"
    "Refer to the References section in the Readme.txt file for more information.";

TEST(AccessReferences, NineReferencesShowNoBox) {
  TestSession session;
  session.open(databaseWith(9));
  CheckAccessRefs(session.main);
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST(AccessReferences, AsManyRowsAsReferencesWithAFile) {
  TestSession session;
  session.open(databaseWith(4, 2));
  CheckAccessRefs(session.main);
  ASSERT_EQ(session.user.boxes.size(), 1u);
  EXPECT_EQ(session.user.boxes[0].style, 64);
  EXPECT_EQ(session.user.boxes[0].title, "Access to Visual Basic Tarrowin");
  EXPECT_EQ(session.user.boxes[0].text,
            kHead +
                "  1 - VBE6.DLL\t\tVisual Basic for Applications\r\n"
                "  2 - MSACC9.OLB\t\tMicrosoft Access 9.0 Object Library\r\n" +
                kTail);
}

TEST(AccessReferences, WithTwelveEntriesRowsFromTheTenthHaveNoBlanksInFront) {
  TestSession session;
  session.open(databaseWith(12));
  CheckAccessRefs(session.main);
  ASSERT_EQ(session.user.boxes.size(), 1u);
  EXPECT_EQ(session.user.boxes[0].text,
            kHead +
                "  1 - VBE6.DLL\t\tVisual Basic for Applications\r\n"
                "  2 - MSACC9.OLB\t\tMicrosoft Access 9.0 Object Library\r\n"
                "  3 - MSO9.DLL\t\tMicrosoft Office 9.0 Object Library\r\n"
                "  4 - DAO360.DLL\t\tMicrosoft DA0 3.6 Object Library\r\n"
                "  5 - stdole2.tlb\t\tOLE Automation\r\n"
                "  6 - COMCTL32.OCX\tMicrosoft Windows Common Controls 5.0 (SP2)\r\n"
                "  7 - COMDLG32.OCX\tMicrosoft Common Dialog Control 6.0 (SP3)\r\n"
                "  8 - TABCTL32.OCX\tMicrosoft Tabbed Dialog Control 6.0\r\n"
                "  9 - VBE6EXT.OLB\t\tMicrosoft Visual Basic for Applications Extensibility 5.3\r\n"
                "10 - \r\n"
                "11 - \r\n"
                "12 - \r\n" +
                kTail);
}

TEST(AccessReferences, WithoutAccessThereIsNothingToCount) {
  TestSession session;
  CheckAccessRefs(session.main);
  ASSERT_EQ(session.user.boxes.size(), 1u);
  EXPECT_EQ(session.user.boxes[0].text, kHead + kTail);
}

}  // namespace
}  // namespace tarrowin::test
