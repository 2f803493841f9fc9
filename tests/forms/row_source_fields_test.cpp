// The fields of the table behind a combo or list box.
#include "forms/row_source_fields.h"

#include <gtest/gtest.h>

#include "support/test_session.h"

namespace tarrowin::test {
namespace {

class RowSourceFields : public testing::Test, public TestSession {
 protected:
  RowSourceFields() {
    Json database = emptyDatabase();
    for (const char* name : {"Orders", "Order Details"})
      database["tables"].push_back({{"name", name},
                                    {"fields",
                                     {{{"name", "OrderID"}, {"type", 4}, {"size", 4}},
                                      {{"name", "Customer"}, {"type", 10}, {"size", 50}},
                                      {{"name", "Date"}, {"type", 8}, {"size", 8}}}}});
    open(database);
    clearBoxes();
  }
};

TEST_F(RowSourceFields, TheBoundFieldAndTheOneBehindIt) {
  EXPECT_EQ(GetRowSourceFields(main, "Orders", 1), "OrderID,Customer");
  EXPECT_EQ(GetRowSourceFields(main, "Orders", 2), "Customer,Date");
}

TEST_F(RowSourceFields, NothingBehindTheLastField) {
  EXPECT_EQ(GetRowSourceFields(main, "Orders", 3), "Date,");
}

TEST_F(RowSourceFields, NothingForANumberBeyondTheFields) {
  EXPECT_EQ(GetRowSourceFields(main, "Orders", 4), "");
}

TEST_F(RowSourceFields, ASourceWithoutFromIsANameWithItsBlanks) {
  EXPECT_EQ(GetRowSourceFields(main, "Order Details", 1), "OrderID,Customer");
}

TEST_F(RowSourceFields, ANameIsFoundInAnyCase) {
  EXPECT_EQ(GetRowSourceFields(main, "ORDERS", 1), "OrderID,Customer");
}

TEST_F(RowSourceFields, TheNameBehindFromEndsAtABlankASemicolonOrTheEnd) {
  for (const char* source : {"x FROM Orders WHERE y;", "x FROM Orders;", "x FROM Orders"})
    EXPECT_EQ(GetRowSourceFields(main, source, 1), "OrderID,Customer") << source;
}

TEST_F(RowSourceFields, ABlankBehindASemicolonMakesItPartOfTheName) {
  EXPECT_THROW(GetRowSourceFields(main, "x FROM Orders; y", 1), VbError);
}

TEST_F(RowSourceFields, FromInLowerCaseIsNotSeen) {
  EXPECT_THROW(GetRowSourceFields(main, "x from Orders", 1), VbError);
}

TEST_F(RowSourceFields, ASourceThatIsNoTableRaisesWhatDaoRaises) {
  try {
    GetRowSourceFields(main, "No Such Table", 1);
    FAIL();
  } catch (const VbError& error) {
    EXPECT_EQ(error.number(), 3265);
  }
}

}  // namespace
}  // namespace tarrowin::test
