// Computed columns: their names, their types, and the syntax that Access has of its own.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "order_schema.h"

namespace tarrowin {
namespace {

using testing::ElementsAre;

// "Type Size" of an expression over all tables but Linked, which has to be a computed column.
std::string typeOf(const std::string& expression) {
  const std::vector<std::string> fields = fieldsOf(
      "SELECT " + expression + " AS v FROM Customers, Orders, [Order Details], Employees, Städte");
  return fields.size() == 1 && fields[0].starts_with("v ") ? fields[0].substr(2) : "several fields";
}

constexpr const char* kBoolean = "1 1";
constexpr const char* kInteger = "3 2";
constexpr const char* kLong = "4 4";
constexpr const char* kCurrency = "5 8";
constexpr const char* kDouble = "7 8";
constexpr const char* kDate = "8 8";
constexpr const char* kText = "10 255";
constexpr const char* kMemo = "12 0";

TEST(ComputedNames, NumberedByTheirPlaceInTheList) {
  EXPECT_THAT(fieldsOf("SELECT Freight*2, OrderID, Freight+1 FROM Orders"),
              ElementsAre("Expr1000 5 8", "OrderID 4 4 Orders", "Expr1002 5 8"));
}

TEST(ComputedNames, ParenthesisedColumnIsComputed) {
  EXPECT_THAT(fieldsOf("SELECT (OrderID) FROM Orders"), ElementsAre("Expr1000 4 4"));
}

TEST(ComputedNames, LaterColumnsMayUseAnAlias) {
  EXPECT_THAT(fieldsOf("SELECT Quantity*UnitPrice AS Gross, Gross*0.8 AS Net, Net > 1 AS Big, Big "
                       "FROM [Order Details] ORDER BY Net"),
              ElementsAre("Gross 5 8", "Net 7 8", "Big 1 1", "Expr1003 1 1"));
}

TEST(ComputedNames, AliasThatMeansItself) {
  const std::string sql = "SELECT b AS a, a AS b FROM Orders";
  EXPECT_EQ(errorOf(sql), unknown(sql));
}

TEST(ComputedTypes, Literals) {
  EXPECT_EQ(typeOf("12"), kInteger);
  EXPECT_EQ(typeOf("32768"), kLong);
  EXPECT_EQ(typeOf("2147483648"), kDouble);
  EXPECT_EQ(typeOf("99999999999999999999"), kDouble);
  EXPECT_EQ(typeOf("1.5"), kDouble);
  EXPECT_EQ(typeOf(".5"), kDouble);
  EXPECT_EQ(typeOf("1E-3"), kDouble);
  EXPECT_EQ(typeOf("&HFF"), kLong);
  EXPECT_EQ(typeOf("'it''s'"), kText);
  EXPECT_EQ(typeOf("\"a \"\"quoted\"\" [word\""), kText);
  EXPECT_EQ(typeOf("#1/31/1999#"), kDate);
  EXPECT_EQ(typeOf("{guid {00000000-0000-0000-0000-000000000000}}"), "15 16");
  EXPECT_EQ(typeOf("Null"), kText);
  EXPECT_EQ(typeOf("True"), kBoolean);
  EXPECT_EQ(typeOf("No"), kBoolean);
}

TEST(ComputedTypes, Arithmetic) {
  EXPECT_EQ(typeOf("Quantity+1"), kInteger);
  EXPECT_EQ(typeOf("Quantity*ProductID"), kLong);
  EXPECT_EQ(typeOf("Freight*Quantity"), kCurrency);
  EXPECT_EQ(typeOf("Freight*(1-Discount)"), kDouble);
  EXPECT_EQ(typeOf("Discount*Quantity"), "6 4");
  EXPECT_EQ(typeOf("Discount*ProductID"), kDouble);
  EXPECT_EQ(typeOf("Quantity/2"), kDouble);
  EXPECT_EQ(typeOf("Quantity^2"), kDouble);
  EXPECT_EQ(typeOf("2^-1"), kDouble);
  EXPECT_EQ(typeOf("Freight\\3"), kLong);
  EXPECT_EQ(typeOf("Freight Mod 3"), kLong);
  EXPECT_EQ(typeOf("-Active"), kInteger);
  EXPECT_EQ(typeOf("-Freight"), kCurrency);
  EXPECT_EQ(typeOf("Country*2"), kDouble);
}

TEST(ComputedTypes, DatesAndNumbers) {
  EXPECT_EQ(typeOf("OrderDate+30"), kDate);
  EXPECT_EQ(typeOf("OrderDate-OrderDate"), kDouble);
  EXPECT_EQ(typeOf("Date()-OrderDate"), kDouble);
}

TEST(ComputedTypes, Texts) {
  EXPECT_EQ(typeOf("Country & ', ' & OrderDate"), kText);
  EXPECT_EQ(typeOf("Country+CompanyName"), kText);
  EXPECT_EQ(typeOf("Notes & 1"), kMemo);
}

TEST(ComputedTypes, Comparisons) {
  for (const char* comparison : {"Freight > 1",
                                 "Freight >= 1 And Freight <= 2",
                                 "Freight <> 1",
                                 "Freight => 1",
                                 "Country Like 'A*'",
                                 "Country Not Like \"[a-c]?#*\"",
                                 "Country ALike 'A%'",
                                 "Freight Between 1 And 2",
                                 "Freight Not Between -1 And +2 Or Active",
                                 "Country In ('a','b')",
                                 "Country Not In (\"a\")",
                                 "Country Is Null",
                                 "Country Is Not Null",
                                 "Not Active",
                                 "Active Xor True",
                                 "Active Eqv Yes",
                                 "Active Imp Off",
                                 "Exists (SELECT * FROM Linked)",
                                 "Freight < All (SELECT ID FROM Linked)",
                                 "(Country = 'a') = (Active = True)",
                                 "Country = Not Active"}) {
    EXPECT_EQ(typeOf(comparison), kBoolean) << comparison;
  }
}

TEST(ComputedTypes, Aggregates) {
  EXPECT_EQ(typeOf("Count(*)"), kLong);
  EXPECT_EQ(typeOf("Count([Country])"), kLong);
  EXPECT_EQ(typeOf("Sum(Quantity)"), kDouble);
  EXPECT_EQ(typeOf("Sum(Freight)"), kCurrency);
  EXPECT_EQ(typeOf("Avg(Quantity)"), kDouble);
  EXPECT_EQ(typeOf("Min(OrderDate)"), kDate);
  EXPECT_EQ(typeOf("First(Country)"), kText);
  EXPECT_EQ(typeOf("Last(Freight)"), kCurrency);
  EXPECT_EQ(typeOf("StDev(Quantity)"), kDouble);
  EXPECT_EQ(typeOf("VarP(Quantity)+StDevP(Quantity)+Var(Quantity)"), kDouble);
  EXPECT_EQ(typeOf("Max(Freight)-Min(Freight)"), kCurrency);
}

TEST(ComputedTypes, Functions) {
  EXPECT_EQ(typeOf("Left$(Country,2)"), kText);
  EXPECT_EQ(typeOf("Mid(Country,2)"), kText);
  EXPECT_EQ(typeOf("Format(OrderDate,\"yyyy\")"), kText);
  EXPECT_EQ(typeOf("CStr(Freight)"), kText);
  EXPECT_EQ(typeOf("DateSerial(Year(OrderDate),1,1)"), kDate);
  EXPECT_EQ(typeOf("Now()"), kDate);
  EXPECT_EQ(typeOf("Month(OrderDate)"), kInteger);
  EXPECT_EQ(typeOf("Val(Country)"), kDouble);
  EXPECT_EQ(typeOf("DateDiff('d',OrderDate,Date())"), kLong);
  EXPECT_EQ(typeOf("IsNull(Country)"), kBoolean);
  EXPECT_EQ(typeOf("Nz(Freight,0)"), kCurrency);
  EXPECT_EQ(typeOf("IIf(Active,Freight,Null)"), kCurrency);
  EXPECT_EQ(typeOf("IIf(Active,1,'one')"), kText);
  EXPECT_EQ(typeOf("IIf(Active,Quantity,OrderDate) & ''"), kText);
  EXPECT_EQ(typeOf("Choose(Quantity,OrderDate,Date())"), kDate);
  EXPECT_EQ(typeOf("Switch(Active,1,True,70000)"), kLong);
  EXPECT_EQ(typeOf("DLookup(\"[Ort]\",\"Städte\",\"Ort='\" & [Country] & \"'\")"), kText);
  EXPECT_EQ(typeOf("DCount('*','Orders')"), kLong);
}

TEST(ComputedTypes, UnknownFunctionsAreAccepted) {
  EXPECT_EQ(typeOf("MyOwnFunction(Country, , 2)"), kText);
  EXPECT_EQ(typeOf("[My Function]()"), kText);
  EXPECT_EQ(typeOf("basUtil.Shorten([Last Name])"), kText);
  EXPECT_EQ(typeOf("Forms('frmMain')!txtFrom"), kText);
  std::string many = "F(1";
  for (int i = 0; i < 300; ++i) many += "," + std::to_string(i);
  EXPECT_EQ(typeOf(many + ")"), kText);
}

TEST(ComputedTypes, DeeplyNestedIIf) {
  std::string nested = "0";
  for (int i = 0; i < 40; ++i) nested = "IIf(Freight>1," + nested + ",Quantity)";
  EXPECT_EQ(typeOf(nested), kInteger);
}

TEST(Clauses, GroupByHavingOrderBy) {
  EXPECT_THAT(fieldsOf("SELECT Country, Year(OrderDate) AS Y, Count(OrderID) AS N, Sum(Freight) AS "
                       "[Sum Of Freight] FROM Customers INNER JOIN Orders ON Customers.CustomerID "
                       "= Orders.CustomerID WHERE Active = True GROUP BY Country, Year(OrderDate) "
                       "HAVING Count(OrderID) > 3 AND Country <> '' ORDER BY Country, 2 DESC"),
              ElementsAre("Country 10 15 Customers", "Y 3 2", "N 4 4", "Sum Of Freight 5 8"));
}

TEST(Clauses, TextsHoldWhatLooksLikeSyntax) {
  EXPECT_THAT(fieldsOf("SELECT OrderID FROM Orders WHERE CustomerID = ') FROM x; ]' OR "
                       "CustomerID = \"#'[UNION SELECT\""),
              ElementsAre("OrderID 4 4 Orders"));
}

TEST(Clauses, MalformedTexts) {
  for (const char* sql :
       {"SELECT",
        "SELECT FROM Orders",
        "SELECT * FROM",
        "SELECT * Orders",
        "SELECT OrderID, FROM Orders",
        "SELECT OrderID FROM Orders WHERE",
        "SELECT OrderID FROM Orders WHERE AND",
        "SELECT OrderID FROM Orders WHERE OrderID =",
        "SELECT OrderID FROM Orders WHERE (OrderID = 1",
        "SELECT OrderID FROM Orders)",
        "SELECT OrderID FROM Orders WHERE OrderID = 1 2",
        "SELECT [OrderID FROM Orders",
        "SELECT OrderID FROM Orders WHERE CustomerID = 'a",
        "SELECT #1/1/99 FROM Orders",
        "SELECT OrderID FROM Orders INNER JOIN Customers",
        "SELECT OrderID FROM Orders ON 1 = 1",
        "SELECT OrderID FROM Orders GROUP OrderID",
        "SELECT OrderID FROM Orders ORDER BY",
        "SELECT OrderID FROM Orders ORDER BY DESC",
        "SELECT OrderID AS FROM Orders",
        "SELECT OrderID FROM Orders; SELECT 1",
        "SELECT OrderID FROM Orders UNION",
        "SELECT Customers.* FROM Orders",
        "SELECT * FROM Orders, Orders",
        "SELECT {guid FROM Orders",
        "SELECT ? FROM Orders",
        "SELECT OrderID FROM Orders WHERE Count(*) > 1",
        "SELECT Sum(Max(OrderID)) FROM Orders",
        "SELECT Sum(OrderID, Freight) FROM Orders",
        "SELECT OrderID FROM Orders ORDER BY 2",
        "SELECT OrderID FROM Orders WHERE Freight Is 1",
        "SELECT [ ] FROM Orders",
        "TRANSFORM Sum(Freight) SELECT CustomerID FROM Orders GROUP BY CustomerID",
        "PARAMETERS SELECT OrderID FROM Orders",
        "SELECT * FROM Orders WITH OWNERACCESS"}) {
    EXPECT_EQ(errorOf(sql), unknown(sql)) << sql;
  }
}

}  // namespace
}  // namespace tarrowin
