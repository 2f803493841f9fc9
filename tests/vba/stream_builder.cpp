// Building streams and compound files.
// See stream_builder.h.
#include "vba/stream_builder.h"

#include <algorithm>

#include "mdb/file_builder.h"

namespace tarrowin::vba {

using mdb::ansi;
using mdb::join;
using mdb::le16;
using mdb::le32;

namespace {

constexpr std::size_t kSector = 512;
constexpr std::size_t kMini = 64;
constexpr std::size_t kMiniLimit = 4096;
constexpr std::uint32_t kFree = 0xFFFFFFFF;
constexpr std::uint32_t kEnd = 0xFFFFFFFE;
constexpr std::uint32_t kTable = 0xFFFFFFFD;

void append(Bytes& target, const Bytes& more) {
  target.insert(target.end(), more.begin(), more.end());
}

void pad(Bytes& bytes, std::size_t unit, std::uint8_t with = 0) {
  bytes.resize((bytes.size() + unit - 1) / unit * unit, with);
}

Bytes wide(std::string_view ascii) {
  return mdb::utf16(std::u16string(ascii.begin(), ascii.end()));
}

class MemorySource : public StreamSource {
 public:
  Bytes read(std::uint32_t stream) override { return streams.at(stream); }
  std::vector<Bytes> streams;
};

// Sectors in their order, with the table that chains them.
struct Sectors {
  Bytes bytes;
  std::vector<std::uint32_t> next;

  std::uint32_t add(Bytes part, std::size_t size) {
    if (part.empty()) return kEnd;
    pad(part, size);
    const auto first = static_cast<std::uint32_t>(next.size());
    append(bytes, part);
    for (std::size_t count = part.size() / size; count > 1; --count) {
      next.push_back(static_cast<std::uint32_t>(next.size() + 1));
    }
    next.push_back(kEnd);
    return first;
  }
  Bytes table() const {
    Bytes result;
    for (std::uint32_t number : next) append(result, le32(number));
    pad(result, kSector, 0xFF);
    return result;
  }
};

Bytes directoryEntry(std::string_view name, std::uint8_t type, std::uint32_t right,
                     std::uint32_t child, std::uint32_t start, std::size_t size) {
  Bytes entry = wide(name);
  entry.resize(kMini);
  append(entry, le16(static_cast<std::uint32_t>(2 * name.size() + 2)));
  entry.push_back(type);
  entry.push_back(1);
  append(entry, join({le32(kFree), le32(right), le32(child)}));
  entry.resize(0x74);
  append(entry, join({le32(start), le32(static_cast<std::uint32_t>(size)), le32(0)}));
  return entry;
}

}  // namespace

Bytes bytesOf(std::string_view text) { return ansi(text); }

Bytes chunk(const Bytes& items) {
  return join({le16(static_cast<std::uint32_t>(0xB000 | (items.size() - 1))), items});
}

Bytes container(std::initializer_list<Bytes> chunks) { return join({Bytes{1}, join(chunks)}); }

Bytes compressed(std::string_view text) {
  constexpr std::size_t kPlainItems = 3600;  // with their flags less than a chunk
  Bytes result{1};
  while (!text.empty()) {
    std::string_view part = text.substr(0, kPlainItems);
    text.remove_prefix(part.size());
    Bytes items;
    for (std::size_t at = 0; at < part.size(); at += 8) {
      items.push_back(0);
      append(items, ansi(part.substr(at, 8)));
    }
    append(result, chunk(items));
  }
  return result;
}

Bytes compressed(const Bytes& bytes) {
  return compressed(std::string_view(reinterpret_cast<const char*>(bytes.data()), bytes.size()));
}

Bytes record(std::uint16_t id, const Bytes& bytes) {
  return join({le16(id), le32(static_cast<std::uint32_t>(bytes.size())), bytes});
}

Bytes moduleRecords(const std::string& name, const std::string& stream, std::uint32_t offset,
                    bool isClass) {
  return join({record(0x19, ansi(name)), record(0x47, wide(name)), record(0x1A, ansi(stream)),
               record(0x32, wide(stream)), record(0x31, le32(offset)),
               record(isClass ? 0x22 : 0x21, {}), record(0x2B, {})});
}

Bytes directory(std::initializer_list<Bytes> modules) {
  return join(
      {record(0x03, le16(1252)), record(0x04, ansi("Project")), join(modules), record(0x10, {})});
}

MemoryTree emptyTree() {
  auto source = std::make_unique<MemorySource>();
  auto* streams = &source->streams;
  return {streams, StreamStore(std::move(source))};
}

StreamStore::Node addStream(MemoryTree& tree, StreamStore::Node folder, std::string name,
                            Bytes bytes) {
  tree.streams->push_back(std::move(bytes));
  return tree.store.addStream(folder, std::move(name),
                              static_cast<std::uint32_t>(tree.streams->size() - 1));
}

// Brothers hang to the right of each other.
Bytes compoundFile(const std::vector<CompoundEntry>& entries) {
  std::vector<std::uint32_t> firstChild(entries.size() + 1, kFree);
  std::vector<std::uint32_t> right(entries.size() + 1, kFree);
  std::vector<std::uint32_t> last(entries.size() + 1, kFree);
  for (std::uint32_t number = 1; number <= entries.size(); ++number) {
    const std::size_t parent = entries[number - 1].parent;
    (last[parent] == kFree ? firstChild[parent] : right[last[parent]]) = number;
    last[parent] = number;
  }

  Sectors mini;
  std::vector<std::uint32_t> starts(entries.size(), kEnd);
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const Bytes& bytes = entries[i].bytes;
    if (bytes.size() < kMiniLimit) starts[i] = mini.add(bytes, kMini);
  }

  Sectors sectors;
  sectors.add(Bytes(kSector), kSector);  // for the sector table, which may have 128 entries
  sectors.next[0] = kTable;
  Bytes room((entries.size() + 1) * 128);
  const std::uint32_t directoryStart = sectors.add(std::move(room), kSector);
  const std::uint32_t miniTableStart =
      mini.next.empty() ? kEnd : sectors.add(mini.table(), kSector);
  const std::uint32_t miniStart = sectors.add(mini.bytes, kSector);
  for (std::size_t i = 0; i < entries.size(); ++i) {
    if (entries[i].bytes.size() >= kMiniLimit) starts[i] = sectors.add(entries[i].bytes, kSector);
  }

  Bytes entryBytes =
      directoryEntry("Root Entry", 5, kFree, firstChild[0], miniStart, mini.bytes.size());
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const CompoundEntry& entry = entries[i];
    append(entryBytes, directoryEntry(entry.name, entry.folder ? 1 : 2, right[i + 1],
                                      firstChild[i + 1], starts[i], entry.bytes.size()));
  }
  std::copy(entryBytes.begin(), entryBytes.end(),
            sectors.bytes.begin() + static_cast<std::ptrdiff_t>(directoryStart * kSector));
  const Bytes table = sectors.table();
  std::copy(table.begin(), table.begin() + kSector, sectors.bytes.begin());

  Bytes head{0xD0, 0xCF, 0x11, 0xE0, 0xA1, 0xB1, 0x1A, 0xE1};
  head.resize(kSector, 0xFF);
  put16(head, 0x1E, 9);
  put16(head, 0x20, 6);
  put32(head, 0x2C, 1);
  put32(head, 0x30, directoryStart);
  put32(head, 0x38, kMiniLimit);
  put32(head, 0x3C, miniTableStart);
  put32(head, 0x44, kEnd);
  put32(head, 0x4C, 0);
  return join({head, sectors.bytes});
}

void put16(Bytes& bytes, std::size_t at, std::uint32_t value) {
  const Bytes number = le16(value);
  std::copy(number.begin(), number.end(), bytes.begin() + static_cast<std::ptrdiff_t>(at));
}

void put32(Bytes& bytes, std::size_t at, std::uint32_t value) {
  const Bytes number = le32(value);
  std::copy(number.begin(), number.end(), bytes.begin() + static_cast<std::ptrdiff_t>(at));
}

}  // namespace tarrowin::vba
