// The order-entry schema: six tables and the saved queries that the tests build on.
#include "order_schema.h"

#include "access/record_source/fold_name.h"
#include "shared/vb_error.h"

namespace tarrowin {
namespace {

SourceField field(std::string name, int type, int size) {
  return {std::move(name), type, size, "", ""};
}

}  // namespace

OrderSchema::OrderSchema() {
  add(SchemaTable{"Customers",
                  {field("CustomerID", 10, 5), field("CompanyName", 10, 40),
                   field("Country", 10, 15), field("Notes", 12, 0), field("Active", 1, 1)}});
  add(SchemaTable{"Orders",
                  {field("OrderID", 4, 4), field("CustomerID", 10, 5), field("EmployeeID", 4, 4),
                   field("OrderDate", 8, 8), field("Freight", 5, 8)}});
  add(SchemaTable{"Order Details",
                  {field("OrderID", 4, 4), field("ProductID", 4, 4), field("UnitPrice", 5, 8),
                   field("Quantity", 3, 2), field("Discount", 6, 4)}});
  add(SchemaTable{"Employees",
                  {field("EmployeeID", 4, 4), field("Last Name", 10, 20), field("Boss", 4, 4),
                   field("Order", 3, 2), field("Photo", 11, 0)}});
  add(SchemaTable{"Städte", {field("Ort", 10, 30), field("Fläche", 7, 8)}});
  add(SchemaTable{"Linked", {{"ID", 4, 4, "Remote", "RemoteID"}}});

  const auto query = [this](std::string name, std::string sql) {
    add(SchemaQuery{std::move(name), std::move(sql), {}, std::nullopt});
  };
  query("Order Subtotals",
        "SELECT [Order Details].OrderID, Sum(CCur([Order Details].UnitPrice*[Quantity]*"
        "(1-[Discount])/100)*100) AS Subtotal\r\nFROM [Order Details]\r\n"
        "GROUP BY [Order Details].OrderID;\r\n");
  query("Orders Qry",
        "SELECT Orders.*, Customers.CompanyName FROM Customers INNER JOIN Orders "
        "ON Customers.CustomerID = Orders.CustomerID;");
  query("Both", "SELECT Orders.*, Customers.* FROM Orders, Customers");
  query("By Date",
        "PARAMETERS [Start Date] DateTime;\r\nSELECT OrderID FROM Orders "
        "WHERE OrderDate >= [Start Date];");
  query("Asks", "SELECT OrderID FROM Orders WHERE CustomerID = [Which customer?];");
  query("Names",
        "SELECT CompanyName AS FullName FROM Customers UNION SELECT [Last Name] FROM Employees;");
  query("Quarters",
        "TRANSFORM Sum(Freight) SELECT CustomerID, Count(*) AS N FROM Orders "
        "GROUP BY CustomerID PIVOT 'Qtr ' & Format(OrderDate,'q') In ('Qtr 1','Qtr 2');");
  query("Years",
        "TRANSFORM Count(OrderID) SELECT CustomerID FROM Orders GROUP BY CustomerID "
        "PIVOT Year(OrderDate);");
  query("Append", "INSERT INTO Orders (OrderID) SELECT OrderID FROM [Order Details];");
  query("Cycle A", "SELECT * FROM [Cycle B];");
  query("Cycle B", "SELECT * FROM [Cycle A];");
  query("Broken", "SELECT OrderID FROM;");
  query("Misses", "SELECT * FROM Nowhere;");
  add(SchemaQuery{
      "Recorded",
      "this is not SQL",
      {"Limit"},
      std::vector<SourceField>{{"Total", 5, 8, "", ""}, {"OrderID", 4, 4, "Orders", "OrderID"}}});
}

void OrderSchema::add(SchemaTable table) {
  const std::string key = foldName(table.name);
  tables_[key] = std::move(table);
}

void OrderSchema::add(SchemaQuery query) {
  const std::string key = foldName(query.name);
  queries_[key] = std::move(query);
}

std::optional<SchemaTable> OrderSchema::findTable(std::string_view name) const {
  const auto entry = tables_.find(foldName(name));
  if (entry == tables_.end()) return std::nullopt;
  ++found_;
  return entry->second;
}

std::optional<SchemaQuery> OrderSchema::findQuery(std::string_view name) const {
  const auto entry = queries_.find(foldName(name));
  if (entry == queries_.end()) return std::nullopt;
  ++found_;
  return entry->second;
}

std::vector<std::string> shown(const std::vector<SourceField>& fields) {
  std::vector<std::string> lines;
  for (const SourceField& entry : fields) {
    lines.push_back(entry.name + " " + std::to_string(entry.type) + " " +
                    std::to_string(entry.size) +
                    (entry.sourceTable.empty() ? "" : " " + entry.sourceTable));
  }
  return lines;
}

std::vector<std::string> fieldsOf(std::string_view source, const SuppliedParameters& supplied) {
  const OrderSchema schema;
  return shown(RecordSourceAnalyzer(schema).fieldsOf(source, supplied));
}

std::string errorOf(std::string_view source, const SuppliedParameters& supplied) {
  const OrderSchema schema;
  try {
    RecordSourceAnalyzer(schema).fieldsOf(source, supplied);
  } catch (const VbError& error) {
    return std::to_string(error.number()) + " " + error.description();
  }
  return "none";
}

std::vector<std::string> parametersOf(std::string_view source) {
  const OrderSchema schema;
  std::vector<std::string> lines;
  for (const SourceParameter& parameter : RecordSourceAnalyzer(schema).parametersOf(source)) {
    lines.push_back(parameter.name + " " + std::to_string(parameter.type));
  }
  return lines;
}

std::string unknown(std::string_view name) { return "3078 " + standardErrorText(3078, name); }

std::string tooFew(int expected) {
  return "3061 Too few parameters. Expected " + std::to_string(expected) + ".";
}

}  // namespace tarrowin
