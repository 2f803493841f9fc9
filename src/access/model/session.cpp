// What an open database answers about record sources: recorded answers first, then the analysis of
// the SQL text.
#include "access/model/session.h"

#include <utility>

#include "access/model/object_keeper.h"
#include "access/model/query_rows.h"

namespace tarrowin {

namespace {

FieldModel toModel(const SourceField& field, const CodePage& page) {
  return {page.fromUtf8(field.name), field.type, field.size, page.fromUtf8(field.sourceTable),
          page.fromUtf8(field.sourceField)};
}

FieldList toModel(const std::vector<SourceField>& fields, const CodePage& page) {
  FieldList result;
  result.reserve(fields.size());
  for (const SourceField& field : fields) result.push_back(toModel(field, page));
  return result;
}

std::vector<SourceField> toUtf8(const FieldList& fields, const CodePage& page) {
  std::vector<SourceField> result;
  result.reserve(fields.size());
  for (const FieldModel& field : fields)
    result.push_back({page.toUtf8(field.name), field.type, field.size,
                      page.toUtf8(field.sourceTable), page.toUtf8(field.sourceField)});
  return result;
}

// Runs what calls the analyzer, whose errors carry UTF-8.
template <class Action>
auto inCodePage(const CodePage& page, Action action) {
  try {
    return action();
  } catch (const VbError& error) {
    throw VbError(error.number(), page.fromUtf8(error.description()));
  }
}

}  // namespace

// The tree as the analyzer of record sources wants to see it, in UTF-8.
class Session::RecordSourceSchema : public Schema {
 public:
  explicit RecordSourceSchema(const DatabaseModel& model) : model_(model) {}

 private:
  // Errors of the tree on their way through the analyzer.
  template <class Action>
  auto inUtf8(Action action) const {
    try {
      return action();
    } catch (const VbError& error) {
      throw VbError(error.number(), page().toUtf8(error.description()));
    }
  }

 public:
  std::optional<SchemaTable> findTable(std::string_view name) const override {
    const TableModel* table = model_.tables.find(page().fromUtf8(name), model_.folding);
    if (!table) return std::nullopt;
    return inUtf8([&] {
      return SchemaTable{page().toUtf8(table->name), toUtf8(table->fields.get(), page())};
    });
  }

  std::optional<SchemaQuery> findQuery(std::string_view name) const override {
    const QueryModel* query = model_.queries.find(page().fromUtf8(name), model_.folding);
    if (!query) return std::nullopt;
    SchemaQuery result{page().toUtf8(query->name), {}, {}, {}};
    if (query->fields) {
      result.fields = toUtf8(*query->fields, page());
      return result;
    }
    return inUtf8([&] {
      result.sql = page().toUtf8(query->sql.get().read(query->name));
      for (const ParameterModel& parameter : query->parameters.get())
        result.parameters.push_back(page().toUtf8(parameter.name));
      return result;
    });
  }

 private:
  const CodePage& page() const { return model_.codePage; }

  const DatabaseModel& model_;
};

Session::Session(std::unique_ptr<DatabaseModel> model) : model_(std::move(model)) {}
Session::~Session() = default;

void Session::close() {
  for (const auto* list : {&openForms, &openReports})
    for (const auto& design : *list) design->close();
  openForms.clear();
  openReports.clear();
  openModules.clear();
  selectedMacro = nullptr;
  open_ = false;
  if (model_->keeper) model_->keeper->release();
}

void Session::keepForm(const DesignModel& form) {
  if (model_->keeper) model_->keeper->keepForm(form);
  model_->forms.put(form, model_->folding);
}

void Session::keepModule(ModuleModel module) {
  if (model_->keeper) model_->keeper->keepModule(module);
  model_->modules.put(std::move(module), model_->folding);
}

RecordSourceAnalyzer& Session::analyzer() {
  if (!analyzer_) {
    schema_ = std::make_unique<RecordSourceSchema>(model());
    analyzer_ = std::make_unique<RecordSourceAnalyzer>(*schema_);
  }
  return *analyzer_;
}

const Value* Session::parameterValue(std::size_t query, std::size_t parameter) const {
  const auto values = parameterValues_.find(query);
  if (values == parameterValues_.end()) return nullptr;
  const auto value = values->second.find(parameter);
  return value == values->second.end() ? nullptr : &value->second;
}

void Session::setParameterValue(std::size_t query, std::size_t parameter, Value value) {
  parameterValues_[query].insert_or_assign(parameter, std::move(value));
}

const std::vector<ParameterModel>& Session::parametersOf(std::size_t query) {
  const auto known = parameters_.find(query);
  if (known != parameters_.end()) return known->second;
  const QueryModel& queryModel = model().queries[query];
  std::vector<ParameterModel> found = queryModel.parameters.get();
  if (!queryModel.parametersAreComplete) {
    // A text that cannot be analysed shows its declared parameters alone.
    try {
      const CodePage& page = model().codePage;
      const auto all = analyzer().parametersOf(page.toUtf8(queryModel.name));
      found.clear();
      for (const SourceParameter& parameter : all)
        found.push_back({page.fromUtf8(parameter.name), parameter.type});
    } catch (const VbError&) {
    }
  }
  return parameters_.emplace(query, std::move(found)).first->second;
}

FieldList Session::queryFields(std::size_t query) {
  const QueryModel& queryModel = model().queries[query];
  if (queryModel.fields) return *queryModel.fields;
  const CodePage& page = model().codePage;
  return inCodePage(page, [&] {
    return toModel(analyzer().fieldsWithParameters(page.toUtf8(queryModel.name)), page);
  });
}

FieldList Session::openQuery(std::size_t query) {
  const QueryModel& queryModel = model().queries[query];
  if (queryModel.recordsetError) queryModel.recordsetError->raise(queryModel.name);
  if (queryModel.fields) return *queryModel.fields;
  const CodePage& page = model().codePage;
  SuppliedParameters supplied;
  const std::vector<ParameterModel>& parameters = parametersOf(query);
  for (std::size_t i = 0; i < parameters.size(); ++i)
    if (parameterValue(query, i)) supplied.push_back(page.toUtf8(parameters[i].name));
  return inCodePage(page, [&] {
    return toModel(analyzer().fieldsOf(page.toUtf8(queryModel.name), supplied), page);
  });
}

FieldList Session::fieldsOfTable(const TableModel& table) const {
  FieldList fields = table.fields.get();
  for (FieldModel& field : fields) {
    if (field.sourceTable.empty()) field.sourceTable = table.name;
    if (field.sourceField.empty()) field.sourceField = field.name;
  }
  return fields;
}

Session::Opened Session::openRecordset(std::string_view source) {
  const DatabaseModel& database = model();
  const auto recorded = database.recordsets.find(std::string(source));
  if (recorded != database.recordsets.end()) {
    if (recorded->second.error) recorded->second.error->raise(source);
    return onQuery(source, recorded->second.fields);
  }
  if (const TableModel* table = database.tables.find(source, database.folding))
    return {fieldsOfTable(*table), table->openRows};

  const std::size_t query = database.queries.indexOf(source, database.folding);
  if (query != NamedList<QueryModel>::kNotFound) {
    const QueryModel& queryModel = database.queries[query];
    if (queryModel.recordsetError) queryModel.recordsetError->raise(queryModel.name);
    if (queryModel.fields) return onQuery(source, *queryModel.fields);
  }
  const CodePage& page = database.codePage;
  return inCodePage(page, [&] {
    return onQuery(source, toModel(analyzer().fieldsOf(page.toUtf8(source)), page));
  });
}

Session::Opened Session::onQuery(std::string_view source, FieldList fields) const {
  return {fields, [this, source = std::string(source), fields] {
            return openQueryRows(*this, source, fields);
          }};
}

}  // namespace tarrowin
