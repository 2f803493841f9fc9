// Reads both forms of usage maps: one bitmap in a row, and a list of pages full of bitmaps.
// A bit set means that the page belongs to the table.
#include "access/mdb/usage_map.h"

#include "access/mdb/damage.h"

namespace tarrowin::mdb {
namespace {

constexpr std::uint8_t kInline = 0;
constexpr std::uint8_t kReferences = 1;
constexpr std::size_t kBitmapOfInline = 5;
constexpr std::size_t kListOfReferences = 1;
constexpr std::size_t kBitmapOfPage = 4;

void addBits(const ByteView& bitmap, std::uint64_t first, std::uint32_t pageCount,
             std::vector<std::uint32_t>& pages) {
  auto bytes = bitmap.bytes();
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (bytes[i] == 0) continue;
    for (unsigned bit = 0; bit < 8; ++bit) {
      if ((bytes[i] >> bit & 1) == 0) continue;
      std::uint64_t page = first + 8 * i + bit;
      if (page >= pageCount) {
        raiseDamaged("page " + std::to_string(page) + " is missing, the file has only " +
                     std::to_string(pageCount) + " pages");
      }
      pages.push_back(static_cast<std::uint32_t>(page));
    }
  }
}

}  // namespace

std::vector<std::uint32_t> readUsageMap(const PageFile& file, RowAddress address) {
  ByteView map = DataPage(file, address.page).slot(address.row).bytes;
  std::vector<std::uint32_t> pages;
  std::uint8_t form = map.u8(0);
  if (form == kInline) {
    addBits(map.from(kBitmapOfInline), map.u32(1), file.pageCount(), pages);
  } else if (form == kReferences) {
    std::uint64_t covered = 8 * (file.format().pageSize - kBitmapOfPage);
    std::size_t count = (map.size() - kListOfReferences) / 4;
    for (std::size_t i = 0; i < count; ++i) {
      std::uint32_t number = map.u32(kListOfReferences + 4 * i);
      if (number == 0) continue;
      ByteView page = file.page(number, kUsageMapPage);
      addBits(page.from(kBitmapOfPage), i * covered, file.pageCount(), pages);
    }
  } else {
    raiseDamaged("the list of its pages is of the unknown form " + std::to_string(form));
  }
  return pages;
}

}  // namespace tarrowin::mdb
