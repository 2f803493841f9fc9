// DAO over a recording: collections, queries, fields, recordsets, relations.
#include "access/access_fixture.h"

namespace tarrowin {
namespace {

constexpr std::string_view kOrders = R"({
  "snapshot": 1,
  "database": {"name": "Orders.mdb", "version": "4.0",
    "properties": {"AccessVersion": "08.50", "StartUpForm": "Form.frmMain", "Bad": {"error": 2186}}},
  "tables": [
    {"name": "Orders", "fields": [{"name": "OrderID", "type": 4, "size": 4},
                                   {"name": "Note", "type": 12}],
     "rows": [[1, "first"], [2], [3, {"error": 3197}]]},
    {"name": "orders", "fields": [{"name": "Other", "type": 10, "size": 50}]},
    {"name": "Orders1", "fields": [{"name": "OrderID", "type": 4}, {"name": "Note", "type": 12}],
     "rows": [[1, "first"], [2], [3, "third"]]},
    {"name": "View", "fields": [{"name": "X", "type": 4, "sourceTable": "Orders"}]}],
  "queries": [
    {"name": "Big Orders", "sql": "SELECT * FROM Orders;\r\n",
     "parameters": [{"name": "Start Date", "type": 8}],
     "fields": [{"name": "OrderID", "type": 4, "size": 4, "sourceTable": "Orders"}]},
    {"name": "Locked", "sql": {"error": 2601}, "fields": [], "recordsetError": 2601},
    {"name": "Odd", "sql": {"error": 3258, "description": "Ambiguous."}},
    {"name": "Remarks", "sql": "SELECT Note AS Remark FROM Orders1;\r\n"},
    {"name": "Remarks 2", "sql": "SELECT Remark AS Again FROM Remarks;\r\n"},
    {"name": "Recorded Remarks", "sql": "SELECT Note FROM Orders1;",
     "fields": [{"name": "Note", "type": 12, "sourceTable": "Orders1"}]},
    {"name": "Free", "sql": "SELECT OrderID FROM Orders WHERE OrderID = [Which]"}],
  "recordsets": [
    {"source": "SELECT 1", "fields": [{"name": "Recorded", "type": 4, "size": 4}]},
    {"source": "SELECT * FROM Orders WHERE X = [p]", "error": 3061},
    {"source": "SELECT Note FROM Orders1 ",
     "fields": [{"name": "Note", "type": 12, "sourceTable": "Orders1"}]},
    {"source": "SELECT 2", "error": 3078, "description": "Gone."},
    {"source": "SELECT 3", "error": {"error": 3112, "description": "Denied."}}],
  "relations": [{"name": "CustomersOrders", "table": "Customers", "foreignTable": "Orders",
                 "fields": [{"name": "CustomerID", "foreignName": "CustID"}]}],
  "forms": [{"name": "frmB"}, {"name": "frmA"}], "reports": [{"name": "rptSales"}],
  "macros": [{"name": "AutoExec"}], "modules": [{"name": "Utilities"}]
})";

class DaoTest : public AccessTest {
 protected:
  DaoTest() { openRecording(kOrders); }
  ObjectRef open(const std::string& source) {
    return toObject(call(database, "OpenRecordset", {source, 2}));
  }
  // The field in the first row of the source.
  std::string firstText(const std::string& source, const char* field) {
    return text(child(open(source), "Fields", {field}), "Value");
  }
};

TEST_F(DaoTest, DatabaseProperties) {
  const ObjectRef properties = child(database, "Properties");
  EXPECT_EQ(number(properties, "Count"), 3);
  EXPECT_EQ(text(item(properties, "accessversion"), "Value"), "08.50");
  EXPECT_EQ(text(item(properties, 1), "Name"), "StartUpForm");
  EXPECT_EQ(toText(get(item(properties, 1), "")), "Form.frmMain");
  EXPECT_EQ(errorOf([&] { get(item(properties, "Bad"), "Value"); }), 2186);
  EXPECT_EQ(errorOf([&] { item(properties, "Missing"); }), 3270);
  EXPECT_EQ(errorOf([&] { item(properties, 3); }), 3265);
  EXPECT_EQ(errorOf([&] { get(database, "Properties", {"Missing"}); }), 3270);
}

TEST_F(DaoTest, MembersThatDaoLacksRaise438) {
  EXPECT_EQ(errorOf([&] { get(database, "Nonsense"); }), 438);
  EXPECT_EQ(errorOf([&] { get(item(child(database, "QueryDefs"), 0), "Nonsense"); }), 438);
  EXPECT_EQ(errorOf([&] { call(child(database, "QueryDefs"), "Nonsense"); }), 438);
}

TEST_F(DaoTest, LookUpIgnoresCaseAnExactMatchFirst) {
  const ObjectRef tables = child(database, "TableDefs");
  EXPECT_EQ(text(item(tables, "Orders"), "Name"), "Orders");
  EXPECT_EQ(text(item(tables, "orders"), "Name"), "orders");
  EXPECT_EQ(text(item(tables, "ORDERS"), "Name"), "Orders");  // the first of the others
  EXPECT_EQ(errorOf([&] { item(tables, "Nothing"); }), 3265);
  EXPECT_EQ(errorOf([&] { item(tables, 4); }), 3265);
  EXPECT_EQ(errorOf([&] { item(tables, -1); }), 3265);
  EXPECT_EQ(errorOf([&] { item(tables, Value::Null{}); }), 94);
  call(tables, "Refresh");
}

TEST_F(DaoTest, FieldsOfATable) {
  const ObjectRef fields = child(child(database, "TableDefs", {"View"}), "Fields");
  EXPECT_EQ(number(fields, "Count"), 1);
  EXPECT_EQ(text(item(fields, "x"), "SourceTable"), "Orders");
  const ObjectRef own = child(child(database, "TableDefs", {"Orders"}), "Fields", {"note"});
  EXPECT_EQ(number(own, "Type"), 12);
  EXPECT_EQ(number(own, "Size"), 0);
  EXPECT_EQ(text(own, "SourceTable"), "Orders");
  EXPECT_EQ(errorOf([&] { item(fields, "y"); }), 3265);
  EXPECT_EQ(errorOf([&] { get(own, "Value"); }), 3219);
}

TEST_F(DaoTest, Query) {
  const ObjectRef query = item(child(database, "QueryDefs"), "big orders");
  EXPECT_EQ(text(query, "Name"), "Big Orders");
  EXPECT_EQ(text(query, "SQL"), "SELECT * FROM Orders;\r\n");
  EXPECT_EQ(number(child(query, "Parameters"), "Count"), 1);
  const ObjectRef parameter = child(query, "Parameters", {"start date"});
  EXPECT_EQ(number(parameter, "Type"), 8);
  EXPECT_TRUE(get(parameter, "Value").isNull());
  parameter->put("Value", Date{36526});
  EXPECT_EQ(get(child(query, "Parameters", {0}), "Value"), Value(Date{36526}));
  EXPECT_EQ(errorOf([&] { get(query, "Parameters", {"None"}); }), 3265);
  EXPECT_EQ(text(child(query, "Fields", {0}), "SourceTable"), "Orders");
  const ObjectRef recordset = toObject(call(query, "OpenRecordset"));
  EXPECT_EQ(number(child(recordset, "Fields"), "Count"), 1);
  call(query, "Close");
}

TEST_F(DaoTest, SqlOfAQueryMayRaise) {
  const ObjectRef queries = child(database, "QueryDefs");
  EXPECT_EQ(errorOf([&] { get(item(queries, "Locked"), "SQL"); }), 2601);
  EXPECT_EQ(descriptionOf([&] { get(item(queries, "Locked"), "SQL"); }),
            "You don't have permission to read 'Locked'.");
  EXPECT_EQ(descriptionOf([&] { get(item(queries, "Odd"), "SQL"); }), "Ambiguous.");
  EXPECT_EQ(errorOf([&] { call(item(queries, "Locked"), "OpenRecordset"); }), 2601);
  EXPECT_EQ(errorOf([&] { call(item(queries, "Odd"), "OpenRecordset"); }), 3258);
  EXPECT_EQ(errorOf([&] { call(item(queries, "Odd"), "Nonsense"); }), 438);
}

TEST_F(DaoTest, ValuePutIntoAParameterSatisfiesTheQuery) {
  const ObjectRef query = item(child(database, "QueryDefs"), "Free");
  EXPECT_EQ(number(child(query, "Parameters"), "Count"), 1);
  EXPECT_EQ(errorOf([&] { call(query, "OpenRecordset"); }), 3061);
  EXPECT_EQ(errorOf([&] { open("Free"); }), 3061);
  EXPECT_EQ(text(child(query, "Fields", {0}), "Name"), "OrderID");
  child(query, "Parameters", {"Which"})->put("Value", 1);
  const ObjectRef recordset = toObject(call(query, "OpenRecordset"));
  EXPECT_EQ(text(child(recordset, "Fields", {0}), "SourceTable"), "Orders");
}

TEST_F(DaoTest, RecordedSourceComesFirst) {
  EXPECT_EQ(text(child(open("SELECT 1"), "Fields", {0}), "Name"), "Recorded");
  EXPECT_EQ(errorOf([&] { open("SELECT * FROM Orders WHERE X = [p]"); }), 3061);
  EXPECT_EQ(descriptionOf([&] { open("SELECT 2"); }), "Gone.");
  EXPECT_EQ(descriptionOf([&] { open("SELECT 3"); }), "Denied.");
}

TEST_F(DaoTest, RecordsetOnATableOrQueryByName) {
  EXPECT_EQ(text(child(open("ORDERS"), "Fields", {0}), "SourceTable"), "Orders");
  EXPECT_EQ(text(child(open("big orders"), "Fields", {0}), "Name"), "OrderID");
  EXPECT_EQ(errorOf([&] { open("Locked"); }), 2601);
}

TEST_F(DaoTest, RecordsetOnUnrecordedSqlIsAnalysed) {
  const ObjectRef fields = child(open("SELECT OrderID, 1+1 AS Two FROM Orders"), "Fields");
  EXPECT_EQ(number(fields, "Count"), 2);
  EXPECT_EQ(text(item(fields, 0), "SourceTable"), "Orders");
  EXPECT_EQ(text(item(fields, 1), "SourceTable"), "");
  EXPECT_EQ(errorOf([&] { open("Nothing"); }), 3078);
  EXPECT_EQ(errorOf([&] { open("SELECT OrderID FROM Orders WHERE OrderID = [p]"); }), 3061);
}

TEST_F(DaoTest, RecordsetWalksTheRowsOfATable) {
  const ObjectRef rows = open("Orders");
  const ObjectRef id = child(rows, "Fields", {"OrderID"});
  const ObjectRef note = item(rows, "Note");  // the default member
  EXPECT_FALSE(toBoolean(get(rows, "EOF")));
  EXPECT_FALSE(toBoolean(get(rows, "BOF")));
  EXPECT_EQ(number(id, "Value"), 1);
  EXPECT_EQ(text(note, ""), "first");
  call(rows, "MoveNext");
  EXPECT_EQ(number(id, "Value"), 2);
  EXPECT_TRUE(get(note, "Value").isNull());  // the row is short
  call(rows, "MoveNext");
  EXPECT_EQ(errorOf([&] { get(note, "Value"); }), 3197);
  call(rows, "MoveNext");
  EXPECT_TRUE(toBoolean(get(rows, "EOF")));
  EXPECT_EQ(errorOf([&] { get(id, "Value"); }), 3021);
  EXPECT_EQ(errorOf([&] { call(rows, "MoveNext"); }), 3021);
  call(rows, "MoveFirst");
  EXPECT_EQ(number(id, "Value"), 1);
  call(rows, "Close");
  EXPECT_EQ(errorOf([&] { get(rows, "EOF"); }), 3420);
  EXPECT_EQ(errorOf([&] { get(id, "Name"); }), 3420);
  EXPECT_EQ(errorOf([&] { call(rows, "Close"); }), 3420);
  EXPECT_EQ(descriptionOf([&] { get(rows, "EOF"); }), "Object invalid or no longer set.");
}

TEST_F(DaoTest, RecordsetWithoutKnownRowsIsAtItsEnd) {
  const ObjectRef rows = open("View");
  EXPECT_TRUE(toBoolean(get(rows, "EOF")));
  EXPECT_TRUE(toBoolean(get(rows, "BOF")));
  EXPECT_EQ(errorOf([&] { get(child(rows, "Fields", {0}), "Value"); }), 3021);
  EXPECT_EQ(errorOf([&] { call(rows, "MoveFirst"); }), 3021);
}

TEST_F(DaoTest, PlainSelectWalksTheRowsOfItsTable) {
  const ObjectRef rows = open("SELECT Note AS Remark, OrderID FROM orders1");
  const ObjectRef id = child(rows, "Fields", {"OrderID"});
  const ObjectRef remark = child(rows, "Fields", {"remark"});
  EXPECT_EQ(number(id, "Value"), 1);
  EXPECT_EQ(text(remark, "Value"), "first");
  call(rows, "MoveNext");
  EXPECT_EQ(number(id, "Value"), 2);
  EXPECT_TRUE(get(remark, "Value").isNull());
  call(rows, "MoveNext");
  call(rows, "MoveNext");
  EXPECT_TRUE(toBoolean(get(rows, "EOF")));
  EXPECT_EQ(firstText("SELECT * FROM Orders1", "Note"), "first");
}

TEST_F(DaoTest, QueryOnQueryWalksTheRowsOfTheTable) {
  EXPECT_EQ(firstText("Remarks", "Remark"), "first");
  EXPECT_EQ(firstText("Remarks 2", "Again"), "first");
  EXPECT_EQ(firstText("SELECT Again FROM [Remarks 2]", "Again"), "first");
  EXPECT_EQ(firstText("Recorded Remarks", "Note"), "first");
  EXPECT_EQ(firstText("SELECT Note FROM Orders1 ", "Note"), "first");  // a recorded source
}

TEST_F(DaoTest, ComputedFieldIsNotKnown) {
  const ObjectRef rows = open("SELECT OrderID, 1+1 AS Two FROM Orders1");
  EXPECT_EQ(number(child(rows, "Fields", {"OrderID"}), "Value"), 1);
  EXPECT_EQ(errorOf([&] { get(child(rows, "Fields", {"Two"}), "Value"); }),
            static_cast<std::int32_t>(0x80004001u));
}

TEST_F(DaoTest, SelectThatDoesMoreHasNoKnownRows) {
  for (const char* source :
       {"SELECT OrderID FROM Orders1 WHERE OrderID = 3",
        "SELECT OrderID FROM Orders1 ORDER BY Note", "SELECT DISTINCT OrderID FROM Orders1",
        "SELECT Orders1.OrderID FROM Orders1, View", "SELECT OrderID FROM Orders1 GROUP BY OrderID",
        "SELECT Count(*) AS N FROM Orders1",
        "SELECT OrderID FROM Orders1 UNION SELECT OrderID FROM Orders1",
        "SELECT OrderID FROM Orders1 IN 'other.mdb'", "SELECT X FROM View",
        "SELECT OrderID FROM (SELECT OrderID FROM Orders1)"}) {
    const ObjectRef rows = open(source);
    EXPECT_TRUE(toBoolean(get(rows, "EOF"))) << source;
    EXPECT_EQ(errorOf([&] { get(child(rows, "Fields", {0}), "Value"); }), 3021) << source;
  }
}

TEST_F(DaoTest, Relations) {
  const ObjectRef relation = child(database, "Relations", {"customersorders"});
  EXPECT_EQ(text(relation, "Table"), "Customers");
  EXPECT_EQ(text(relation, "ForeignTable"), "Orders");
  EXPECT_EQ(text(child(relation, "Fields", {0}), "Name"), "CustomerID");
  EXPECT_EQ(text(child(relation, "Fields", {"CustomerID"}), "ForeignName"), "CustID");
  EXPECT_EQ(number(child(relation, "Fields"), "Count"), 1);
  EXPECT_EQ(errorOf([&] { get(database, "Relations", {"None"}); }), 3265);
}

TEST_F(DaoTest, ContainersListTheDocumentsInTheirOrder) {
  const ObjectRef documents = child(child(database, "Containers", {"forms"}), "Documents");
  EXPECT_EQ(number(documents, "Count"), 2);
  EXPECT_EQ(text(item(documents, 0), "Name"), "frmB");
  EXPECT_EQ(text(item(documents, 1), "Name"), "frmA");
  EXPECT_EQ(errorOf([&] { item(documents, "None"); }), 3265);
  for (const auto& [container, name] :
       {std::pair{"Reports", "rptSales"}, {"Scripts", "AutoExec"}, {"Modules", "Utilities"}})
    EXPECT_EQ(text(child(child(database, "Containers", {container}), "Documents", {0}), "Name"),
              name);
  EXPECT_EQ(errorOf([&] { get(database, "Containers", {"Macros"}); }), 3265);
  EXPECT_EQ(number(child(database, "Containers"), "Count"), 4);
}

TEST_F(DaoTest, CurrentDbIsAMethodAsWell) {
  EXPECT_EQ(text(toObject(call(application, "currentdb")), "Name"), "Orders.mdb");
}

class DaoNamesTest : public AccessTest {};

TEST_F(DaoNamesTest, LettersBeyondAsciiMatchWithoutCase) {
  openRecording(
      R"({"snapshot": 1, "tables": [{"name": "\u00DCbersicht"}, {"name": "\u0160koda"}]})");
  const ObjectRef tables = child(database, "TableDefs");
  EXPECT_EQ(text(item(tables,
                      "\xFC"
                      "bersicht"),
                 "Name"),
            "\xDC"
            "bersicht");
  EXPECT_EQ(text(item(tables,
                      "\x9A"
                      "KODA"),
                 "Name"),
            "\x8A"
            "koda");
}

TEST_F(DaoNamesTest, QueryWithoutRecordedParametersShowsThoseOfItsText) {
  openRecording(R"({"snapshot": 1, "tables": [{"name": "T", "fields": [{"name": "A", "type": 4}]}],
    "queries": [{"name": "Q", "sql": "PARAMETERS [When] DateTime; SELECT A FROM T WHERE A > [x]"},
                {"name": "Recorded", "sql": "SELECT A FROM T WHERE A > [x]",
                 "fields": [{"name": "A", "type": 4}]},
                {"name": "Broken", "sql": "SELECT FROM nowhere WHERE"}]})");
  const ObjectRef queries = child(database, "QueryDefs");
  const ObjectRef parameters = child(item(queries, "Q"), "Parameters");
  ASSERT_EQ(number(parameters, "Count"), 2);
  EXPECT_EQ(number(item(parameters, "When"), "Type"), 8);
  EXPECT_EQ(text(item(parameters, 1), "Name"), "x");
  EXPECT_EQ(number(child(item(queries, "Recorded"), "Parameters"), "Count"), 0);
  EXPECT_EQ(number(child(item(queries, "Broken"), "Parameters"), "Count"), 0);
}

}  // namespace
}  // namespace tarrowin
