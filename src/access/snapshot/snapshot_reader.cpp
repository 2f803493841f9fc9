// The lists of a recording, one after the other.
#include "access/snapshot/snapshot_reader.h"

#include <charconv>
#include <utility>

#include "access/snapshot/design_reader.h"
#include "access/snapshot/snapshot_values.h"

namespace tarrowin {

namespace {

constexpr std::int64_t kFormatVersion = 1;

// Rows kept as they stand in the recording.
using Rows = std::vector<std::vector<Recorded<Value>>>;

class RecordedRows : public RowCursor {
 public:
  explicit RecordedRows(std::shared_ptr<const Rows> rows) : rows_(std::move(rows)) {}

  bool next() override {
    if (at_ < rows_->size())
      ++at_;
    else
      past_ = true;
    return !past_;
  }
  // A row may be shorter than the fields: Null then.
  Recorded<Value> cell(std::size_t field) const override {
    const auto& row = (*rows_)[at_ - 1];
    return field < row.size() ? row[field] : Recorded<Value>(Value(Value::Null{}));
  }

 private:
  std::shared_ptr<const Rows> rows_;
  std::size_t at_ = 0;
  bool past_ = false;
};

class SnapshotReader {
 public:
  SnapshotReader(JsonValue root, DatabaseModel& database)
      : root_(root), database_(database), values_(database.codePage, database.names) {}

  void read() {
    checkVersion();
    if (const auto entry = root_.member("database")) readDatabase(*entry);
    if (const auto entry = root_.member("application")) readApplication(*entry);
    forEach("tables", [this](JsonValue entry) { database_.tables.add(readTable(entry)); });
    forEach("queries", [this](JsonValue entry) { database_.queries.add(readQuery(entry)); });
    forEach("recordsets", [this](JsonValue entry) { readRecordset(entry); });
    forEach("relations", [this](JsonValue entry) { database_.relations.add(readRelation(entry)); });
    forEach("forms", [this](JsonValue entry) { database_.forms.add(readDesignEntry(entry)); });
    forEach("reports", [this](JsonValue entry) { database_.reports.add(readDesignEntry(entry)); });
    forEach("macros", [this](JsonValue entry) { database_.macros.add(readMacro(entry)); });
    forEach("modules", [this](JsonValue entry) { database_.modules.add(readModule(entry)); });
    if (const auto entry = root_.member("templates")) readTemplates(*entry);
  }

  void readNewObjects() {
    checkVersion();
    const CaseFolding& folding = database_.folding;
    forEach("forms",
            [&](JsonValue entry) { database_.forms.put(readDesignEntry(entry), folding); });
    forEach("modules", [&](JsonValue entry) { database_.modules.put(readModule(entry), folding); });
  }

 private:
  void checkVersion() {
    SnapshotValues::requireObject(root_);
    const auto version = root_.member("snapshot");
    if (!version) root_.failExpected("the number 1 under \"snapshot\"");
    if (version->kind() != JsonKind::kInteger || version->integer() < kFormatVersion)
      version->failExpected("the number 1");
    if (version->integer() > kFormatVersion)
      throw NewerSnapshot("is a recording of format " + std::to_string(version->integer()) +
                          ", newer than this program");
  }

  template <class Action>
  void forEach(std::string_view key, Action action) {
    const auto list = root_.member(key);
    if (!list) return;
    SnapshotValues::requireList(*list);
    for (const JsonValue entry : *list) {
      SnapshotValues::requireObject(entry);
      action(entry);
    }
  }

  void readDatabase(JsonValue entry) {
    SnapshotValues::requireObject(entry);
    database_.name = values_.textIn(entry, "name");
    database_.version = values_.textIn(entry, "version");
    if (const auto properties = entry.member("properties"))
      database_.properties = values_.properties(*properties);
  }

  void readApplication(JsonValue entry) {
    SnapshotValues::requireObject(entry);
    if (const auto references = entry.member("references")) {
      SnapshotValues::requireList(*references);
      for (const JsonValue reference : *references)
        database_.references.push_back(values_.properties(reference));
    }
    const auto errors = entry.member("errors");
    if (!errors) return;
    SnapshotValues::requireObject(*errors);
    auto read = std::make_shared<ApplicationErrors>();
    read->OpenCurrentDatabase = values_.optionalErrorIn(*errors, "OpenCurrentDatabase");
    read->CloseCurrentDatabase = values_.optionalErrorIn(*errors, "CloseCurrentDatabase");
    read->Quit = values_.optionalErrorIn(*errors, "Quit");
    read->Visible = values_.optionalErrorIn(*errors, "Visible");
    read->CurrentDb = values_.optionalErrorIn(*errors, "CurrentDb");
    database_.errors = std::move(read);
  }

  FieldList readFields(JsonValue list) {
    SnapshotValues::requireList(list);
    FieldList fields;
    fields.reserve(list.size());
    for (const JsonValue entry : list) {
      SnapshotValues::requireObject(entry);
      FieldModel field;
      field.name = values_.requiredTextIn(entry, "name");
      field.type = values_.optionalNumberIn(entry, "type").value_or(field.type);
      field.size = values_.optionalNumberIn(entry, "size").value_or(usualSizeOfType(field.type));
      field.sourceTable = values_.textIn(entry, "sourceTable");
      field.sourceField = values_.textIn(entry, "sourceField");
      fields.push_back(std::move(field));
    }
    return fields;
  }

  TableModel readTable(JsonValue entry) {
    TableModel table;
    table.name = values_.requiredTextIn(entry, "name");
    table.connect = values_.textIn(entry, "connect");
    FieldList fields;
    if (const auto list = entry.member("fields")) fields = readFields(*list);
    if (const auto list = entry.member("rows")) {
      auto rows = std::make_shared<const Rows>(readRows(*list, fields.size()));
      table.openRows = [rows] { return std::make_unique<RecordedRows>(rows); };
    }
    table.fields = std::move(fields);
    return table;
  }

  Rows readRows(JsonValue list, std::size_t fieldCount) {
    SnapshotValues::requireList(list);
    Rows rows;
    rows.reserve(list.size());
    for (const JsonValue entry : list) {
      SnapshotValues::requireList(entry);
      if (entry.size() > fieldCount)
        entry.fail(std::to_string(entry.size()) + " values for " + std::to_string(fieldCount) +
                   " fields");
      auto& row = rows.emplace_back();
      row.reserve(entry.size());
      for (const JsonValue cell : entry) row.push_back(values_.value(cell));
    }
    return rows;
  }

  QueryModel readQuery(JsonValue entry) {
    QueryModel query;
    query.name = values_.requiredTextIn(entry, "name");
    if (const auto sql = entry.member("sql")) {
      if (sql->kind() == JsonKind::kText)
        query.sql = Recorded<std::string>(values_.text(*sql));
      else if (sql->kind() == JsonKind::kInteger || sql->kind() == JsonKind::kObject)
        query.sql = Recorded<std::string>(values_.error(*sql));
      else
        sql->failExpected("a text or an error");
    }
    if (const auto fields = entry.member("fields")) query.fields = readFields(*fields);
    const auto parameters = entry.member("parameters");
    if (parameters) query.parameters = readParameters(*parameters);
    query.parametersAreComplete = parameters || query.fields;
    query.recordsetError = values_.optionalErrorIn(entry, "recordsetError");
    return query;
  }

  std::vector<ParameterModel> readParameters(JsonValue list) {
    SnapshotValues::requireList(list);
    std::vector<ParameterModel> parameters;
    for (const JsonValue entry : list) {
      SnapshotValues::requireObject(entry);
      ParameterModel parameter;
      parameter.name = values_.requiredTextIn(entry, "name");
      parameter.type = values_.optionalNumberIn(entry, "type").value_or(parameter.type);
      parameters.push_back(std::move(parameter));
    }
    return parameters;
  }

  void readRecordset(JsonValue entry) {
    std::string source = values_.requiredTextIn(entry, "source");
    RecordsetModel recordset;
    recordset.error = values_.optionalErrorIn(entry, "error");
    if (recordset.error && !recordset.error->description)
      recordset.error->description = values_.optionalTextIn(entry, "description");
    if (const auto fields = entry.member("fields")) recordset.fields = readFields(*fields);
    database_.recordsets.emplace(std::move(source), std::move(recordset));
  }

  RelationModel readRelation(JsonValue entry) {
    RelationModel relation{values_.requiredTextIn(entry, "name"),
                           values_.textIn(entry, "table"),
                           values_.textIn(entry, "foreignTable"),
                           {}};
    if (const auto fields = entry.member("fields")) {
      SnapshotValues::requireList(*fields);
      for (const JsonValue field : *fields) {
        SnapshotValues::requireObject(field);
        relation.fields.push_back(
            {values_.requiredTextIn(field, "name"), values_.textIn(field, "foreignName")});
      }
    }
    return relation;
  }

  DesignModel readDesignEntry(JsonValue entry) {
    return readDesign(entry, values_, database_.folding);
  }

  MacroModel readMacro(JsonValue entry) {
    MacroModel macro;
    macro.name = values_.requiredTextIn(entry, "name");
    macro.module = values_.optionalTextIn(entry, "module");
    macro.openError = values_.optionalErrorIn(entry, "openError");
    if (const auto actions = entry.member("actions")) {
      SnapshotValues::requireList(*actions);
      std::vector<MacroAction> rows;
      for (const JsonValue action : *actions) rows.push_back(readAction(action));
      macro.actions = std::move(rows);
    }
    return macro;
  }

  MacroAction readAction(JsonValue entry) {
    SnapshotValues::requireObject(entry);
    MacroAction action;
    action.macroName = values_.textIn(entry, "macroName");
    action.condition = values_.textIn(entry, "condition");
    action.action = values_.textIn(entry, "action");
    action.comment = values_.textIn(entry, "comment");
    if (const auto arguments = entry.member("arguments")) {
      SnapshotValues::requireList(*arguments);
      for (const JsonValue argument : *arguments)
        action.arguments.push_back(values_.text(argument));
    }
    return action;
  }

  ModuleModel readModule(JsonValue entry) {
    ModuleModel module;
    module.name = values_.requiredTextIn(entry, "name");
    module.type = values_.optionalNumberIn(entry, "type").value_or(0);
    module.text = values_.textIn(entry, "text");
    module.countOfLines = values_.countIn(entry, "countOfLines");
    module.openError = values_.optionalErrorIn(entry, "openError");
    module.exportError = values_.optionalErrorIn(entry, "exportError");
    return module;
  }

  void readTemplates(JsonValue entry) {
    SnapshotValues::requireObject(entry);
    const auto controls = entry.member("controls");
    if (!controls) return;
    SnapshotValues::requireObject(*controls);
    for (const JsonValue properties : *controls) {
      const std::string_view key = properties.key();
      std::int32_t type = 0;
      const auto [end, error] = std::from_chars(key.data(), key.data() + key.size(), type);
      if (error != std::errc{} || end != key.data() + key.size())
        properties.failExpected("the number of a control type as the key");
      database_.controlTemplates.insert_or_assign(type, values_.properties(properties));
    }
  }

  JsonValue root_;
  DatabaseModel& database_;
  SnapshotValues values_;
};

}  // namespace

std::unique_ptr<DatabaseModel> readSnapshot(std::string_view utf8, const CodePage& codePage) {
  const JsonTree tree = JsonTree::parse(utf8);
  auto database = std::make_unique<DatabaseModel>(codePage);
  database->recording = true;
  SnapshotReader(tree.root(), *database).read();
  return database;
}

void readNewObjects(std::string_view utf8, DatabaseModel& database) {
  const JsonTree tree = JsonTree::parse(utf8);
  SnapshotReader(tree.root(), database).readNewObjects();
}

}  // namespace tarrowin
