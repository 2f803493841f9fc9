// A compound file: folders and streams inside one file, in sectors of 512 or 4,096 bytes that a
// table chains together, and small streams in mini sectors of 64 bytes inside one large stream.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include "access/mdb/byte_view.h"
#include "shared/value.h"

namespace tarrowin::vba {

class CompoundFile {
 public:
  static constexpr std::uint32_t kNone = 0xFFFFFFFF;

  struct Entry {
    std::string name;  // UTF-8
    bool folder = false;
    std::uint32_t parent = kNone;  // number of the entry of the folder; kNone = the root
    std::uint32_t start = 0;       // first sector
    std::size_t size = 0;          // bytes
  };

  // Reads the head, the sector tables and the directory. Throws mdb::Error (kDamaged).
  explicit CompoundFile(Bytes bytes);

  // Folders and streams without the root, every one after its folder.
  const std::vector<Entry>& entries() const { return entries_; }

  // The bytes of a stream. Throws mdb::Error (kDamaged): its chain leads in a circle or out of the
  // file, or is shorter than its size.
  Bytes read(const Entry& stream) const;

 private:
  using Chain = std::vector<std::uint32_t>;

  void readHead();
  void readSectorTable();
  void readDirectory();
  mdb::ByteView sector(std::uint32_t number) const;
  // The sectors from the first one to the end of the chain, but no more than the number wanted.
  static Chain follow(const Chain& table, std::uint32_t first,
                      std::size_t wanted = std::numeric_limits<std::size_t>::max());
  Bytes readSectors(const Chain& chain) const;
  Bytes readMiniSectors(const Chain& chain) const;

  Bytes bytes_;
  std::size_t sectorSize_ = 0;
  std::uint32_t directoryStart_ = 0;
  std::uint32_t miniTableStart_ = 0;
  std::uint32_t miniLimit_ = 0;  // streams of fewer bytes live in mini sectors
  Chain table_;                  // by sector: the next one of its chain
  Chain miniTable_;
  Bytes miniStream_;
  std::vector<Entry> entries_;
};

}  // namespace tarrowin::vba
