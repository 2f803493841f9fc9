// The rows of saved queries, and relations put together from one row a pair of fields.
// See system_tables.h.
#include "access/mdb/system_tables.h"

#include <algorithm>
#include <map>
#include <string>

#include "access/mdb/damage.h"

namespace tarrowin::mdb {
namespace {

struct RelationColumns {
  explicit RelationColumns(const TableDefinition& definition)
      : name(definition.require("szRelationship")),
        attributes(definition.require("grbit")),
        count(definition.require("ccolumn")),
        index(definition.require("icolumn")),
        foreignTable(definition.require("szObject")),
        foreignColumn(definition.require("szColumn")),
        table(definition.require("szReferencedObject")),
        column(definition.require("szReferencedColumn")) {}

  std::size_t name, attributes, count, index, foreignTable, foreignColumn, table, column;
};

// A relation while its pairs come in, by their place.
struct PartialRelation {
  Relation relation;
  std::int32_t count = 0;
  std::map<std::int32_t, RelationField> pairs;
};

bool isSystemName(const std::string& name) {
  return name.size() >= 4 && compareIgnoringCase(std::string_view(name).substr(0, 4), "MSys") == 0;
}

Relation complete(PartialRelation& partial) {
  Relation& relation = partial.relation;
  if (static_cast<std::int64_t>(partial.pairs.size()) != partial.count) {
    raiseDamaged("the relation \"" + relation.name + "\" should have " +
                 std::to_string(partial.count) + " pairs of fields, but has " +
                 std::to_string(partial.pairs.size()));
  }
  for (auto& [index, pair] : partial.pairs) relation.fields.push_back(std::move(pair));
  return std::move(relation);
}

}  // namespace

QueryIndex indexQueries(const FileContext& file, const TableDefinition& definition) {
  QueryIndex index;
  std::size_t id = definition.require("ObjectId");
  RowCursor row(file, definition);
  while (row.next()) index[row.number(id).value_or(0)].push_back(row.address());
  return index;
}

std::vector<QueryRow> readQueryRows(const FileContext& file, const TableDefinition& definition,
                                    const std::vector<RowAddress>& rows) {
  std::size_t attribute = definition.require("Attribute");
  std::size_t order = definition.require("Order");
  std::size_t name1 = definition.require("Name1");
  std::size_t name2 = definition.require("Name2");
  std::size_t expression = definition.require("Expression");
  std::size_t flag = definition.require("Flag");
  std::size_t extra = definition.find("LvExtra");  // not in Jet 3
  bool hasExtra = extra < definition.columns.size();
  std::vector<QueryRow> result;
  RowCursor cursor(file, definition);
  for (RowAddress address : rows) {
    cursor.moveTo(address);
    QueryRow row;
    row.attribute = cursor.number(attribute).value_or(0);
    row.order = cursor.bytes(order);
    row.name1 = cursor.text(name1);
    row.name2 = cursor.text(name2);
    row.expression = cursor.text(expression);
    row.flag = cursor.number(flag);
    if (hasExtra) row.extra = cursor.number(extra);
    result.push_back(std::move(row));
  }
  return result;
}

std::vector<Relation> readRelations(const FileContext& file, const TableDefinition& definition) {
  RelationColumns columns(definition);
  std::map<std::string, PartialRelation> partials;
  RowCursor row(file, definition);
  while (row.next()) {
    std::string name = row.text(columns.name).value_or("");
    PartialRelation& partial = partials[name];
    partial.relation.name = name;
    partial.relation.table = row.text(columns.table).value_or("");
    partial.relation.foreignTable = row.text(columns.foreignTable).value_or("");
    partial.relation.attributes = row.number(columns.attributes).value_or(0);
    partial.count = row.number(columns.count).value_or(0);
    partial.pairs[row.number(columns.index).value_or(0)] = RelationField{
        row.text(columns.column).value_or(""), row.text(columns.foreignColumn).value_or("")};
  }
  std::vector<Relation> relations;
  for (auto& [name, partial] : partials) {
    if (isSystemName(partial.relation.table) || isSystemName(partial.relation.foreignTable))
      continue;
    relations.push_back(complete(partial));
  }
  std::sort(relations.begin(), relations.end(), [](const Relation& left, const Relation& right) {
    return nameLess(left.name, right.name);
  });
  return relations;
}

}  // namespace tarrowin::mdb
