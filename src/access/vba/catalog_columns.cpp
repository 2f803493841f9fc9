// The designs and code of Access 97, which stand in columns of two system tables, as a tree.
// See vessels.h. An object with code has a row in MSysModules2, one without only its catalog row.
#include <map>
#include <memory>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "access/mdb/damage.h"
#include "access/mdb/text.h"
#include "access/vba/module_container.h"
#include "access/vba/table_cells.h"
#include "access/vba/vessels.h"

namespace tarrowin::vba {
namespace {

constexpr std::string_view kCatalog = "MSysObjects";
constexpr std::string_view kModules = "MSysModules2";
constexpr std::string_view kProjectRow = "MSysDb";

// The entries of a row's Module column that are wanted.
constexpr std::string_view kModuleEntry = "_VBA_MODULE";
constexpr std::string_view kDirectoryEntry = "dir";

struct Cell {
  TableCells* table = nullptr;
  std::size_t row = 0;
  std::size_t column = 0;
  std::string_view entry = {};  // of the container in the cell; empty = the cell itself
};

class CatalogStreams : public StreamSource {
 public:
  explicit CatalogStreams(const mdb::Database& database)
      : catalog(database, kCatalog), modules(database, kModules) {}

  std::uint32_t add(Cell cell) {
    cells_.push_back(cell);
    return static_cast<std::uint32_t>(cells_.size() - 1);
  }

  Bytes read(std::uint32_t stream) override {
    const Cell& cell = cells_[stream];
    if (!cell.table->moveTo(cell.row)) mdb::raiseDamaged("a row of a system table is gone");
    Bytes bytes = cell.table->bytes(cell.column);
    return cell.entry.empty() ? bytes : readContainerEntry(bytes, cell.entry);
  }

  TableCells catalog;
  TableCells modules;

 private:
  std::vector<Cell> cells_;
};

struct IgnoringCase {
  bool operator()(const std::string& left, const std::string& right) const {
    return mdb::compareIgnoringCase(left, right) < 0;
  }
};
using RowsByName = std::map<std::string, std::size_t, IgnoringCase>;
using RowsById = std::unordered_map<std::int32_t, std::size_t>;

RowsByName rowsByName(TableCells& cells) {
  const std::size_t name = cells.column("Name");
  RowsByName rows;
  for (std::size_t row = 0; cells.moveTo(row); ++row) rows.emplace(cells.text(name), row);
  return rows;
}

RowsById rowsById(TableCells& cells) {
  const std::size_t id = cells.column("Id");
  RowsById rows;
  for (std::size_t row = 0; cells.moveTo(row); ++row) rows.emplace(cells.number(id), row);
  return rows;
}

// Adds the streams to the tree.
class TreeBuilder {
 public:
  explicit TreeBuilder(const mdb::Database& database) : database_(database) {
    auto source = std::make_unique<CatalogStreams>(database);
    streams_ = source.get();
    store_ = StreamStore(std::move(source));
    store_.setNamedFolders();
    catalogRows_ = rowsById(streams_->catalog);
    moduleRows_ = rowsByName(streams_->modules);
  }

  void addDesigns(const char* container, const std::string& codePrefix, mdb::ObjectKind kind);
  void addMacros();
  void addProject();
  StreamStore take() { return std::move(store_); }

 private:
  void addCatalogCell(StreamStore::Node folder, const char* name, std::int32_t id,
                      std::string_view column) {
    const auto row = catalogRows_.find(id);
    if (row == catalogRows_.end()) return;
    store_.addStream(
        folder, name,
        streams_->add({&streams_->catalog, row->second, streams_->catalog.column(column)}));
  }
  void addModuleCell(StreamStore::Node folder, const std::string& name, std::size_t row,
                     std::string_view column, std::string_view entry = {}) {
    store_.addStream(
        folder, name,
        streams_->add({&streams_->modules, row, streams_->modules.column(column), entry}));
  }

  const mdb::Database& database_;
  CatalogStreams* streams_;
  StreamStore store_;
  RowsById catalogRows_;
  RowsByName moduleRows_;
};

void TreeBuilder::addDesigns(const char* container, const std::string& codePrefix,
                             mdb::ObjectKind kind) {
  const StreamStore::Node parent = store_.addFolder(StreamStore::kRoot, container);
  for (const mdb::CatalogObject& object : database_.objects(kind)) {
    const StreamStore::Node folder = store_.addFolder(parent, object.name);
    const auto code = moduleRows_.find(codePrefix + object.name);
    if (code != moduleRows_.end()) {
      addModuleCell(folder, "Blob", code->second, "Form");
      addModuleCell(folder, "TypeInfo", code->second, "TypeInfo");
    } else {
      addCatalogCell(folder, "Blob", object.id, "LvExtra");
      addCatalogCell(folder, "TypeInfo", object.id, "Lv");
    }
  }
}

void TreeBuilder::addMacros() {
  const StreamStore::Node parent = store_.addFolder(StreamStore::kRoot, "Scripts");
  for (const mdb::CatalogObject& object : database_.macros()) {
    addCatalogCell(store_.addFolder(parent, object.name), "Blob", object.id, "LvExtra");
  }
}

void TreeBuilder::addProject() {
  const StreamStore::Node modules = store_.addFolder(StreamStore::kRoot, "Modules");
  for (const mdb::CatalogObject& object : database_.modules()) {
    store_.addFolder(modules, object.name);
  }
  const StreamStore::Node vba = store_.addFolder(StreamStore::kRoot, "VBA");
  const StreamStore::Node project = store_.addFolder(vba, "VBAProject");
  const StreamStore::Node directory = store_.addFolder(project, "VBA");
  const StreamStore::Node code = store_.addFolder(project, "Modules");
  for (const auto& [name, row] : moduleRows_) {
    if (name == kProjectRow) {
      addModuleCell(directory, "dir", row, "Module", kDirectoryEntry);
    } else {
      addModuleCell(code, name, row, "Module", kModuleEntry);
    }
  }
}

}  // namespace

StreamStore openCatalogColumns(const mdb::Database& database) {
  if (database.find(mdb::ObjectKind::kTable, kModules) == nullptr) {
    return StreamStore();  // made by Jet or DAO alone
  }
  TreeBuilder builder(database);
  builder.addDesigns("Forms", "Form_", mdb::ObjectKind::kForm);
  builder.addDesigns("Reports", "Report_", mdb::ObjectKind::kReport);
  builder.addMacros();
  builder.addProject();
  return builder.take();
}

}  // namespace tarrowin::vba
