// The tree of Access 2000: a compound file cut into the rows of MSysAccessObjects.
// See vessels.h.
#include <algorithm>
#include <map>
#include <memory>
#include <utility>
#include <vector>

#include "access/mdb/damage.h"
#include "access/vba/compound_file.h"
#include "access/vba/table_cells.h"
#include "access/vba/vessels.h"

namespace tarrowin::vba {
namespace {

constexpr std::string_view kTable = "MSysAccessObjects";

// In the row of ID 0.
constexpr std::size_t kTotalSize = 4;

// Missing rows stand for zeros; a file is refused whose rows hold less than half of what it says
// that there is, give or take this many bytes.
constexpr std::size_t kSlack = 1u << 20;

class CompoundStreams : public StreamSource {
 public:
  explicit CompoundStreams(CompoundFile file) : file_(std::move(file)) {}

  const CompoundFile& file() const { return file_; }
  Bytes read(std::uint32_t entry) override { return file_.read(file_.entries()[entry]); }

 private:
  CompoundFile file_;
};

// The pieces in any order, put together.
Bytes readPieces(const mdb::Database& database) {
  TableCells cells(database, kTable);
  const std::size_t id = cells.column("ID");
  const std::size_t data = cells.column("Data");
  std::map<std::int32_t, Bytes> pieces;
  std::size_t held = 0;
  std::size_t pieceSize = 0;
  for (std::size_t row = 0; cells.moveTo(row); ++row) {
    Bytes bytes = cells.bytes(data);
    held += bytes.size();
    pieceSize = std::max(pieceSize, bytes.size());
    pieces.emplace(cells.number(id), std::move(bytes));
  }
  if (!pieces.contains(0)) mdb::raiseDamaged("the table MSysAccessObjects has no head");
  const std::size_t total = mdb::ByteView(pieces.at(0), {"MSysAccessObjects"}).u32(kTotalSize);
  if (total > 2 * held + kSlack) {
    mdb::raiseDamaged("the table MSysAccessObjects holds less than it says");
  }

  Bytes whole(total);
  for (const auto& [number, bytes] : pieces) {
    if (number < 1) continue;
    const std::size_t at = static_cast<std::size_t>(number - 1) * pieceSize;
    if (at >= total) break;
    std::copy_n(bytes.begin(), std::min(bytes.size(), total - at),
                whole.begin() + static_cast<std::ptrdiff_t>(at));
  }
  return whole;
}

}  // namespace

StreamStore openAccessObjects(const mdb::Database& database) {
  auto streams = std::make_unique<CompoundStreams>(CompoundFile(readPieces(database)));
  const CompoundFile& file = streams->file();
  StreamStore store(std::move(streams));
  std::vector<StreamStore::Node> nodes;  // by entry
  for (const CompoundFile::Entry& entry : file.entries()) {
    const StreamStore::Node folder =
        entry.parent == CompoundFile::kNone ? StreamStore::kRoot : nodes[entry.parent];
    const auto number = static_cast<std::uint32_t>(nodes.size());
    nodes.push_back(entry.folder ? store.addFolder(folder, entry.name)
                                 : store.addStream(folder, entry.name, number));
  }
  return store;
}

}  // namespace tarrowin::vba
