// The analyzer: tells names from SQL, keeps what it has found, and turns failures into DAO's
// errors.
#include "access/record_source/record_source.h"

#include <algorithm>
#include <set>
#include <unordered_map>
#include <utility>

#include "access/record_source/column_database.h"
#include "access/record_source/fold_name.h"
#include "access/record_source/nesting.h"
#include "access/record_source/query_analysis.h"
#include "access/record_source/value_type.h"
#include "shared/vb_error.h"

namespace tarrowin {
namespace {

constexpr std::int32_t kErrTooFewParameters = 3061;
constexpr std::int32_t kErrUnknownSource = 3078;
constexpr std::int32_t kErrInvalidOperation = 3219;

// What the analysis of a source came to: a result, or the error to raise.
struct Answer {
  QueryResult result;
  std::optional<VbError> error;
};

// A name that is being analysed for as long as the object lives.
class InProgress {
 public:
  InProgress(std::set<std::string>& names, const std::string& key, const std::string& name)
      : names_(names) {
    const auto [entry, isNew] = names_.insert(key);
    if (!isNew) throw Unresolvable(name);  // the query rests on itself
    entry_ = entry;
  }
  InProgress(const InProgress&) = delete;
  InProgress& operator=(const InProgress&) = delete;
  ~InProgress() { names_.erase(entry_); }

 private:
  std::set<std::string>& names_;
  std::set<std::string>::iterator entry_;
};

QueryResult tableResult(SchemaTable table) {
  QueryResult result;
  for (SourceField& field : table.fields) {
    if (field.sourceTable.empty()) field.sourceTable = table.name;
    if (field.sourceField.empty()) field.sourceField = field.name;
    result.fields.push_back(std::move(field));
  }
  return result;
}

// The engine calls text what it knows no type for.
std::vector<SourceField> withKnownTypes(std::vector<SourceField> fields) {
  for (SourceField& field : fields) {
    if (field.type != kTypeUnknown) continue;
    field.type = kTypeText;
    field.size = sizeOfType(kTypeText);
  }
  return fields;
}

bool looksLikeSql(std::string_view source) {
  static constexpr std::string_view kFirstWords[] = {
      "SELECT", "TRANSFORM", "PARAMETERS", "TABLE", "INSERT",  "UPDATE", "DELETE",
      "CREATE", "ALTER",     "DROP",       "EXEC",  "EXECUTE", "GRANT",  "REVOKE"};
  if (source.front() == '(') return true;
  const auto end = std::find_if_not(source.begin(), source.end(), [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
  });
  const std::string_view word(source.begin(), end);
  return std::any_of(std::begin(kFirstWords), std::end(kFirstWords),
                     [&](std::string_view first) { return equalsWord(word, first); });
}

}  // namespace

class RecordSourceAnalyzer::Impl : public SourceLookup {
 public:
  explicit Impl(const Schema& schema) : schema_(schema) {}

  const QueryResult& resultOfSource(std::string_view source) {
    const auto [entry, isNew] = answers_.try_emplace(std::string(source));
    if (isNew) {
      try {
        entry->second = answer(source);
      } catch (...) {
        answers_.erase(entry);
        throw;
      }
    }
    if (entry->second.error) throw VbError(*entry->second.error);
    return entry->second.result;
  }

  std::shared_ptr<const StandIn> source(const NameChain& name) override {
    try {
      std::shared_ptr<const StandIn> found = standIn(name.joined());
      if (!found && name.parts.size() > 1) found = standIn(name.parts.back());
      if (found) return found;
    } catch (const ActionQuery&) {
      // A query that gives no records is no source.
    }
    throw Unresolvable(name.joined());
  }

  ColumnDatabase& database() override { return database_; }
  int& nesting() override { return nesting_; }

 private:
  Answer answer(std::string_view source) {
    try {
      return {analyse(source), std::nullopt};
    } catch (const ActionQuery&) {
      return {{}, VbError(kErrInvalidOperation, "Invalid operation.")};
    } catch (const Unresolvable& failure) {
      const std::string name = failure.name().empty() ? std::string(source) : failure.name();
      return {{}, VbError(kErrUnknownSource, standardErrorText(kErrUnknownSource, name))};
    }
  }

  QueryResult analyse(std::string_view source) {
    const std::string_view text = trimmed(source);
    if (text.empty()) throw Unresolvable();
    if (const std::shared_ptr<const StandIn> named = standIn(text)) return copyOf(*named);
    if (text.size() > 2 && text.front() == '[' && text.find(']') == text.size() - 1) {
      const std::string_view inner = trimmed(text.substr(1, text.size() - 2));
      if (const std::shared_ptr<const StandIn> named = standIn(inner)) return copyOf(*named);
    }
    if (!looksLikeSql(text)) throw Unresolvable();
    return analyseStatement(text, *this);
  }

  static QueryResult copyOf(const StandIn& standIn) {
    return {standIn.fields(), standIn.parameters(), standIn.furtherFields()};
  }

  // The table or query of the name; null for an unknown name.
  std::shared_ptr<const StandIn> standIn(std::string_view name) {
    const std::string key = foldName(name);
    const auto known = standIns_.find(key);
    if (known != standIns_.end()) return known->second;
    std::shared_ptr<const StandIn> made;
    if (std::optional<SchemaTable> table = schema_.findTable(name)) {
      made = std::make_shared<StandIn>(database_, tableResult(std::move(*table)));
    } else if (std::optional<SchemaQuery> query = schema_.findQuery(name)) {
      made = std::make_shared<StandIn>(database_, queryResult(*query, key));
    } else {
      return nullptr;
    }
    standIns_.emplace(key, made);
    return made;
  }

  QueryResult queryResult(const SchemaQuery& query, const std::string& key) {
    const NestingGuard guard(nesting_);
    const InProgress inProgress(inProgress_, key, query.name);
    QueryResult result;
    if (query.fields) {
      result.fields = *query.fields;
    } else {
      try {
        result = analyseStatement(query.sql, *this);
      } catch (const Unresolvable& failure) {
        throw Unresolvable(failure.name().empty() ? query.name : failure.name());
      }
    }
    ParameterList parameters;
    for (const SourceParameter& parameter : result.parameters) parameters.add(parameter);
    for (const std::string& name : query.parameters) parameters.add({name});
    result.parameters = parameters.take();
    return result;
  }

  const Schema& schema_;
  ColumnDatabase database_;
  int nesting_ = 0;
  std::set<std::string> inProgress_;
  std::unordered_map<std::string, std::shared_ptr<const StandIn>> standIns_;
  std::unordered_map<std::string, Answer> answers_;
};

RecordSourceAnalyzer::RecordSourceAnalyzer(const Schema& schema)
    : impl_(std::make_unique<Impl>(schema)) {}
RecordSourceAnalyzer::~RecordSourceAnalyzer() = default;
RecordSourceAnalyzer::RecordSourceAnalyzer(RecordSourceAnalyzer&&) noexcept = default;
RecordSourceAnalyzer& RecordSourceAnalyzer::operator=(RecordSourceAnalyzer&&) noexcept = default;

std::vector<SourceField> RecordSourceAnalyzer::fieldsOf(std::string_view source,
                                                        const SuppliedParameters& supplied) {
  const QueryResult& result = impl_->resultOfSource(source);
  std::set<std::string> values;
  for (const std::string& name : supplied) values.insert(ParameterList::key(name));
  const auto missing = std::count_if(result.parameters.begin(), result.parameters.end(),
                                     [&](const SourceParameter& parameter) {
                                       return !values.contains(ParameterList::key(parameter.name));
                                     });
  if (missing > 0) raise(kErrTooFewParameters, std::to_string(missing));
  return withKnownTypes(result.fields);
}

std::vector<SourceField> RecordSourceAnalyzer::fieldsWithParameters(std::string_view source) {
  return withKnownTypes(impl_->resultOfSource(source).fields);
}

std::vector<SourceParameter> RecordSourceAnalyzer::parametersOf(std::string_view source) {
  return impl_->resultOfSource(source).parameters;
}

}  // namespace tarrowin
