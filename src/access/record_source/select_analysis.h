// One SELECT: its sources, the meaning of the names in it, and its columns as SQLite sees them.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "access/record_source/expression.h"
#include "access/record_source/query_analysis.h"

namespace tarrowin {

class SelectAnalysis;

// The statement around a SELECT.
class StatementContext {
 public:
  virtual ~StatementContext() = default;
  // The result of a query inside the statement; outer is the SELECT whose names it may use.
  virtual QueryResult analyse(const QueryTree& query, const SelectAnalysis* outer) = 0;
  virtual const std::vector<Token>& tokens() const = 0;
  virtual ParameterList& parameters() = 0;
  virtual SourceLookup& lookup() = 0;
};

class SelectAnalysis : public ExpressionScope {
 public:
  // All arguments have to outlive the analysis; outer and pivot may be null.
  SelectAnalysis(StatementContext& context, const SelectTree& tree, const Pivot* pivot,
                 const SelectAnalysis* outer);

  QueryResult run();
  // Checks the ORDER BY terms of a union of which this is the first SELECT.
  void checkOrder(const std::vector<TokenRange>& terms);

  ExpressionValue resolve(const NameChain& name) override;
  int subqueryType(const QueryTree& query) override;
  int& nesting() override { return context_.lookup().nesting(); }

 private:
  struct Source {
    std::string name;     // the alias, else the last part of the name
    std::string key;      // the name, folded
    std::string fullKey;  // with its qualifiers, folded
    std::shared_ptr<const StandIn> standIn;
  };
  struct Column {
    const Source* source;
    const SourceField* field;
  };
  // A column of the result before SQLite names it.
  struct PlannedColumn {
    std::size_t item;      // in the select list
    const Source* source;  // null for a computed column
    int type;
    bool hasAlias;
  };
  struct ItemValue {
    enum class State { Unread, Reading, Read } state = State::Unread;
    ExpressionValue value;
  };

  void bindSources();
  void bindAliases();
  const Source* findSource(std::string_view name) const;
  std::optional<Column> findColumn(const NameChain& name) const;
  std::optional<Column> findInAnySource(const std::string& foldedField) const;
  std::optional<int> furtherField(const NameChain& name) const;
  const ExpressionValue& itemValue(std::size_t item);
  ExpressionValue read(TokenRange range, bool aliasesCount);
  std::string readAll(const std::vector<TokenRange>& ranges, std::string_view separator,
                      bool aliasesCount);

  std::string planColumns();
  std::string planStar(std::size_t item);
  std::string planExpression(std::size_t item);
  std::string clauses();
  std::vector<SourceField> fieldsFrom(const std::vector<ColumnOrigin>& origins) const;
  void makeNamesUnique(std::vector<SourceField>& fields) const;
  void addCrosstabFields(QueryResult& result) const;

  StatementContext& context_;
  const SelectTree& tree_;
  const Pivot* pivot_;
  const SelectAnalysis* outer_;
  std::vector<Source> sources_;
  std::unordered_map<std::string, std::size_t> itemByAlias_;
  std::vector<ItemValue> items_;
  std::vector<PlannedColumn> planned_;
  int pivotType_ = 0;
  bool aliasesCount_ = false;
};

}  // namespace tarrowin
