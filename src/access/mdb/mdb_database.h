// Reads Microsoft Jet database files: Access 97 (Jet 3), 2000 and 2002-2003 (Jet 4). The file is
// never written. All texts given and taken are UTF-8.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "access/mdb/catalog.h"
#include "access/mdb/mdb_error.h"
#include "access/mdb/property_set.h"
#include "access/mdb/query_rows.h"
#include "access/mdb/relation.h"
#include "access/mdb/table.h"
#include "shared/value.h"

namespace tarrowin::mdb {

struct Options {
  // ANSI code page of the texts of Jet 3 files, which the header often states wrongly. 0 = the
  // header's. A page that CodePage does not know counts as 1252.
  int codePage = 0;
  // Read a file with a database password all the same: the password does not encrypt anything.
  bool ignorePassword = false;
  // Read files of Access 2007 and later as far as they share the Jet 4 layout.
  bool allowNewerFormat = false;
  // Files up to this many bytes are read into memory, larger ones are mapped. When
  // another program cuts a mapped file short, the next walk, page or long value raises kUnreadable;
  // only in the moment between that check and the reading would it end this program.
  std::size_t readWholeUpTo = 4u << 20;
};

// Where a file keeps the designs of forms, reports, macros and modules.
enum class DesignStorage {
  kNone,           // made by Jet or DAO alone, no Access objects
  kCatalog,        // Access 97: columns of MSysObjects and MSysModules2
  kAccessObjects,  // Access 2000: table MSysAccessObjects
  kAccessStorage,  // Access 2002 and later: table MSysAccessStorage
};

// One open file. Opening reads the header and the catalog; everything else is read when asked for
// and kept. Not for use by two threads at once. References returned live as long as the Database.
// A damaged part raises its Error (kDamaged) from the calls that need it and from no others.
class Database {
 public:
  // Throws Error of every kind.
  static Database open(const std::string& path, const Options& options = {});
  // The same from the bytes of a file; the name is what fileName() answers.
  static Database fromBytes(Bytes bytes, std::string name, const Options& options = {});

  Database(Database&&) noexcept;
  Database& operator=(Database&&) noexcept;
  ~Database();

  const std::string& fileName() const;  // as given
  std::string version() const;          // DAO's Version: "3.0" or "4.0"
  bool isJet3() const;
  int codePage() const;    // the ANSI code page in use
  int languageId() const;  // of the sort order, such as 1033
  bool hasPassword() const;
  DesignStorage designStorage() const;

  // The objects of one kind, by name without regard to case, then by bytes. System objects and
  // hidden ones are among them; leftovers of deleted objects ("~TMP...") are not.
  const std::vector<CatalogObject>& objects(ObjectKind kind) const;
  // Local and linked tables in one list, ordered as above.
  const std::vector<CatalogObject>& tables() const;
  const std::vector<CatalogObject>& queries() const { return objects(ObjectKind::kQuery); }
  const std::vector<CatalogObject>& forms() const { return objects(ObjectKind::kForm); }
  const std::vector<CatalogObject>& reports() const { return objects(ObjectKind::kReport); }
  const std::vector<CatalogObject>& macros() const { return objects(ObjectKind::kMacro); }
  const std::vector<CatalogObject>& modules() const { return objects(ObjectKind::kModule); }

  // The object of that name, an exact match first, then one without regard to case; or nullptr.
  const CatalogObject* findTable(std::string_view name) const;
  const CatalogObject* findQuery(std::string_view name) const;
  const CatalogObject* find(ObjectKind kind, std::string_view name) const;

  // The columns of a table in DAO's order (OrdinalPosition). Empty for a linked table.
  const std::vector<Column>& columns(const CatalogObject& table) const;
  // The rows of a table; none for a linked table.
  Rows rows(const CatalogObject& table) const;

  // The properties of any catalog object.
  const PropertySet& properties(const CatalogObject& object) const;
  // Those of the database: AccessVersion, StartUpForm, AppTitle... in stored order.
  const PropertyList& databaseProperties() const;

  // The stored rows of a query, in the order of storage, read anew each time.
  std::vector<QueryRow> queryRows(const CatalogObject& query) const;

  // By name without regard to case; relations of system objects are left out.
  const std::vector<Relation>& relations() const;

 private:
  class Impl;
  explicit Database(std::unique_ptr<Impl> impl);
  std::unique_ptr<Impl> impl_;
};

}  // namespace tarrowin::mdb
