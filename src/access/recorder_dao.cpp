// Tables, queries, relations and recordsets.
#include "access/recorder_dao.h"

#include <nlohmann/json.hpp>

namespace tarrowin {

using Json = nlohmann::ordered_json;

namespace {

// dbOpenDynaset.
constexpr std::int32_t kDynaset = 2;

// Fields with type and size; the source table unless it is the owner.
Json recordFields(const RecordedObject& owner, std::string_view ownName) {
  Json fields = Json::array();
  owner.forEach("Fields", [&](const RecordedObject& field) {
    Json entry;
    entry["name"] = field.text("Name");
    entry["type"] = field.number("Type");
    entry["size"] = field.number("Size");
    const std::string sourceTable = toText(field.get("SourceTable"));
    if (!sourceTable.empty() && sourceTable != ownName) entry["sourceTable"] = sourceTable;
    fields.push_back(std::move(entry));
  });
  return fields;
}

Json recordRow(const std::vector<RecordedObject>& fields) {
  Json row = Json::array();
  for (const RecordedObject& field : fields)
    row.push_back(recordReading([&field] { return field.get("Value"); }));
  return row;
}

void recordRows(const RecordedObject& database, const std::string& table, Json& entry) {
  try {
    const RecordedObject recordset(
        toObject(database.call("OpenRecordset", {Value(table), Value(kDynaset)})));
    std::vector<RecordedObject> fields;
    recordset.forEach("Fields",
                      [&fields](const RecordedObject& field) { fields.push_back(field); });
    Json rows = Json::array();
    while (!toBoolean(recordset.get("EOF"))) {
      rows.push_back(recordRow(fields));
      recordset.call("MoveNext");
    }
    recordset.call("Close");
    entry["rows"] = std::move(rows);
  } catch (const VbError& error) {
    entry["rowsError"] = recordError(error);
  }
}

bool isSystemTable(const std::string& name) {
  return name.starts_with("MSys") || name.starts_with("USys");
}

// A value that every type of parameter takes, so that a recordset on the query opens.
Value valueForParameter(std::int32_t daoType) {
  switch (daoType) {
    case 8:
    case 22:
    case 23:
      return Date{36526};  // 2000-01-01
    case 2:
    case 10:
    case 12:
    case 18:
      return "";
    default:
      return std::int32_t{0};
  }
}

// One row of a macro's sheet.
Json recordAction(const RecordedObject& macro, std::int32_t row) {
  const auto cell = [&](std::int32_t column) {
    return macro.call("RowText", {Value(row), Value(column)});
  };
  Json arguments = Json::array();
  constexpr std::int32_t kFirstArgument = 4;
  for (std::int32_t column = kFirstArgument;; ++column) {
    const Value argument = cell(column);
    if (argument.isEmpty()) break;
    arguments.push_back(toText(argument));
  }
  return {{"macroName", toText(cell(0))},
          {"condition", toText(cell(1))},
          {"action", toText(cell(2))},
          {"arguments", std::move(arguments)},
          {"comment", toText(cell(3))}};
}

// Access itself tells no more of a macro than its name.
Json recordMacro(const RecordedObject& macro) {
  Json entry;
  entry["name"] = macro.text("Name");
  try {
    const std::int32_t rows = macro.number("RowCount");
    for (std::int32_t row = 0; row < rows; ++row)
      entry["actions"].push_back(recordAction(macro, row));
  } catch (const VbError& error) {
    if (error.number() != kErrNoSuchMember) entry["openError"] = recordError(error);
  }
  return entry;
}

void recordQueryResult(const RecordedObject& query, Json& entry) {
  try {
    const RecordedObject recordset(toObject(query.call("OpenRecordset")));
    recordset.call("Close");
  } catch (const VbError& error) {
    entry["recordsetError"] = recordError(error);
  }
}

Json recordQuery(const RecordedObject& query) {
  Json entry;
  entry["name"] = query.text("Name");
  entry["sql"] = recordReading([&query] { return query.get("SQL"); });
  Json parameters = Json::array();
  query.forEach("Parameters", [&parameters](const RecordedObject& parameter) {
    const std::int32_t type = parameter.number("Type");
    parameters.push_back({{"name", parameter.text("Name")}, {"type", type}});
    try {
      parameter.put("Value", valueForParameter(type));
    } catch (const VbError&) {
      // The recordset below then raises, and its error is recorded.
    }
  });
  entry["parameters"] = std::move(parameters);
  try {
    query.object("Fields");
    entry["fields"] = recordFields(query, {});
  } catch (const VbError&) {
    // Without them the SQL text is analysed again when the recording is used.
  }
  recordQueryResult(query, entry);
  return entry;
}

}  // namespace

Json recordDatabase(const RecordedObject& database) {
  Json entry;
  entry["name"] = database.text("Name");
  entry["version"] = database.text("Version");
  entry["properties"] = recordProperties(database);
  return entry;
}

Json recordApplication(const RecordedObject& application) {
  Json references = Json::array();
  application.forEach("References", [&references](const RecordedObject& reference) {
    references.push_back(
        {{"name", recordReading([&reference] { return reference.get("Name"); })},
         {"fullPath", recordReading([&reference] { return reference.get("FullPath"); })}});
  });
  return {{"references", std::move(references)}};
}

Json recordTables(const RecordedObject& database) {
  Json tables = Json::array();
  database.forEach("TableDefs", [&](const RecordedObject& table) {
    Json entry;
    const std::string name = table.text("Name");
    entry["name"] = name;
    try {
      table.object("Fields");
    } catch (const VbError& error) {
      entry["fieldsError"] = recordError(error);
    }
    entry["fields"] = recordFields(table, name);
    if (!isSystemTable(name)) recordRows(database, name, entry);
    tables.push_back(std::move(entry));
  });
  return tables;
}

Json recordQueries(const RecordedObject& database) {
  Json queries = Json::array();
  database.forEach("QueryDefs", [&queries](const RecordedObject& query) {
    queries.push_back(recordQuery(query));
  });
  return queries;
}

Json recordRelations(const RecordedObject& database) {
  Json relations = Json::array();
  database.forEach("Relations", [&relations](const RecordedObject& relation) {
    Json fields = Json::array();
    relation.forEach("Fields", [&fields](const RecordedObject& field) {
      fields.push_back({{"name", field.text("Name")}, {"foreignName", field.text("ForeignName")}});
    });
    relations.push_back({{"name", relation.text("Name")},
                         {"table", relation.text("Table")},
                         {"foreignTable", relation.text("ForeignTable")},
                         {"fields", std::move(fields)}});
  });
  return relations;
}

Json recordMacros(const RecordedObject& database) {
  Json macros = Json::array();
  database.object("Containers", Value("Scripts"))
      .forEach("Documents", [&macros](const RecordedObject& document) {
        macros.push_back(recordMacro(document));
      });
  return macros;
}

Json recordRecordsets(const RecordedObject& database, const std::vector<std::string>& sources) {
  Json recordsets = Json::array();
  for (const std::string& source : sources) {
    Json entry;
    entry["source"] = source;
    try {
      const RecordedObject recordset(
          toObject(database.call("OpenRecordset", {Value(source), Value(kDynaset)})));
      entry["fields"] = recordFields(recordset, {});
      recordset.call("Close");
    } catch (const VbError& error) {
      entry.update(recordError(error));
    }
    recordsets.push_back(std::move(entry));
  }
  return recordsets;
}

}  // namespace tarrowin
