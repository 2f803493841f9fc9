// Stand-ins and parameter lists: lookups by folded name.
#include "access/record_source/stand_in.h"

#include <utility>

#include "access/record_source/fold_name.h"

namespace tarrowin {

StandIn::StandIn(ColumnDatabase& database, QueryResult result)
    : database_(database), result_(std::move(result)) {
  for (std::size_t i = 0; i < result_.fields.size(); ++i) {
    indexByName_.emplace(foldName(result_.fields[i].name), i);
  }
}

StandIn::~StandIn() {
  if (!table_.empty()) database_.dropTable(table_);
}

std::optional<std::size_t> StandIn::find(const std::string& foldedName) const {
  const auto found = indexByName_.find(foldedName);
  if (found == indexByName_.end()) return std::nullopt;
  return found->second;
}

const std::string& StandIn::table() const {
  if (table_.empty()) {
    std::vector<std::string> columns;
    for (const SourceField& field : result_.fields) columns.push_back(field.name);
    table_ = database_.createTable(columns);
  }
  return table_;
}

int ParameterList::add(const SourceParameter& parameter) {
  const auto [entry, isNew] = indexByKey_.emplace(key(parameter.name), parameters_.size());
  if (isNew) parameters_.push_back(parameter);
  return parameters_[entry->second].type;
}

std::string ParameterList::key(std::string_view name) {
  std::string key;
  for (const char c : trimmed(name)) {
    if (c != '[' && c != ']') key += c == '!' ? '.' : c;
  }
  return foldName(trimmed(key));
}

}  // namespace tarrowin
