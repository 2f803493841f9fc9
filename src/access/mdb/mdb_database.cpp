// An open database: what has been read so far, and the reading of the rest on demand.
// See mdb_database.h.
#include "access/mdb/mdb_database.h"

#include <optional>
#include <unordered_map>
#include <utility>

#include "access/mdb/catalog_reader.h"
#include "access/mdb/damage.h"
#include "access/mdb/property_reader.h"
#include "access/mdb/row_cursor.h"
#include "access/mdb/rows.h"
#include "access/mdb/system_tables.h"

namespace tarrowin::mdb {
namespace {

constexpr std::string_view kDatabaseDocument = "MSysDb";

// Refuses what this reader does not read or has not been allowed to.
void admit(const FileHeader& header, const Options& options) {
  if (header.isNewer() && (!options.allowNewerFormat || header.pageKey != 0)) {
    throw Error(ErrorKind::kNewerFormat,
                "the file is in the format of Access 2007 or later, which is not supported");
  }
  if (header.hasPassword && !options.ignorePassword) {
    throw Error(ErrorKind::kPassword, "the file is protected by a database password");
  }
}

FileContext makeContext(FileImage image, const Options& options) {
  FileHeader header = readFileHeader(image.bytes());
  admit(header, options);
  std::size_t pageSize = header.format->pageSize;
  if (image.bytes().size() % pageSize != 0) {
    raiseDamaged("the file has been cut short, it ends within page " +
                 std::to_string(image.bytes().size() / pageSize));
  }
  int codePage = options.codePage != 0 ? options.codePage : header.codePage;
  return FileContext{PageFile(std::move(image), header),
                     TextDecoder(header.format->jet3, knownCodePage(codePage))};
}

}  // namespace

class Database::Impl {
 public:
  Impl(FileImage image, std::string name, const Options& options)
      : name_(std::move(name)),
        file_(makeContext(std::move(image), options)),
        codePage_(
            knownCodePage(options.codePage != 0 ? options.codePage : header().codePage).number()),
        catalogDefinition_(inContext(
            "table", "MSysObjects",
            [&] { return readTableDefinition(file_.pages, kCatalogDefinition, file_.text); })),
        catalog_(inContext("table", "MSysObjects",
                           [&] { return readCatalog(file_, catalogDefinition_); })) {}

  const std::string& name() const { return name_; }
  const FileHeader& header() const { return file_.pages.header(); }
  int codePage() const { return codePage_; }
  const Catalog& catalog() const { return catalog_; }
  const FileContext& file() const { return file_; }

  const TableDefinition& definition(const CatalogObject& table);
  const PropertySet& properties(const CatalogObject& object);
  const PropertyList& databaseProperties();
  std::vector<QueryRow> queryRows(const CatalogObject& query);
  const std::vector<Relation>& relations();

 private:
  const CatalogObject* localTable(std::string_view name) const {
    return findByName(catalog_.objects(ObjectKind::kTable), name);
  }

  std::string name_;
  FileContext file_;
  int codePage_;
  TableDefinition catalogDefinition_;
  Catalog catalog_;
  // Filled on demand.
  std::unordered_map<std::uint32_t, TableDefinition> definitions_;  // by first page
  std::unordered_map<std::int32_t, PropertySet> properties_;        // by object id
  std::optional<QueryIndex> queries_;
  std::optional<std::vector<Relation>> relations_;
};

const TableDefinition& Database::Impl::definition(const CatalogObject& table) {
  std::uint32_t page = definitionPage(table);
  auto found = definitions_.find(page);
  if (found == definitions_.end()) {
    file_.pages.checkStillThere();
    found = definitions_.emplace(page, readTableDefinition(file_.pages, page, file_.text)).first;
  }
  return found->second;
}

const PropertySet& Database::Impl::properties(const CatalogObject& object) {
  auto found = properties_.find(object.id);
  if (found != properties_.end()) return found->second;
  PropertySet set;
  auto row = catalog_.rows.find(object.id);
  if (row != catalog_.rows.end()) {
    file_.pages.checkStillThere();
    RowCursor cursor(file_, catalogDefinition_);
    cursor.moveTo(row->second);
    set = readProperties(cursor.bytes(catalogDefinition_.require("LvProp")), file_.text);
  }
  return properties_.emplace(object.id, std::move(set)).first->second;
}

const PropertyList& Database::Impl::databaseProperties() {
  static const PropertyList kNone;
  const CatalogObject* document =
      findByName(catalog_.objects(ObjectKind::kDocument), kDatabaseDocument);
  return document == nullptr ? kNone : properties(*document).own;
}

std::vector<QueryRow> Database::Impl::queryRows(const CatalogObject& query) {
  const CatalogObject* table = localTable("MSysQueries");
  if (table == nullptr) raiseDamaged("the table MSysQueries is missing");
  file_.pages.checkStillThere();
  if (!queries_) queries_ = indexQueries(file_, definition(*table));
  auto rows = queries_->find(query.id);
  if (rows == queries_->end()) return {};
  return readQueryRows(file_, definition(*table), rows->second);
}

const std::vector<Relation>& Database::Impl::relations() {
  if (!relations_) {
    const CatalogObject* table = localTable("MSysRelationships");
    if (table == nullptr) {
      relations_.emplace();
    } else {
      relations_ = readRelations(file_, definition(*table));
    }
  }
  return *relations_;
}

Database::Database(std::unique_ptr<Impl> impl) : impl_(std::move(impl)) {}
Database::Database(Database&&) noexcept = default;
Database& Database::operator=(Database&&) noexcept = default;
Database::~Database() = default;

Database Database::open(const std::string& path, const Options& options) {
  return Database(
      std::make_unique<Impl>(FileImage::load(path, options.readWholeUpTo), path, options));
}

Database Database::fromBytes(Bytes bytes, std::string name, const Options& options) {
  if (bytes.empty()) throw Error(ErrorKind::kNotADatabase, "the file is empty");
  return Database(std::make_unique<Impl>(FileImage(std::move(bytes)), std::move(name), options));
}

const std::string& Database::fileName() const { return impl_->name(); }
bool Database::isJet3() const { return impl_->header().format->jet3; }
std::string Database::version() const { return isJet3() ? "3.0" : "4.0"; }
int Database::codePage() const { return impl_->codePage(); }
int Database::languageId() const { return impl_->header().languageId; }
bool Database::hasPassword() const { return impl_->header().hasPassword; }

// An Access 97 file that a later Access has opened also has MSysAccessObjects: a copy, sometimes
// with holes, that nobody needs.
DesignStorage Database::designStorage() const {
  if (isJet3()) return DesignStorage::kCatalog;
  if (find(ObjectKind::kTable, "MSysAccessStorage") != nullptr) {
    return DesignStorage::kAccessStorage;
  }
  if (find(ObjectKind::kTable, "MSysAccessObjects") != nullptr) {
    return DesignStorage::kAccessObjects;
  }
  return DesignStorage::kNone;
}

const std::vector<CatalogObject>& Database::objects(ObjectKind kind) const {
  return impl_->catalog().objects(kind);
}
const std::vector<CatalogObject>& Database::tables() const { return impl_->catalog().tables; }

const CatalogObject* Database::findTable(std::string_view name) const {
  return findByName(tables(), name);
}
const CatalogObject* Database::findQuery(std::string_view name) const {
  return findByName(queries(), name);
}
const CatalogObject* Database::find(ObjectKind kind, std::string_view name) const {
  return findByName(objects(kind), name);
}

const std::vector<Column>& Database::columns(const CatalogObject& table) const {
  static const std::vector<Column> kNone;
  if (table.kind != ObjectKind::kTable) return kNone;
  return inContext(
      "table", table.name, [&]() -> const auto& { return impl_->definition(table).columns; });
}

Rows Database::rows(const CatalogObject& table) const {
  if (table.kind != ObjectKind::kTable) return Rows(nullptr);
  return inContext("table", table.name, [&] {
    return Rows(std::make_unique<Rows::Source>(
        Rows::Source{table.name, RowCursor(impl_->file(), impl_->definition(table))}));
  });
}

const PropertySet& Database::properties(const CatalogObject& object) const {
  return inContext(
      "object", object.name, [&]() -> const auto& { return impl_->properties(object); });
}

const PropertyList& Database::databaseProperties() const {
  return inContext(
      "object", kDatabaseDocument, [&]() -> const auto& { return impl_->databaseProperties(); });
}

std::vector<QueryRow> Database::queryRows(const CatalogObject& query) const {
  return inContext("query", query.name, [&] { return impl_->queryRows(query); });
}

const std::vector<Relation>& Database::relations() const {
  return inContext(
      "table", "MSysRelationships", [&]() -> const auto& { return impl_->relations(); });
}

}  // namespace tarrowin::mdb
