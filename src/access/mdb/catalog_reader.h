// Reads the system table MSysObjects into lists of objects.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "access/mdb/catalog.h"
#include "access/mdb/data_page.h"
#include "access/mdb/row_cursor.h"

namespace tarrowin::mdb {

struct Catalog {
  static constexpr std::size_t kKinds = static_cast<std::size_t>(ObjectKind::kOther) + 1;

  std::array<std::vector<CatalogObject>, kKinds> byKind;  // each in the order of names
  std::vector<CatalogObject> tables;                      // local and linked, in the same order
  std::unordered_map<std::int32_t, RowAddress> rows;      // by id: the object's catalog row

  const std::vector<CatalogObject>& objects(ObjectKind kind) const {
    return byKind[static_cast<std::size_t>(kind)];
  }
};

Catalog readCatalog(const FileContext& file, const TableDefinition& definition);

// The object of that name in a sorted list: an exact match first, then one without regard to case.
const CatalogObject* findByName(const std::vector<CatalogObject>& sorted, std::string_view name);

// Where the definition of a local table begins: the low 24 bits of its id.
inline std::uint32_t definitionPage(const CatalogObject& table) {
  return static_cast<std::uint32_t>(table.id) & 0xFFFFFFu;
}

}  // namespace tarrowin::mdb
