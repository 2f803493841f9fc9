// Names without a meaning are parameters: counted, declared, supplied, and told from bad sources.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "order_schema.h"
#include "shared/vb_error.h"

namespace tarrowin {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(Parameters, UnknownNameIsCounted) {
  EXPECT_EQ(errorOf("SELECT OrderID FROM Orders WHERE Freight > [Least freight]"), tooFew(1));
}

TEST(Parameters, SameNameCountsOnceInAnyCase) {
  EXPECT_EQ(errorOf("SELECT OrderID FROM Orders WHERE Freight > [a] AND Freight < [b]+[A]"),
            tooFew(2));
}

TEST(Parameters, MisspeltFieldOfATableIsAParameter) {
  EXPECT_EQ(errorOf("SELECT Orders.Fright FROM Orders"), tooFew(1));
}

TEST(Parameters, FormReferences) {
  const std::string sql =
      "SELECT OrderID FROM Orders WHERE CustomerID = [Forms]![frmMain]![cboCustomer] AND OrderDate "
      "> Forms!frmMain.txtFrom";
  EXPECT_EQ(errorOf(sql), tooFew(2));
  EXPECT_THAT(parametersOf(sql),
              ElementsAre("[Forms]![frmMain]![cboCustomer] 10", "Forms!frmMain.txtFrom 10"));
}

TEST(Parameters, SuppliedValuesAreMatchedWithoutBracketsAndCase) {
  const std::string sql =
      "SELECT OrderID FROM Orders WHERE CustomerID = [Forms]![frmMain]![cboCustomer] AND Freight > "
      "[Least]";
  EXPECT_EQ(errorOf(sql, {"least"}), tooFew(1));
  EXPECT_THAT(fieldsOf(sql, {" [Least] ", "forms!FRMMAIN!cboCustomer"}),
              ElementsAre("OrderID 4 4 Orders"));
}

TEST(Parameters, AllParametersMayBeTakenAsSupplied) {
  const OrderSchema schema;
  RecordSourceAnalyzer analyzer(schema);
  EXPECT_THAT(shown(analyzer.fieldsWithParameters("By Date")), ElementsAre("OrderID 4 4 Orders"));
  EXPECT_THROW(analyzer.fieldsWithParameters("Nowhere"), VbError);
}

TEST(Parameters, DeclaredOnesCountEvenUnused) {
  const std::string sql =
      "PARAMETERS [From] DateTime, N Long, [Forms]![f]![t] Text ( 255 ), v Value; "
      "SELECT OrderID, [From] AS f FROM Orders";
  EXPECT_EQ(errorOf(sql), tooFew(4));
  EXPECT_THAT(parametersOf(sql), ElementsAre("From 8", "N 4", "[Forms]![f]![t] 10", "v 10"));
  EXPECT_THAT(fieldsOf(sql, {"from", "n", "Forms!f!t", "v"}),
              ElementsAre("OrderID 4 4 Orders", "f 8 8"));
}

TEST(Parameters, SavedQueryBringsItsOwn) {
  EXPECT_EQ(errorOf("By Date"), tooFew(1));
  EXPECT_EQ(errorOf("Asks"), tooFew(1));
  EXPECT_EQ(errorOf("SELECT [By Date].* FROM [By Date], Asks WHERE [x] = 1"), tooFew(3));
  EXPECT_THAT(parametersOf("SELECT [By Date].* FROM [By Date], Asks WHERE [x] = 1"),
              ElementsAre("Start Date 8", "Which customer? 10", "x 10"));
  EXPECT_EQ(errorOf("Recorded"), tooFew(1));
}

TEST(Parameters, InSubqueriesAndUnions) {
  EXPECT_EQ(errorOf("SELECT OrderID FROM (SELECT * FROM Orders WHERE Freight > [p])"), tooFew(1));
  EXPECT_EQ(errorOf("SELECT OrderID FROM Orders WHERE OrderID IN (SELECT OrderID FROM "
                    "[Order Details] WHERE Quantity > [q])"),
            tooFew(1));
  EXPECT_EQ(errorOf("SELECT OrderID FROM Orders UNION SELECT [r] FROM Orders ORDER BY [s]"),
            tooFew(2));
}

TEST(Parameters, AliasInWhereIsOneAndInOrderByIsNot) {
  EXPECT_EQ(errorOf("SELECT Freight*2 AS d FROM Orders WHERE d > 1"), tooFew(1));
  EXPECT_EQ(errorOf("SELECT Freight*2 AS d FROM Orders ORDER BY d"), "none");
}

TEST(Parameters, TextsFunctionsAndConstantsAreNone) {
  EXPECT_THAT(
      parametersOf("SELECT OrderID FROM Orders WHERE CustomerID = \"x\" OR Foo(1) = True OR "
                   "Freight = No OR OrderDate Is Null"),
      IsEmpty());
}

TEST(Parameters, UnknownTableComesBeforeMissingParameters) {
  EXPECT_EQ(errorOf("SELECT [p] FROM Nowhere"), unknown("Nowhere"));
}

TEST(UnknownSources, EmptySource) {
  EXPECT_EQ(errorOf(""), unknown(""));
  EXPECT_EQ(errorOf(" \r\n"), unknown(" \r\n"));
}

TEST(UnknownSources, NameOfNothing) {
  EXPECT_EQ(errorOf("Nowhere"), unknown("Nowhere"));
  EXPECT_EQ(errorOf("[No Where]"), unknown("[No Where]"));
  EXPECT_EQ(errorOf("SELECT * FROM [No Where]"), unknown("No Where"));
  EXPECT_EQ(errorOf("SELECT * FROM Orders INNER JOIN Nowhere ON 1=1"), unknown("Nowhere"));
  EXPECT_EQ(errorOf("SELECT * FROM Orders WHERE 1 IN (SELECT 1 FROM Nowhere)"), unknown("Nowhere"));
}

TEST(UnknownSources, TableMissingBelowAQuery) {
  EXPECT_EQ(errorOf("SELECT * FROM Misses"), unknown("Nowhere"));
}

TEST(UnknownSources, MalformedQueryIsNamed) {
  EXPECT_EQ(errorOf("SELECT * FROM Broken"), unknown("Broken"));
  EXPECT_EQ(errorOf("Broken"), unknown("Broken"));
}

TEST(UnknownSources, QueriesThatRestOnEachOther) {
  EXPECT_EQ(errorOf("Cycle A"), unknown("Cycle A"));
  EXPECT_EQ(errorOf("SELECT * FROM [Cycle B]"), unknown("Cycle B"));
}

TEST(UnknownSources, AmbiguousName) {
  const std::string sql = "SELECT OrderID FROM Orders, [Order Details]";
  EXPECT_EQ(errorOf(sql), unknown(sql));
}

TEST(UnknownSources, ActionQueries) {
  const std::string invalid = "3219 Invalid operation.";
  for (const char* sql :
       {"Append", "DELETE * FROM Orders", "UPDATE Orders SET Freight = 1",
        "INSERT INTO Orders (OrderID) VALUES (1)", "SELECT * INTO Copy FROM Orders",
        "CREATE TABLE t (a LONG)", "DROP TABLE Orders",
        "PARAMETERS p Long; DELETE FROM Orders WHERE OrderID = p"}) {
    EXPECT_EQ(errorOf(sql), invalid) << sql;
  }
  EXPECT_EQ(errorOf("SELECT * FROM Append"), unknown("Append"));
}

TEST(Answers, AreKeptAndNamesAreLookedUpOnce) {
  const OrderSchema schema;
  RecordSourceAnalyzer analyzer(schema);
  const auto first = analyzer.fieldsOf("SELECT * FROM [Orders Qry]");
  EXPECT_EQ(schema.found(), 3);  // the query and its two tables
  EXPECT_EQ(analyzer.fieldsOf("SELECT * FROM [Orders Qry]"), first);
  analyzer.fieldsOf("SELECT OrderID FROM Orders, Customers");
  analyzer.fieldsOf("orders qry");
  EXPECT_EQ(schema.found(), 3);
}

TEST(Answers, AnErrorDoesNotSpoilTheNextAnswer) {
  const OrderSchema schema;
  RecordSourceAnalyzer analyzer(schema);
  for (int i = 0; i < 2; ++i) {
    EXPECT_THROW(analyzer.fieldsOf("Cycle A"), VbError);
    EXPECT_THROW(analyzer.fieldsOf("SELECT * FROM [Cycle B]"), VbError);
    EXPECT_THROW(analyzer.fieldsOf("SELECT * FROM Orders WHERE ((("), VbError);
    EXPECT_EQ(analyzer.fieldsOf("Orders").size(), 5u);
    EXPECT_EQ(analyzer.fieldsOf("SELECT * FROM Names").size(), 1u);
  }
}

}  // namespace
}  // namespace tarrowin
