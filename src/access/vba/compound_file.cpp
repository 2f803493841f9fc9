// Sector chains, the directory tree, and the streams of a compound file.
// See compound_file.h. Every chain is shorter than its table and every directory entry is met at
// most once, so that no damage can make the reading run for ever.
#include "access/vba/compound_file.h"

#include <algorithm>
#include <array>
#include <utility>

#include "access/mdb/damage.h"
#include "access/vba/wide_text.h"

namespace tarrowin::vba {
namespace {

constexpr std::array<std::uint8_t, 8> kSignature{0xD0, 0xCF, 0x11, 0xE0, 0xA1, 0xB1, 0x1A, 0xE1};

// Offsets in the head, which fills the place of the sector before sector 0.
constexpr std::size_t kSectorShift = 0x1E;
constexpr std::size_t kMiniShift = 0x20;
constexpr std::size_t kTableSectors = 0x2C;
constexpr std::size_t kDirectoryStart = 0x30;
constexpr std::size_t kMiniLimit = 0x38;
constexpr std::size_t kMiniTableStart = 0x3C;
constexpr std::size_t kMoreTableSectors = 0x44;
constexpr std::size_t kFirstTableSectors = 0x4C;
constexpr std::size_t kFirstTableCount = 109;

constexpr std::size_t kMiniSectorSize = 64;
// Sector numbers from here on are marks; this one ends a chain.
constexpr std::uint32_t kHighestSector = 0xFFFFFFFA;
constexpr std::uint32_t kEndOfChain = 0xFFFFFFFE;

// Offsets in a directory entry.
constexpr std::size_t kEntrySize = 128;
constexpr std::size_t kNameLength = 0x40;  // bytes with the final zero
constexpr std::size_t kEntryType = 0x42;
constexpr std::size_t kLeft = 0x44;
constexpr std::size_t kRight = 0x48;
constexpr std::size_t kChild = 0x4C;
constexpr std::size_t kStart = 0x74;
constexpr std::size_t kSize = 0x78;

constexpr std::uint8_t kFolder = 1;
constexpr std::uint8_t kStream = 2;
constexpr std::uint8_t kRoot = 5;

void appendNumbers(std::vector<std::uint32_t>& target, const mdb::ByteView& sector,
                   std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) target.push_back(sector.u32(4 * i));
}

}  // namespace

CompoundFile::CompoundFile(Bytes bytes) : bytes_(std::move(bytes)) {
  readHead();
  readSectorTable();
  if (miniTableStart_ <= kHighestSector) {
    for (std::uint32_t number : follow(table_, miniTableStart_)) {
      appendNumbers(miniTable_, sector(number), sectorSize_ / 4);
    }
  }
  readDirectory();
}

void CompoundFile::readHead() {
  const mdb::ByteView head(bytes_, {"compound file"});
  if (head.size() < kSignature.size() ||
      !std::equal(kSignature.begin(), kSignature.end(), bytes_.begin())) {
    mdb::raiseDamaged("the compound file lacks its signature");
  }
  const std::uint16_t shift = head.u16(kSectorShift);
  if ((shift != 9 && shift != 12) || head.u16(kMiniShift) != 6) {
    mdb::raiseDamaged("the compound file has sectors of an unknown size");
  }
  sectorSize_ = std::size_t{1} << shift;
  directoryStart_ = head.u32(kDirectoryStart);
  miniTableStart_ = head.u32(kMiniTableStart);
  miniLimit_ = head.u32(kMiniLimit);
}

// The numbers of the table's own sectors stand in the head and, where they are more than that
// holds, in further sectors, each of which ends in the number of the next.
void CompoundFile::readSectorTable() {
  const mdb::ByteView head(bytes_, {"compound file"});
  const std::size_t count = head.u32(kTableSectors);
  if (count > bytes_.size() / sectorSize_) {
    mdb::raiseDamaged("the sector table of the compound file is longer than the file");
  }
  Chain sectors;
  appendNumbers(sectors, head.from(kFirstTableSectors), std::min(count, kFirstTableCount));
  std::uint32_t more = head.u32(kMoreTableSectors);
  while (sectors.size() < count) {
    const mdb::ByteView list = sector(more);
    const std::size_t held = sectorSize_ / 4 - 1;
    appendNumbers(sectors, list, std::min(count - sectors.size(), held));
    more = list.u32(4 * held);
  }
  for (std::uint32_t number : sectors) appendNumbers(table_, sector(number), sectorSize_ / 4);
}

mdb::ByteView CompoundFile::sector(std::uint32_t number) const {
  const std::uint64_t at = (std::uint64_t{number} + 1) * sectorSize_;
  if (at >= bytes_.size()) mdb::raiseDamaged("the compound file points out of its sectors");
  // The last sector may have been cut to what is used of it.
  const std::size_t size = std::min(sectorSize_, bytes_.size() - static_cast<std::size_t>(at));
  return mdb::ByteView(bytes_, {"sector", number}).sub(static_cast<std::size_t>(at), size);
}

CompoundFile::Chain CompoundFile::follow(const Chain& table, std::uint32_t first,
                                         std::size_t wanted) {
  Chain chain;
  std::uint32_t number = first;
  while (number != kEndOfChain && chain.size() < wanted) {
    if (number >= table.size()) mdb::raiseDamaged("a sector chain leads out of its table");
    if (chain.size() >= table.size()) mdb::raiseDamaged("a sector chain leads in a circle");
    chain.push_back(number);
    number = table[number];
  }
  return chain;
}

Bytes CompoundFile::readSectors(const Chain& chain) const {
  // No more than the file holds, or sectors are met twice.
  if (chain.size() > bytes_.size() / sectorSize_) {
    mdb::raiseDamaged("a sector chain is longer than its file");
  }
  Bytes result;
  result.reserve(chain.size() * sectorSize_);
  for (std::uint32_t number : chain) {
    const auto part = sector(number).bytes();
    result.insert(result.end(), part.begin(), part.end());
  }
  return result;
}

// The entries of one folder form a tree of their own, left and right of its top entry.
void CompoundFile::readDirectory() {
  const Bytes bytes = readSectors(follow(table_, directoryStart_));
  const std::size_t count = bytes.size() / kEntrySize;
  const auto record = [&bytes](std::uint32_t number) {
    return mdb::ByteView(bytes, {"directory entry", number})
        .sub(std::size_t{number} * kEntrySize, kEntrySize);
  };
  if (count == 0 || record(0).u8(kEntryType) != kRoot) {
    mdb::raiseDamaged("the directory of the compound file has no root");
  }
  if (record(0).u32(kStart) <= kHighestSector) {
    miniStream_ = readSectors(follow(table_, record(0).u32(kStart)));
  }

  std::vector<bool> met(count);
  met[0] = true;
  struct Open {
    std::uint32_t number;
    std::uint32_t parent;
  };
  std::vector<Open> open;
  const auto push = [&](std::uint32_t number, std::uint32_t parent) {
    if (number == kNone) return;
    if (number >= count) mdb::raiseDamaged("the directory of the compound file is cut short");
    if (met[number]) mdb::raiseDamaged("the directory of the compound file leads in a circle");
    met[number] = true;
    open.push_back({number, parent});
  };
  push(record(0).u32(kChild), kNone);
  while (!open.empty()) {
    const Open next = open.back();
    open.pop_back();
    const mdb::ByteView view = record(next.number);
    push(view.u32(kLeft), next.parent);
    push(view.u32(kRight), next.parent);
    const std::uint8_t type = view.u8(kEntryType);
    if (type != kFolder && type != kStream) continue;

    Entry entry;
    const std::size_t nameLength = view.u16(kNameLength);
    if (nameLength > kNameLength) mdb::raiseDamaged("a name in the compound file is too long");
    if (nameLength >= 2) entry.name = wideText(view.sub(0, nameLength - 2).bytes());
    entry.folder = type == kFolder;
    entry.parent = next.parent;
    entry.start = view.u32(kStart);
    // Files with small sectors use half of the field; the other half may hold anything.
    entry.size = view.u32(kSize);
    entries_.push_back(std::move(entry));
    if (type == kFolder) {
      push(view.u32(kChild), static_cast<std::uint32_t>(entries_.size() - 1));
    }
  }
}

Bytes CompoundFile::read(const Entry& stream) const {
  if (stream.size == 0) return {};
  const bool mini = stream.size < miniLimit_;
  const std::size_t partSize = mini ? kMiniSectorSize : sectorSize_;
  const std::size_t parts = (stream.size + partSize - 1) / partSize;
  const Chain chain = follow(mini ? miniTable_ : table_, stream.start, parts);
  Bytes result = mini ? readMiniSectors(chain) : readSectors(chain);
  if (result.size() < stream.size) {
    mdb::raiseDamaged("the stream \"" + stream.name + "\" is shorter than stated");
  }
  result.resize(stream.size);
  return result;
}

Bytes CompoundFile::readMiniSectors(const Chain& chain) const {
  Bytes result;
  for (std::uint32_t number : chain) {
    const auto part = mdb::ByteView(miniStream_, {"mini sector", number})
                          .sub(std::size_t{number} * kMiniSectorSize, kMiniSectorSize)
                          .bytes();
    result.insert(result.end(), part.begin(), part.end());
  }
  return result;
}

}  // namespace tarrowin::vba
