// The parts of an exported query are what the database keeps of it in rows; they become such rows
// again, and their text is made by the same rules.
#include "access/exports/query_export.h"

#include <algorithm>
#include <array>
#include <utility>

#include "access/exports/line_ends.h"
#include "access/exports/text_tree.h"
#include "access/mdb/query_row_table.h"
#include "access/mdb/query_text.h"

namespace tarrowin::exports {

namespace {

using mdb::QueryAttribute;
using mdb::QueryKind;
using mdb::QueryRow;

constexpr std::array kKindsByOperation = {QueryKind::kSelect, QueryKind::kMakeTable,
                                          QueryKind::kAppend, QueryKind::kUpdate,
                                          QueryKind::kDelete, QueryKind::kCrosstab};

// The size of a text parameter is not exported; every text has this one.
constexpr std::int32_t kText = 10, kTextSize = 255;

class QueryRows {
 public:
  QueryRows(const TextBlock& top, const CodePage& codePage) : codePage_(codePage) {
    addStatement(top);
    addConditions(top);
    for (const TextBlock& block : top.children) addBlock(block);
  }

  const std::vector<QueryRow>& rows() const { return rows_; }

 private:
  QueryRow& add(QueryAttribute attribute) {
    QueryRow& row = rows_.emplace_back();
    row.attribute = static_cast<int>(attribute);
    return row;
  }
  // None for what is no text.
  std::optional<std::string> textOf(const TextProperty* property) const {
    const std::string* text = property ? property->text() : nullptr;
    return text ? std::optional(codePage_.toUtf8(*text)) : std::nullopt;
  }
  static std::optional<std::int32_t> numberOf(const TextProperty* property) {
    const std::int32_t* number = property ? property->number() : nullptr;
    return number ? std::optional(*number) : std::nullopt;
  }

  void addStatement(const TextBlock& top) {
    QueryRow& kind = add(QueryAttribute::kKind);
    kind.flag = numberOf(top.find("Operation"));
    kind.name1 = textOf(top.find("Name"));
    kind.name2 = textOf(top.find("Database"));
    QueryRow& options = add(QueryAttribute::kOptions);
    options.flag = numberOf(top.find("Option"));
    options.name1 = textOf(top.find("RowCount"));
  }

  void addConditions(const TextBlock& top) {
    for (const auto& [keyword, attribute] :
         {std::pair{"Where", QueryAttribute::kWhere}, {"Having", QueryAttribute::kHaving}})
      if (auto text = textOf(top.find(keyword))) add(attribute).expression = std::move(text);
  }

  void addBlock(const TextBlock& block) {
    if (block.kind == "InputTables") return addSources(block);
    if (block.kind == "OutputColumns") return addColumns(block);
    if (block.kind == "Joins") return addJoins(block);
    if (block.kind == "OrderBy") return addOrder(block);
    if (block.kind == "Groups") return addGroups(block);
    if (block.kind == "Parameters") return addParameters(block);
    // The fields' formats and the designer's window.
    if (!block.kind.empty())
      throw ExportTextError(block.line, "\"" + block.kind + "\" is no part of a query");
  }

  // An alias belongs to the name above it.
  void addSources(const TextBlock& block) {
    QueryRow* source = nullptr;
    for (const TextProperty& property : block.properties) {
      if (property.keyword == "Name") {
        source = &add(QueryAttribute::kSource);
        source->name1 = textOf(&property);
      } else if (property.keyword == "Alias") {
        if (source == nullptr) throw ExportTextError(property.line, "an alias without its table");
        source->name2 = textOf(&property);
      }
    }
  }

  // Alias and target stand before their expression, the role in a crosstab behind it.
  void addColumns(const TextBlock& block) {
    QueryRow next;
    QueryRow* column = nullptr;
    for (const TextProperty& property : block.properties) {
      if (property.keyword == "Alias") {
        next.name1 = textOf(&property);
      } else if (property.keyword == "Name") {
        next.name2 = textOf(&property);
      } else if (property.keyword == "Expression") {
        column = &add(QueryAttribute::kColumn);
        next.attribute = column->attribute;
        next.expression = textOf(&property);
        *column = std::exchange(next, {});
      } else if (property.keyword == "GroupLevel" && column != nullptr) {
        column->flag = numberOf(&property);
      }
    }
  }

  // Four lines a join, the last one its kind.
  void addJoins(const TextBlock& block) {
    QueryRow next;
    for (const TextProperty& property : block.properties) {
      if (property.keyword == "LeftTable") {
        next.name1 = textOf(&property);
      } else if (property.keyword == "RightTable") {
        next.name2 = textOf(&property);
      } else if (property.keyword == "Expression") {
        next.expression = textOf(&property);
      } else if (property.keyword == "Flag") {
        next.flag = numberOf(&property);
        next.attribute = static_cast<int>(QueryAttribute::kJoin);
        rows_.push_back(std::exchange(next, {}));
      }
    }
    if (next.expression) throw ExportTextError(block.line, "a join without its kind");
  }

  void addOrder(const TextBlock& block) {
    QueryRow* row = nullptr;
    for (const TextProperty& property : block.properties) {
      if (property.keyword == "Expression") {
        row = &add(QueryAttribute::kOrderBy);
        row->expression = textOf(&property);
      } else if (property.keyword == "Flag" && row != nullptr && numberOf(&property) == 1) {
        row->name1 = "D";
      }
    }
  }

  void addGroups(const TextBlock& block) {
    QueryRow* row = nullptr;
    for (const TextProperty& property : block.properties) {
      if (property.keyword == "Expression") {
        row = &add(QueryAttribute::kGroupBy);
        row->expression = textOf(&property);
      } else if (property.keyword == "GroupLevel" && row != nullptr) {
        row->flag = numberOf(&property);
      }
    }
  }

  void addParameters(const TextBlock& block) {
    QueryRow* row = nullptr;
    for (const TextProperty& property : block.properties) {
      if (property.keyword == "Name") {
        row = &add(QueryAttribute::kParameter);
        row->name1 = textOf(&property);
      } else if (property.keyword == "Flag" && row != nullptr) {
        row->flag = numberOf(&property);
        if (row->flag == kText) row->extra = kTextSize;
      }
    }
  }

  CodePage codePage_;
  std::vector<QueryRow> rows_;
};

const TextProperty* typedProperty(const TextBlock& top, std::string_view name) {
  const TextProperty* const found = top.find(name);
  return found && found->typed ? found : nullptr;
}

}  // namespace

ExportedQuery readQueryText(std::string_view text, const CodePage& codePage) {
  const TextTree tree = parseTextTree(text, codePage);
  const TextBlock& top = tree.top;
  ExportedQuery query;
  if (const TextProperty* connect = typedProperty(top, "Connect"); connect && connect->text())
    query.connect = *connect->text();
  if (const TextProperty* sql = typedProperty(top, "SQL")) {
    if (!sql->text()) throw ExportTextError(sql->line, "no text behind \"SQL\"");
    query.sql = *sql->text();
    return query;
  }
  const TextProperty* const operation = top.find("Operation");
  if (!operation || !operation->number())
    throw ExportTextError(1, "neither \"Operation =\" nor an SQL text");
  if (!queryTypeOfOperation(*operation->number()))
    throw ExportTextError(operation->line, "an unknown operation");
  const QueryRows parts(top, codePage);
  query.sql = codePage.fromUtf8(mdb::querySql(parts.rows(), 0));
  for (const mdb::QueryParameter& parameter : mdb::queryParameters(parts.rows()))
    query.parameters.push_back({codePage.fromUtf8(parameter.name), parameter.type});
  return query;
}

std::string sqlFromFile(std::string_view text) {
  std::string sql = withCrLf(text);
  const std::size_t last = sql.find_last_not_of(" \t\r\n");
  if (last != std::string::npos && sql[last] == ';')
    sql.replace(last + 1, std::string::npos, "\r\n");
  return sql;
}

std::optional<std::int32_t> queryTypeOfOperation(std::int32_t operation) {
  if (operation < 1 || operation > static_cast<std::int32_t>(kKindsByOperation.size()))
    return std::nullopt;
  return static_cast<std::int32_t>(kKindsByOperation[static_cast<std::size_t>(operation - 1)]);
}

}  // namespace tarrowin::exports
