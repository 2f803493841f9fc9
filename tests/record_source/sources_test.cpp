// Where fields come from: tables, saved queries, joins, subqueries, stars and duplicate names.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "order_schema.h"

namespace tarrowin {
namespace {

using testing::ElementsAre;

TEST(RecordSourceNames, TableGivesItsFields) {
  EXPECT_THAT(fieldsOf("Orders"),
              ElementsAre("OrderID 4 4 Orders", "CustomerID 10 5 Orders", "EmployeeID 4 4 Orders",
                          "OrderDate 8 8 Orders", "Freight 5 8 Orders"));
}

TEST(RecordSourceNames, NameInOtherCaseWithBlanksAroundOrInBrackets) {
  EXPECT_EQ(fieldsOf("  oRDER details\r\n"), fieldsOf("Order Details"));
  EXPECT_EQ(fieldsOf("[Order Details]"), fieldsOf("Order Details"));
}

TEST(RecordSourceNames, AccentedNameInOtherCase) {
  EXPECT_THAT(fieldsOf("STÄDTE"), ElementsAre("Ort 10 30 Städte", "Fläche 7 8 Städte"));
  EXPECT_THAT(fieldsOf("SELECT STÄDTE.FLÄCHE FROM städte"), ElementsAre("Fläche 7 8 Städte"));
}

TEST(RecordSourceNames, RecordedSourceTableOfATableIsKept) {
  EXPECT_THAT(fieldsOf("Linked"), ElementsAre("ID 4 4 Remote"));
  const OrderSchema schema;
  const auto fields = RecordSourceAnalyzer(schema).fieldsOf("SELECT ID AS Renamed FROM Linked");
  ASSERT_EQ(fields.size(), 1u);
  EXPECT_EQ(fields[0], (SourceField{"Renamed", 4, 4, "Remote", "RemoteID"}));
}

TEST(RecordSourceNames, QueryShowsBaseTables) {
  EXPECT_THAT(
      fieldsOf("Orders Qry"),
      ElementsAre("OrderID 4 4 Orders", "CustomerID 10 5 Orders", "EmployeeID 4 4 Orders",
                  "OrderDate 8 8 Orders", "Freight 5 8 Orders", "CompanyName 10 40 Customers"));
}

TEST(RecordSourceNames, QueryOnQueryShowsBaseTablesAndTypesOfComputedColumns) {
  EXPECT_THAT(
      fieldsOf("SELECT [Orders Qry].CompanyName, s.* FROM [Orders Qry] INNER JOIN "
               "[Order Subtotals] AS s ON [Orders Qry].OrderID = s.OrderID"),
      ElementsAre("CompanyName 10 40 Customers", "OrderID 4 4 Order Details", "Subtotal 5 8"));
}

TEST(RecordSourceNames, RecordedFieldsOfAQueryReplaceItsSql) {
  EXPECT_THAT(fieldsOf("SELECT OrderID, Total FROM Recorded", {"limit"}),
              ElementsAre("OrderID 4 4 Orders", "Total 5 8"));
}

TEST(RecordSourceSelect, StarGivesAllFieldsInOrder) {
  EXPECT_EQ(fieldsOf("SELECT * FROM Orders;"), fieldsOf("Orders"));
}

TEST(RecordSourceSelect, QualifiedStarAmongFields) {
  EXPECT_THAT(fieldsOf("select [Last Name], Städte.* from Employees, Städte"),
              ElementsAre("Last Name 10 20 Employees", "Ort 10 30 Städte", "Fläche 7 8 Städte"));
}

TEST(RecordSourceSelect, BracketedNamesWithDotOrExclamationMark) {
  EXPECT_THAT(fieldsOf("SELECT [Order Details].[UnitPrice], [Order Details]![Quantity], "
                       "Orders!Freight FROM [Order Details], Orders"),
              ElementsAre("UnitPrice 5 8 Order Details", "Quantity 3 2 Order Details",
                          "Freight 5 8 Orders"));
}

TEST(RecordSourceSelect, AliasOfAColumnKeepsItsOrigin) {
  EXPECT_THAT(fieldsOf("SELECT OrderID AS Number, Freight AS [The Freight] FROM Orders"),
              ElementsAre("Number 4 4 Orders", "The Freight 5 8 Orders"));
}

TEST(RecordSourceSelect, SourceAliasWithAndWithoutAs) {
  EXPECT_THAT(fieldsOf("SELECT o.OrderID, d.Quantity FROM Orders AS o, [Order Details] d"),
              ElementsAre("OrderID 4 4 Orders", "Quantity 3 2 Order Details"));
}

TEST(RecordSourceSelect, SelfJoinGivesTheTableNotItsAlias) {
  EXPECT_THAT(fieldsOf("SELECT e.[Last Name] AS Worker, b.[Last Name] AS Chief FROM Employees e "
                       "LEFT JOIN Employees AS b ON e.Boss = b.EmployeeID"),
              ElementsAre("Worker 10 20 Employees", "Chief 10 20 Employees"));
}

TEST(RecordSourceSelect, FieldNamedByAReservedWord) {
  EXPECT_THAT(fieldsOf("SELECT Employees.Order, [Order] AS [Select] FROM Employees "
                       "ORDER BY Employees.Order DESC"),
              ElementsAre("Order 3 2 Employees", "Select 3 2 Employees"));
}

TEST(RecordSourceSelect, DistinctRowAndTop) {
  const std::vector<std::string> expected = {"OrderID 4 4 Orders"};
  EXPECT_EQ(fieldsOf("SELECT DISTINCTROW OrderID FROM Orders"), expected);
  EXPECT_EQ(fieldsOf("SELECT DISTINCT OrderID FROM Orders"), expected);
  EXPECT_EQ(fieldsOf("SELECT ALL OrderID FROM Orders"), expected);
  EXPECT_EQ(fieldsOf("SELECT TOP 10 OrderID FROM Orders ORDER BY Freight DESC"), expected);
  EXPECT_EQ(fieldsOf("SELECT DISTINCT TOP 5 PERCENT Orders.OrderID FROM Orders"), expected);
}

TEST(RecordSourceSelect, WithOwnerAccessOption) {
  EXPECT_THAT(fieldsOf("SELECT OrderID FROM Orders ORDER BY Freight WITH OWNERACCESS OPTION;"),
              ElementsAre("OrderID 4 4 Orders"));
}

TEST(RecordSourceSelect, TableOfAnotherDatabaseIsTakenByItsName) {
  const std::vector<std::string> expected = {"OrderID 4 4 Orders"};
  EXPECT_EQ(fieldsOf("SELECT OrderID FROM Orders IN 'C:\\Data\\back.mdb'"), expected);
  EXPECT_EQ(fieldsOf("SELECT OrderID FROM Orders IN '' [dBase IV;DATABASE=C:\\D;] "
                     "WHERE Freight > 1"),
            expected);
  EXPECT_EQ(fieldsOf("SELECT OrderID FROM [C:\\back.mdb].Orders"), expected);
}

TEST(RecordSourceSelect, TableStatement) {
  EXPECT_EQ(fieldsOf("TABLE Orders;"), fieldsOf("Orders"));
}

TEST(RecordSourceSelect, SelectWithoutSource) {
  EXPECT_THAT(fieldsOf("SELECT 'x' AS A"), ElementsAre("A 10 255"));
}

TEST(RecordSourceJoins, InnerLeftAndRightWithOuter) {
  for (const char* join :
       {"INNER JOIN", "LEFT JOIN", "RIGHT JOIN", "LEFT OUTER JOIN", "right outer join", "JOIN"}) {
    EXPECT_THAT(fieldsOf(std::string("SELECT Orders.OrderID, CompanyName FROM Customers ") + join +
                         " Orders ON Customers.CustomerID = Orders.CustomerID"),
                ElementsAre("OrderID 4 4 Orders", "CompanyName 10 40 Customers"))
        << join;
  }
}

TEST(RecordSourceJoins, NestedParenthesesOnEitherSide) {
  const std::vector<std::string> expected = {
      "CompanyName 10 40 Customers", "Quantity 3 2 Order Details", "Last Name 10 20 Employees"};
  EXPECT_EQ(fieldsOf("SELECT Customers.CompanyName, [Order Details].Quantity, [Last Name] FROM "
                     "((Customers INNER JOIN Orders ON Customers.CustomerID = Orders.CustomerID) "
                     "LEFT JOIN [Order Details] ON Orders.OrderID = [Order Details].OrderID) "
                     "INNER JOIN Employees ON Orders.EmployeeID = Employees.EmployeeID"),
            expected);
  EXPECT_EQ(fieldsOf("SELECT CompanyName, Quantity, [Last Name] FROM Customers INNER JOIN "
                     "(Employees INNER JOIN (Orders INNER JOIN [Order Details] ON Orders.OrderID = "
                     "[Order Details].OrderID) ON Employees.EmployeeID = Orders.EmployeeID) "
                     "ON Customers.CustomerID = Orders.CustomerID"),
            expected);
}

TEST(RecordSourceJoins, SeveralConditionsAndAFunctionNamedLeft) {
  EXPECT_THAT(fieldsOf("SELECT OrderID FROM Orders LEFT JOIN Customers ON "
                       "(Left(Customers.CustomerID,3) = Left(Orders.CustomerID,3)) AND "
                       "(Customers.Active = True) WHERE Right(Country,1) = 'y'"),
              ElementsAre("OrderID 4 4 Orders"));
}

TEST(RecordSourceJoins, JoinsAndPlainListMixed) {
  EXPECT_THAT(fieldsOf("SELECT Ort, OrderID FROM Städte, Orders INNER JOIN Customers ON "
                       "Orders.CustomerID = Customers.CustomerID, Employees"),
              ElementsAre("Ort 10 30 Städte", "OrderID 4 4 Orders"));
}

TEST(RecordSourceDuplicates, BothAreNamedWithTheirTable) {
  EXPECT_THAT(fieldsOf("SELECT Orders.OrderID, [Order Details].OrderID, Quantity FROM Orders, "
                       "[Order Details]"),
              ElementsAre("Orders.OrderID 4 4 Orders", "Order Details.OrderID 4 4 Order Details",
                          "Quantity 3 2 Order Details"));
}

TEST(RecordSourceDuplicates, StarsNameWithTheAlias) {
  EXPECT_THAT(
      fieldsOf("SELECT o.*, c.* FROM Orders AS o, Customers AS c"),
      ElementsAre("OrderID 4 4 Orders", "o.CustomerID 10 5 Orders", "EmployeeID 4 4 Orders",
                  "OrderDate 8 8 Orders", "Freight 5 8 Orders", "c.CustomerID 10 5 Customers",
                  "CompanyName 10 40 Customers", "Country 10 15 Customers", "Notes 12 0 Customers",
                  "Active 1 1 Customers"));
}

TEST(RecordSourceDuplicates, QualifiedNameOfAQueryCanBeAskedFor) {
  EXPECT_THAT(fieldsOf("SELECT [Both].[Customers.CustomerID], [Orders.CustomerID] AS c, "
                       "Both.Orders.CustomerID AS d FROM [Both]"),
              ElementsAre("Customers.CustomerID 10 5 Customers", "c 10 5 Orders", "d 10 5 Orders"));
}

TEST(RecordSourceDuplicates, SameFieldTwiceIsNamedLikeAnExpression) {
  EXPECT_THAT(fieldsOf("SELECT Freight, OrderID, Freight FROM Orders"),
              ElementsAre("Freight 5 8 Orders", "OrderID 4 4 Orders", "Expr1002 5 8 Orders"));
}

TEST(RecordSourceDuplicates, AliasEqualToAFieldOfAnotherTable) {
  EXPECT_THAT(fieldsOf("SELECT Country AS Ort, Ort FROM Customers, Städte"),
              ElementsAre("Ort 10 15 Customers", "Städte.Ort 10 30 Städte"));
}

TEST(RecordSourceDuplicates, TwoEqualAliasesCannotBeResolved) {
  const std::string sql = "SELECT OrderID AS a, Freight AS A FROM Orders";
  EXPECT_EQ(errorOf(sql), unknown(sql));
}

TEST(RecordSourceSubqueries, InFromWithAlias) {
  EXPECT_THAT(
      fieldsOf("SELECT x.N, x.CustomerID FROM (SELECT CustomerID, Count(*) AS N FROM Orders "
               "GROUP BY CustomerID) AS x"),
      ElementsAre("N 4 4", "CustomerID 10 5 Orders"));
}

TEST(RecordSourceSubqueries, InSquareBracketsWithADot) {
  EXPECT_THAT(fieldsOf("SELECT x.Freight FROM [SELECT Freight FROM Orders]. AS x"),
              ElementsAre("Freight 5 8 Orders"));
  EXPECT_THAT(fieldsOf("SELECT * FROM [select [Last Name] from [Employees]]. AS x"),
              ElementsAre("Last Name 10 20 Employees"));
}

TEST(RecordSourceSubqueries, WithoutAlias) {
  EXPECT_THAT(fieldsOf("SELECT Freight FROM (SELECT Freight FROM Orders)"),
              ElementsAre("Freight 5 8 Orders"));
}

TEST(RecordSourceSubqueries, JoinedWithATable) {
  EXPECT_THAT(
      fieldsOf("SELECT c.CompanyName, t.Total FROM (SELECT CustomerID, Sum(Freight) AS Total "
               "FROM Orders GROUP BY CustomerID) AS t INNER JOIN Customers AS c ON "
               "t.CustomerID = c.CustomerID"),
      ElementsAre("CompanyName 10 40 Customers", "Total 5 8"));
}

TEST(RecordSourceSubqueries, InConditionsSeeTheOuterSelect) {
  EXPECT_THAT(fieldsOf("SELECT CompanyName FROM Customers AS c WHERE EXISTS (SELECT * FROM Orders "
                       "WHERE Orders.CustomerID = c.CustomerID) AND c.CustomerID IN (SELECT "
                       "CustomerID FROM Orders) AND c.CustomerID = ANY (SELECT CustomerID FROM "
                       "Orders WHERE Country = 'Peru') AND NOT EXISTS (SELECT 1 FROM Städte)"),
              ElementsAre("CompanyName 10 40 Customers"));
}

TEST(RecordSourceSubqueries, AsAColumnHasTheTypeOfItsColumn) {
  EXPECT_THAT(fieldsOf("SELECT CompanyName, (SELECT Max(OrderDate) FROM Orders WHERE "
                       "Orders.CustomerID = Customers.CustomerID) AS LastOrder FROM Customers"),
              ElementsAre("CompanyName 10 40 Customers", "LastOrder 8 8"));
}

TEST(RecordSourceUnions, NamesOfTheFirstSelectAndNoSourceTable) {
  EXPECT_THAT(
      fieldsOf("SELECT CompanyName, CustomerID FROM Customers UNION ALL SELECT [Last Name], "
               "EmployeeID FROM Employees ORDER BY CompanyName"),
      ElementsAre("CompanyName 10 40", "CustomerID 10 255"));
}

TEST(RecordSourceUnions, TypesTakeTheValuesOfAllBranches) {
  EXPECT_THAT(fieldsOf("SELECT Quantity AS a, NULL AS b, Country AS c, Country AS d, 1 AS e FROM "
                       "[Order Details], Customers UNION SELECT OrderID, Freight, Notes, "
                       "CustomerID, Null FROM (SELECT Orders.*, Notes FROM Orders, Customers)"),
              ElementsAre("a 4 4", "b 5 8", "c 12 0", "d 10 15", "e 3 2"));
}

TEST(RecordSourceUnions, SavedUnionAndParenthesisedBranches) {
  EXPECT_THAT(fieldsOf("SELECT FullName FROM Names"), ElementsAre("FullName 10 40"));
  EXPECT_THAT(fieldsOf("(SELECT OrderID FROM Orders) UNION (SELECT OrderID FROM [Order Details])"),
              ElementsAre("OrderID 4 4"));
  EXPECT_THAT(fieldsOf("TABLE Linked UNION ALL SELECT OrderID FROM Orders"), ElementsAre("ID 4 4"));
}

TEST(RecordSourceUnions, SemicolonAndOrderByBeforeUnion) {
  EXPECT_THAT(fieldsOf("SELECT OrderID AS o FROM Orders ORDER BY Freight; UNION ALL SELECT 0 AS o "
                       "FROM Employees ORDER BY Orders.OrderID;"),
              ElementsAre("o 4 4"));
}

TEST(RecordSourceUnions, BranchesOfDifferentWidth) {
  const std::string sql = "SELECT OrderID FROM Orders UNION SELECT OrderID, Freight FROM Orders";
  EXPECT_EQ(errorOf(sql), unknown(sql));
}

TEST(RecordSourceCrosstabs, RowHeadingsAndInList) {
  EXPECT_THAT(fieldsOf("Quarters"),
              ElementsAre("CustomerID 10 5 Orders", "N 4 4", "Qtr 1 5 8", "Qtr 2 5 8"));
}

TEST(RecordSourceCrosstabs, InListOfNumbersNamesAndDots) {
  EXPECT_THAT(fieldsOf("TRANSFORM Count(*) AS x SELECT CustomerID FROM Orders GROUP BY CustomerID "
                       "PIVOT Freight IN (1, Jan, \"a.b\", Null)"),
              ElementsAre("CustomerID 10 5 Orders", "1 4 4", "Jan 4 4", "a_b 4 4", "<> 4 4"));
}

TEST(RecordSourceCrosstabs, WithoutInListOnlyRowHeadings) {
  EXPECT_THAT(fieldsOf("Years"), ElementsAre("CustomerID 10 5 Orders"));
}

TEST(RecordSourceCrosstabs, HeadingsOfTheDataMayBeAskedFor) {
  EXPECT_THAT(fieldsOf("SELECT CustomerID, [1997], Years.[1998] AS Latest FROM Years"),
              ElementsAre("CustomerID 10 5 Orders", "Expr1001 4 4", "Latest 4 4"));
}

}  // namespace
}  // namespace tarrowin
