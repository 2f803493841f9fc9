// The tree of Access 2002 and later: one row of MSysAccessStorage for every folder and stream.
// See vessels.h.
#include <deque>
#include <memory>
#include <unordered_map>
#include <utility>
#include <vector>

#include "access/mdb/damage.h"
#include "access/vba/table_cells.h"
#include "access/vba/vessels.h"

namespace tarrowin::vba {
namespace {

constexpr std::string_view kTable = "MSysAccessStorage";
// Beside it stands MSysAccessStorage_SCRATCH, which holds nothing of the database.
constexpr std::string_view kRootName = "MSysAccessStorage_ROOT";
constexpr std::int32_t kFolder = 1;
constexpr std::int32_t kStream = 2;

class StorageRows : public StreamSource {
 public:
  explicit StorageRows(TableCells cells) : cells_(std::move(cells)), column_(cells_.column("Lv")) {}

  Bytes read(std::uint32_t row) override {
    if (!cells_.moveTo(row)) mdb::raiseDamaged("a row of MSysAccessStorage is gone");
    return cells_.bytes(column_);
  }

 private:
  TableCells cells_;
  std::size_t column_;
};

struct StorageRow {
  std::int32_t id = 0;
  std::int32_t parent = 0;
  std::int32_t type = 0;
  std::string name;
};

std::vector<StorageRow> readRows(TableCells& cells) {
  const std::size_t id = cells.column("Id");
  const std::size_t parent = cells.column("ParentId");
  const std::size_t type = cells.column("Type");
  const std::size_t name = cells.column("Name");
  std::vector<StorageRow> rows;
  while (cells.moveTo(rows.size())) {
    rows.push_back({cells.number(id), cells.number(parent), cells.number(type), cells.text(name)});
  }
  return rows;
}

}  // namespace

StreamStore openAccessStorage(const mdb::Database& database) {
  TableCells cells(database, kTable);
  const std::vector<StorageRow> rows = readRows(cells);

  std::unordered_map<std::int32_t, std::vector<std::uint32_t>> children;  // rows by ParentId
  std::optional<std::int32_t> root;
  for (std::uint32_t row = 0; row < rows.size(); ++row) {
    if (rows[row].id != rows[row].parent) {
      children[rows[row].parent].push_back(row);
    } else if (rows[row].name == kRootName) {
      root = rows[row].id;
    }
  }
  if (!root) mdb::raiseDamaged("the table MSysAccessStorage has no root");

  StreamStore store(std::make_unique<StorageRows>(std::move(cells)));
  std::deque<std::pair<std::int32_t, StreamStore::Node>> open{{*root, StreamStore::kRoot}};
  while (!open.empty()) {
    const auto [id, folder] = open.front();
    open.pop_front();
    // Taken out, so that ids met twice cannot lead in circles.
    const auto inside = children.extract(id);
    if (inside.empty()) continue;
    for (std::uint32_t row : inside.mapped()) {
      if (rows[row].type == kFolder) {
        open.emplace_back(rows[row].id, store.addFolder(folder, rows[row].name));
      } else if (rows[row].type == kStream) {
        store.addStream(folder, rows[row].name, row);
      }
    }
  }
  return store;
}

}  // namespace tarrowin::vba
