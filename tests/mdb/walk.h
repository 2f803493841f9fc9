// Reads everything that can be read from a database, damaged or not: for the tests with damaged
// files and for the fuzzer. Nothing but Error may come out of any call.
#pragma once

#include <cstddef>

#include "access/mdb/mdb_database.h"

namespace tarrowin::mdb {

struct Walk {
  std::size_t objects = 0;
  std::size_t rows = 0;
  std::size_t bytes = 0;   // of texts and binary cells
  std::size_t errors = 0;  // accessors that failed
};

inline std::size_t weigh(const Value& value) {
  if (value.text() != nullptr) return value.text()->size();
  return value.bytes() != nullptr ? value.bytes()->size() : 0;
}

template <class Read>
void guarded(Walk& walk, Read read) {
  try {
    read();
  } catch (const Error&) {
    ++walk.errors;
  }
}

inline void walkRows(const Database& database, const CatalogObject& table, Walk& walk) {
  Rows rows = database.rows(table);
  while (rows.next()) {
    ++walk.rows;
    for (std::size_t i = 0; i < rows.columnCount(); ++i) {
      guarded(walk, [&] { walk.bytes += weigh(rows.value(i)); });
    }
  }
}

inline Walk walkEverything(const Database& database) {
  Walk walk;
  for (const CatalogObject& table : database.tables()) {
    guarded(walk, [&] { walk.objects += database.columns(table).size(); });
    guarded(walk, [&] { walkRows(database, table, walk); });
  }
  for (int kind = 0; kind <= static_cast<int>(ObjectKind::kOther); ++kind) {
    for (const CatalogObject& object : database.objects(static_cast<ObjectKind>(kind))) {
      ++walk.objects;
      guarded(walk, [&] { walk.objects += database.properties(object).own.size(); });
      if (object.kind != ObjectKind::kQuery) continue;
      guarded(walk, [&] { walk.rows += database.queryRows(object).size(); });
    }
  }
  guarded(walk, [&] { walk.objects += database.databaseProperties().size(); });
  guarded(walk, [&] { walk.objects += database.relations().size(); });
  return walk;
}

}  // namespace tarrowin::mdb
