// The schema of a small order-entry database, and results in a form that a test can list.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "access/record_source/record_source.h"

namespace tarrowin {

class OrderSchema : public Schema {
 public:
  OrderSchema();

  std::optional<SchemaTable> findTable(std::string_view name) const override;
  std::optional<SchemaQuery> findQuery(std::string_view name) const override;

  void add(SchemaTable table);
  void add(SchemaQuery query);

  // How often a table or query that exists was asked for.
  int found() const { return found_; }

 private:
  std::map<std::string, SchemaTable> tables_;
  std::map<std::string, SchemaQuery> queries_;
  mutable int found_ = 0;
};

// Each field as "Name Type Size SourceTable", the last missing where it is empty.
std::vector<std::string> shown(const std::vector<SourceField>& fields);
// The fields of the source over an OrderSchema.
std::vector<std::string> fieldsOf(std::string_view source, const SuppliedParameters& supplied = {});
// The number and description of the error that the source raises, as "3078 text"; "none" without.
std::string errorOf(std::string_view source, const SuppliedParameters& supplied = {});
// The parameters of the source, each as "Name Type".
std::vector<std::string> parametersOf(std::string_view source);

// The error texts of an unknown source and of missing parameters.
std::string unknown(std::string_view name);
std::string tooFew(int expected);

}  // namespace tarrowin
