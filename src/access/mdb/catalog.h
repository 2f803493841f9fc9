// What a database holds, by name: the rows of the system table MSysObjects, sorted into lists.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "shared/value.h"

namespace tarrowin::mdb {

enum class ObjectKind {
  kTable,        // a table stored in the file
  kLinkedTable,  // a table of another file or server
  kQuery,
  kForm,
  kReport,
  kMacro,
  kModule,     // standard and class modules; those of forms and reports are not in the catalog
  kDocument,   // MSysDb (the database itself), SummaryInfo, UserDefined, AccessLayout
  kContainer,  // Tables, Forms, Relationships...
  kOther,
};

// One catalog row. Texts are UTF-8.
struct CatalogObject {
  std::int32_t id = 0;
  std::int32_t parentId = 0;  // id of the container
  std::string name;
  ObjectKind kind = ObjectKind::kOther;
  std::uint32_t flags = 0;
  Date created;
  Date updated;
  // Linked tables only, else empty: the connect string, the path of the other file, and the table's
  // name there.
  std::string connect;
  std::string database;
  std::string foreignName;

  // Jet's and Access's own: not to be shown to a user.
  bool isSystem() const { return (flags & 0x80000002u) != 0; }
  // Hidden by the user, a name that starts with "~" (the queries that Access keeps for record and
  // row sources) or a query flagged as such.
  bool isHidden() const {
    return (flags & 8u) != 0 || (!name.empty() && name[0] == '~') ||
           (kind == ObjectKind::kQuery && (flags & 0xFu) == 3u);
  }
  // Queries only: bits 4 to 7 of the flags. 0 select, 0x10 crosstab, 0x20 delete, 0x30 update, 0x40
  // append, 0x50 make-table, 0x60 data definition, 0x70 pass-through, 0x80 union.
  int queryKind() const { return static_cast<int>(flags & 0xF0u); }
};

}  // namespace tarrowin::mdb
