// One pass over MSysObjects; of the long columns only the two of linked tables are read.
// See catalog_reader.h.
#include "access/mdb/catalog_reader.h"

#include <algorithm>
#include <array>
#include <deque>
#include <utility>
#include <vector>

#include "access/mdb/damage.h"

namespace tarrowin::mdb {
namespace {

constexpr std::string_view kLeftover = "~TMP";  // names of deleted objects begin so

ObjectKind kindOf(int type) {
  switch (type) {
    case 1:
      return ObjectKind::kTable;
    case 4:  // through ODBC
    case 6:  // of another Jet file, a spreadsheet, a text file...
      return ObjectKind::kLinkedTable;
    case 5:
      return ObjectKind::kQuery;
    case -32768:
      return ObjectKind::kForm;
    case -32764:
      return ObjectKind::kReport;
    case -32766:
      return ObjectKind::kMacro;
    case -32761:
      return ObjectKind::kModule;
    case 2:
    case -32757:
      return ObjectKind::kDocument;
    case 3:
      return ObjectKind::kContainer;
    default:
      return ObjectKind::kOther;
  }
}

struct CatalogColumns {
  explicit CatalogColumns(const TableDefinition& table)
      : id(table.require("Id")),
        parentId(table.require("ParentId")),
        name(table.require("Name")),
        type(table.require("Type")),
        flags(table.require("Flags")),
        created(table.require("DateCreate")),
        updated(table.require("DateUpdate")),
        connect(table.require("Connect")),
        database(table.require("Database")),
        foreignName(table.require("ForeignName")) {}

  std::size_t id, parentId, name, type, flags, created, updated, connect, database, foreignName;
};

Date dateOf(const Value& value) { return value.date() != nullptr ? *value.date() : Date{}; }

CatalogObject readObject(const RowCursor& row, const CatalogColumns& columns) {
  CatalogObject object;
  object.id = row.number(columns.id).value_or(0);
  object.parentId = row.number(columns.parentId).value_or(0);
  object.name = row.text(columns.name).value_or("");
  object.kind = kindOf(row.number(columns.type).value_or(0));
  object.flags = static_cast<std::uint32_t>(row.number(columns.flags).value_or(0));
  object.created = dateOf(row.value(columns.created));
  object.updated = dateOf(row.value(columns.updated));
  if (object.kind == ObjectKind::kLinkedTable) {
    object.connect = row.text(columns.connect).value_or("");
    object.database = row.text(columns.database).value_or("");
    object.foreignName = row.text(columns.foreignName).value_or("");
  }
  return object;
}

// Objects as they are read. Large databases have thousands, so they are moved about only once, to
// their places in the list.
using ReadObjects = std::deque<CatalogObject>;

std::vector<CatalogObject> sortedByName(ReadObjects&& objects) {
  std::vector<CatalogObject*> order;
  order.reserve(objects.size());
  for (CatalogObject& object : objects) order.push_back(&object);
  std::ranges::stable_sort(order, [](const CatalogObject* left, const CatalogObject* right) {
    return nameLess(left->name, right->name);
  });
  std::vector<CatalogObject> sorted;
  sorted.reserve(order.size());
  for (CatalogObject* object : order) sorted.push_back(std::move(*object));
  return sorted;
}

}  // namespace

Catalog readCatalog(const FileContext& file, const TableDefinition& definition) {
  CatalogColumns columns(definition);
  Catalog catalog;
  std::array<ReadObjects, Catalog::kKinds> byKind;
  ReadObjects tables;
  RowCursor row(file, definition);
  while (row.next()) {
    CatalogObject object = readObject(row, columns);
    if (object.name.starts_with(kLeftover)) continue;
    catalog.rows.emplace(object.id, row.address());
    bool table = object.kind == ObjectKind::kTable || object.kind == ObjectKind::kLinkedTable;
    if (table) tables.push_back(object);
    byKind[static_cast<std::size_t>(object.kind)].push_back(std::move(object));
  }
  for (std::size_t kind = 0; kind < byKind.size(); ++kind)
    catalog.byKind[kind] = sortedByName(std::move(byKind[kind]));
  catalog.tables = sortedByName(std::move(tables));
  return catalog;
}

const CatalogObject* findByName(const std::vector<CatalogObject>& sorted, std::string_view name) {
  auto first = std::lower_bound(sorted.begin(), sorted.end(), name,
                                [](const CatalogObject& object, std::string_view wanted) {
                                  return compareIgnoringCase(object.name, wanted) < 0;
                                });
  const CatalogObject* found = nullptr;
  for (; first != sorted.end() && compareIgnoringCase(first->name, name) == 0; ++first) {
    if (first->name == name) return &*first;
    if (found == nullptr) found = &*first;
  }
  return found;
}

}  // namespace tarrowin::mdb
