// Statements: the declared parameters, the branches of a union and the types common to them.
#include "access/record_source/query_analysis.h"

#include <algorithm>
#include <utility>

#include "access/record_source/nesting.h"
#include "access/record_source/select_analysis.h"
#include "access/record_source/value_type.h"

namespace tarrowin {
namespace {

// The fields of a union: named by its first SELECT, with room for the values of all, and without
// an origin.
void joinBranch(std::vector<SourceField>& fields, const std::vector<SourceField>& branch) {
  if (fields.size() != branch.size()) throw Unresolvable();
  for (std::size_t i = 0; i < fields.size(); ++i) {
    SourceField& field = fields[i];
    const int common = commonType(field.type, branch[i].type);
    if (field.type == branch[i].type) {
      field.size = std::max(field.size, branch[i].size);
    } else if (common != field.type || branch[i].type != kTypeUnknown) {
      field.size = field.type == kTypeUnknown ? branch[i].size : sizeOfType(common);
    }
    field.type = common;
  }
}

class StatementAnalysis : public StatementContext {
 public:
  StatementAnalysis(std::string_view sql, SourceLookup& lookup)
      : tokens_(tokenize(sql)), lookup_(lookup) {}

  QueryResult run() {
    const Statement statement = parseStatement(tokens_);
    for (const SourceParameter& parameter : statement.parameters) parameters_.add(parameter);
    QueryResult result = analyse(statement.query, nullptr);
    result.parameters = parameters_.take();
    return result;
  }

  QueryResult analyse(const QueryTree& query, const SelectAnalysis* outer) override {
    const NestingGuard guard(lookup_.nesting());
    const Pivot* pivot = query.pivot ? &*query.pivot : nullptr;
    SelectAnalysis first(*this, query.branches.front(), pivot, outer);
    QueryResult result = first.run();
    for (std::size_t i = 1; i < query.branches.size(); ++i) {
      joinBranch(result.fields,
                 SelectAnalysis(*this, query.branches[i], nullptr, outer).run().fields);
    }
    first.checkOrder(query.orderBy);
    if (query.branches.size() > 1) {
      for (SourceField& field : result.fields) field.sourceTable = field.sourceField = "";
    }
    return result;
  }

  const std::vector<Token>& tokens() const override { return tokens_; }
  ParameterList& parameters() override { return parameters_; }
  SourceLookup& lookup() override { return lookup_; }

 private:
  std::vector<Token> tokens_;
  SourceLookup& lookup_;
  ParameterList parameters_;
};

}  // namespace

QueryResult analyseStatement(std::string_view sql, SourceLookup& lookup) {
  return StatementAnalysis(sql, lookup).run();
}

}  // namespace tarrowin
