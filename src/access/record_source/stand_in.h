// What a SELECT sees of a table or a query: its fields, and an empty SQLite table of their names
// that stands in for it.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "access/record_source/column_database.h"
#include "access/record_source/record_source.h"

namespace tarrowin {

// What the analysis of a query finds. A field's type 0 is unknown.
struct QueryResult {
  std::vector<SourceField> fields;
  std::vector<SourceParameter> parameters;
  // Of a crosstab without an In list: the data add fields of this type.
  std::optional<int> furtherFields;
};

// Queries stand in as tables as well: a view that nests views would be expanded at each use, which
// takes exponential time for queries that use others twice.
class StandIn {
 public:
  // The database has to outlive the stand-in.
  StandIn(ColumnDatabase& database, QueryResult result);
  StandIn(const StandIn&) = delete;
  StandIn& operator=(const StandIn&) = delete;
  ~StandIn();

  const std::vector<SourceField>& fields() const { return result_.fields; }
  const std::vector<SourceParameter>& parameters() const { return result_.parameters; }
  std::optional<int> furtherFields() const { return result_.furtherFields; }

  // The index of the field whose name, folded, is this.
  std::optional<std::size_t> find(const std::string& foldedName) const;

  // The SQLite table, created at the first call. Throws Unresolvable for fields that make no table.
  const std::string& table() const;

 private:
  ColumnDatabase& database_;
  QueryResult result_;
  std::unordered_map<std::string, std::size_t> indexByName_;
  mutable std::string table_;
};

// The parameters that a statement needs, each once. Names match as SuppliedParameters says.
class ParameterList {
 public:
  // Gives the type: that of the parameter of the same name when there is one already.
  int add(const SourceParameter& parameter);
  std::vector<SourceParameter> take() { return std::move(parameters_); }

  // The form of a name in which spellings of the same parameter are equal.
  static std::string key(std::string_view name);

 private:
  std::vector<SourceParameter> parameters_;
  std::unordered_map<std::string, std::size_t> indexByKey_;
};

}  // namespace tarrowin
