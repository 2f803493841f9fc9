// Binding of names as Access does it: fields first, then aliases of the select list, then
// constants; what is left is a parameter.
#include "access/record_source/select_analysis.h"

#include <algorithm>
#include <set>
#include <unordered_set>
#include <utility>

#include "access/record_source/fold_name.h"
#include "access/record_source/value_type.h"

namespace tarrowin {
namespace {

// SQLite joins no more tables; Access takes 32.
constexpr std::size_t kMaxSources = 64;
// Of a field: a database, a table, a field that has a dot itself. More are a reference to objects.
constexpr std::size_t kMaxNameParts = 8;
// The name that the engine gives to a subquery without one.
constexpr std::string_view kSubqueryAlias = "%$##@_Alias";
// The number of the first column without a name, as the engine counts them.
constexpr std::size_t kFirstExpression = 1000;

std::string expressionName(std::size_t item) {
  return "Expr" + std::to_string(kFirstExpression + item);
}

bool isConstant(const NameChain& name) {
  static constexpr std::string_view kWords[] = {"TRUE", "FALSE", "YES", "NO", "ON", "OFF"};
  return std::any_of(std::begin(kWords), std::end(kWords),
                     [&](std::string_view word) { return equalsWord(name.written, word); });
}

}  // namespace

SelectAnalysis::SelectAnalysis(StatementContext& context, const SelectTree& tree,
                               const Pivot* pivot, const SelectAnalysis* outer)
    : context_(context), tree_(tree), pivot_(pivot), outer_(outer) {}

QueryResult SelectAnalysis::run() {
  bindSources();
  bindAliases();
  const std::string select = "SELECT " + planColumns() + clauses();
  std::vector<ColumnOrigin> origins = context_.lookup().database().columnsOf(select);
  const std::size_t pivotColumns = pivot_ != nullptr ? 2 : 0;
  if (origins.size() != planned_.size() + pivotColumns) throw Unresolvable();
  origins.resize(planned_.size());

  QueryResult result;
  result.fields = fieldsFrom(origins);
  makeNamesUnique(result.fields);
  for (const PlannedColumn& column : planned_) {
    const bool fromStar = tree_.items[column.item].isStar;
    if (fromStar && column.source->standIn->furtherFields()) {
      result.furtherFields = column.source->standIn->furtherFields();
    }
  }
  if (pivot_ != nullptr) addCrosstabFields(result);
  return result;
}

void SelectAnalysis::bindSources() {
  if (tree_.sources.size() > kMaxSources) throw Unresolvable();
  std::set<std::string> names;
  for (const FromSource& from : tree_.sources) {
    Source source;
    if (from.subquery) {
      // A subquery in FROM does not see the sources beside it. Its parameters are the statement's.
      source.standIn = std::make_shared<StandIn>(context_.lookup().database(),
                                                 context_.analyse(*from.subquery, outer_));
      source.name = kSubqueryAlias;
    } else {
      source.standIn = context_.lookup().source(from.name);
      source.name = from.name.parts.back();
    }
    if (!from.alias.empty()) source.name = from.alias;
    source.key = foldName(source.name);
    source.fullKey = from.alias.empty() ? foldName(from.name.joined()) : source.key;
    for (const SourceParameter& parameter : source.standIn->parameters()) {
      context_.parameters().add(parameter);
    }
    if (!names.insert(source.key).second) throw Unresolvable();
    sources_.push_back(std::move(source));
  }
}

void SelectAnalysis::bindAliases() {
  items_.resize(tree_.items.size());
  for (std::size_t i = 0; i < tree_.items.size(); ++i) {
    const std::string& alias = tree_.items[i].alias;
    if (!alias.empty()) itemByAlias_.emplace(foldName(alias), i);
  }
}

const SelectAnalysis::Source* SelectAnalysis::findSource(std::string_view name) const {
  const std::string key = foldName(name);
  for (const Source& source : sources_) {
    if (source.key == key || source.fullKey == key) return &source;
  }
  return nullptr;
}

// The name may be cut into source and field at any dot, as fields may have dots themselves.
std::optional<SelectAnalysis::Column> SelectAnalysis::findColumn(const NameChain& name) const {
  if (name.parts.size() > kMaxNameParts) return std::nullopt;
  std::string sourceName;
  for (std::size_t cut = 1; cut < name.parts.size(); ++cut) {
    if (cut > 1) sourceName += '.';
    sourceName += name.parts[cut - 1];
    const Source* source = findSource(sourceName);
    if (source == nullptr) continue;
    const std::optional<std::size_t> index = source->standIn->find(foldName(name.joined(cut)));
    if (index) return Column{source, &source->standIn->fields()[*index]};
  }
  return findInAnySource(foldName(name.joined()));
}

std::optional<SelectAnalysis::Column> SelectAnalysis::findInAnySource(
    const std::string& foldedField) const {
  std::optional<Column> found;
  for (const Source& source : sources_) {
    const std::optional<std::size_t> index = source.standIn->find(foldedField);
    if (!index) continue;
    if (found) throw Unresolvable();  // it could be either source's
    found = Column{&source, &source.standIn->fields()[*index]};
  }
  return found;
}

// The type of a field that only the data of a crosstab would show.
std::optional<int> SelectAnalysis::furtherField(const NameChain& name) const {
  if (name.parts.size() == 2) {
    const Source* source = findSource(name.parts.front());
    return source != nullptr ? source->standIn->furtherFields() : std::nullopt;
  }
  if (name.parts.size() > 1) return std::nullopt;
  for (const Source& source : sources_) {
    if (source.standIn->furtherFields()) return source.standIn->furtherFields();
  }
  return std::nullopt;
}

ExpressionValue SelectAnalysis::resolve(const NameChain& name) {
  if (const std::optional<Column> column = findColumn(name)) {
    return {quotedName(column->source->name) + "." + quotedName(column->field->name),
            column->field->type};
  }
  for (const SelectAnalysis* scope = outer_; scope != nullptr; scope = scope->outer_) {
    if (const std::optional<Column> column = scope->findColumn(name)) {
      return {"", column->field->type};
    }
  }
  if (aliasesCount_ && name.parts.size() == 1) {
    const auto alias = itemByAlias_.find(foldName(name.parts.front()));
    if (alias != itemByAlias_.end()) return {"", itemValue(alias->second).type};
  }
  if (isConstant(name)) return {"", kTypeBoolean};
  for (const SelectAnalysis* scope = this; scope != nullptr; scope = scope->outer_) {
    if (const std::optional<int> type = scope->furtherField(name)) return {"", *type};
  }
  SourceParameter parameter;
  parameter.name = name.parts.size() == 1 ? name.parts.front() : name.written;
  return {"", context_.parameters().add(parameter)};
}

int SelectAnalysis::subqueryType(const QueryTree& query) {
  const QueryResult result = context_.analyse(query, this);
  return result.fields.empty() ? kTypeUnknown : result.fields.front().type;
}

const ExpressionValue& SelectAnalysis::itemValue(std::size_t item) {
  ItemValue& entry = items_[item];
  if (entry.state == ItemValue::State::Reading) throw Unresolvable();  // an alias means itself
  if (entry.state == ItemValue::State::Unread) {
    entry.state = ItemValue::State::Reading;
    entry.value = read(tree_.items[item].expression, true);
    entry.state = ItemValue::State::Read;
  }
  return entry.value;
}

ExpressionValue SelectAnalysis::read(TokenRange range, bool aliasesCount) {
  const bool before = std::exchange(aliasesCount_, aliasesCount);
  ExpressionValue value = readExpression(context_.tokens(), range, *this);
  aliasesCount_ = before;
  return value;
}

std::string SelectAnalysis::readAll(const std::vector<TokenRange>& ranges,
                                    std::string_view separator, bool aliasesCount) {
  std::string sql;
  for (const TokenRange& range : ranges) {
    if (!sql.empty()) sql += separator;
    sql += read(range, aliasesCount).sql;
  }
  return sql;
}

std::string SelectAnalysis::planColumns() {
  std::string sql;
  for (std::size_t i = 0; i < tree_.items.size(); ++i) {
    if (i > 0) sql += ',';
    sql += tree_.items[i].isStar ? planStar(i) : planExpression(i);
  }
  if (pivot_ != nullptr) {
    const ExpressionValue value = read(pivot_->value, false);
    pivotType_ = value.type;
    sql += ',' + value.sql + ',' + read(pivot_->heading, false).sql;
  }
  return sql;
}

std::string SelectAnalysis::planStar(std::size_t item) {
  const auto planSource = [&](const Source& source) {
    for (const SourceField& field : source.standIn->fields()) {
      planned_.push_back({item, &source, field.type, false});
    }
  };
  const NameChain& name = tree_.items[item].starOf;
  if (name.parts.empty()) {
    std::for_each(sources_.begin(), sources_.end(), planSource);
    return "*";
  }
  const Source* source = findSource(name.joined());
  if (source == nullptr) throw Unresolvable();
  planSource(*source);
  return quotedName(source->name) + ".*";
}

std::string SelectAnalysis::planExpression(std::size_t item) {
  const SelectItem& selected = tree_.items[item];
  const ExpressionValue& value = itemValue(item);
  const std::optional<NameChain> name = loneName(context_.tokens(), selected.expression);
  const std::optional<Column> column = name ? findColumn(*name) : std::nullopt;
  planned_.push_back(
      {item, column ? column->source : nullptr, value.type, !selected.alias.empty()});
  if (!selected.alias.empty()) return value.sql + " AS " + quotedName(selected.alias);
  if (column) return value.sql;
  return value.sql + " AS " + quotedName(expressionName(item));
}

// Everything behind the select list. The joins become a plain list of tables and their conditions
// part of WHERE, as no row is ever looked at.
std::string SelectAnalysis::clauses() {
  std::string sql;
  for (const Source& source : sources_) {
    sql += sql.empty() ? " FROM " : ",";
    sql += source.standIn->table() + " AS " + quotedName(source.name);
  }
  if (!tree_.conditions.empty()) sql += " WHERE " + readAll(tree_.conditions, " AND ", false);
  if (!tree_.groupBy.empty()) sql += " GROUP BY " + readAll(tree_.groupBy, ",", false);
  if (!tree_.having.empty()) sql += " HAVING " + read(tree_.having, false).sql;
  if (!tree_.orderBy.empty()) sql += " ORDER BY " + readAll(tree_.orderBy, ",", true);
  return sql;
}

void SelectAnalysis::checkOrder(const std::vector<TokenRange>& terms) { readAll(terms, ",", true); }

std::vector<SourceField> SelectAnalysis::fieldsFrom(
    const std::vector<ColumnOrigin>& origins) const {
  std::vector<SourceField> fields;
  for (std::size_t i = 0; i < origins.size(); ++i) {
    const ColumnOrigin& origin = origins[i];
    const auto source =
        std::find_if(sources_.begin(), sources_.end(), [&](const Source& candidate) {
          return !origin.table.empty() && candidate.standIn->table() == origin.table;
        });
    SourceField field;
    if (source != sources_.end()) {
      field = source->standIn->fields().at(source->standIn->find(foldName(origin.column)).value());
    } else {
      field.type = planned_[i].type;
      field.size = sizeOfType(field.type);
    }
    field.name = origin.name;
    fields.push_back(std::move(field));
  }
  return fields;
}

// Fields of one name from several sources are all named with their source; one more mention of the
// same field is named like an expression. Two equal aliases are an error.
void SelectAnalysis::makeNamesUnique(std::vector<SourceField>& fields) const {
  const auto isBare = [&](std::size_t i) {
    return planned_[i].source != nullptr && !planned_[i].hasAlias;
  };
  // By name, the different things that bear it: sources, and null for computed or aliased columns.
  std::unordered_map<std::string, std::set<const Source*>> bearers;
  for (std::size_t i = 0; i < fields.size(); ++i) {
    bearers[foldName(fields[i].name)].insert(isBare(i) ? planned_[i].source : nullptr);
  }
  std::unordered_set<std::string> taken;
  std::vector<std::size_t> repeated;
  for (std::size_t i = 0; i < fields.size(); ++i) {
    const bool shared = bearers[foldName(fields[i].name)].size() > 1;
    if (shared && isBare(i)) fields[i].name = planned_[i].source->name + "." + fields[i].name;
    if (taken.insert(foldName(fields[i].name)).second) continue;
    if (!isBare(i)) throw Unresolvable();
    repeated.push_back(i);
  }
  std::size_t number = 0;
  for (const std::size_t i : repeated) {
    number = std::max(number, planned_[i].item);
    while (!taken.insert(foldName(expressionName(number))).second) ++number;
    fields[i].name = expressionName(number);
  }
}

void SelectAnalysis::addCrosstabFields(QueryResult& result) const {
  for (const std::string& heading : pivot_->headings) {
    SourceField field;
    field.name = heading;
    field.type = pivotType_;
    field.size = sizeOfType(pivotType_);
    result.fields.push_back(std::move(field));
  }
  if (pivot_->headings.empty()) result.furtherFields = pivotType_;
}

}  // namespace tarrowin
