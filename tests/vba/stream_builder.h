// Makes what the reader of projects takes apart: compressed data, compound files, directories of
// projects, trees in memory. Damage is done by overwriting the result.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "access/vba/stream_store.h"
#include "shared/value.h"

namespace tarrowin::vba {

Bytes bytesOf(std::string_view text);

// Compressed data of chunks without any copy; an empty text gives none but the start byte.
Bytes compressed(std::string_view text);
Bytes compressed(const Bytes& bytes);
// One compressed chunk, with its head, of the items as they stand.
Bytes chunk(const Bytes& items);
// A start byte, then the chunks.
Bytes container(std::initializer_list<Bytes> chunks);

// A record of the directory of a project.
Bytes record(std::uint16_t id, const Bytes& bytes);
// The records of a module; the name stands in ASCII and in UTF-16.
Bytes moduleRecords(const std::string& name, const std::string& stream, std::uint32_t offset,
                    bool isClass);
// The directory of a project in code page 1252 with these modules.
Bytes directory(std::initializer_list<Bytes> modules);

// A tree in memory; the bytes of its streams may be changed while it is in use.
struct MemoryTree {
  std::vector<Bytes>* streams;  // by number
  StreamStore store;
};
MemoryTree emptyTree();
StreamStore::Node addStream(MemoryTree& tree, StreamStore::Node folder, std::string name,
                            Bytes bytes);

struct CompoundEntry {
  std::string name;  // ASCII
  bool folder = false;
  std::size_t parent = 0;  // number of the folder in the list + 1; 0 = the root
  Bytes bytes;
};
// A compound file with sectors of 512 bytes. The entries stand in its directory in their order
// behind the root; sector 0 holds the sector table, sector 1 and so on the directory, the table of
// mini sectors, the mini stream, the large streams.
Bytes compoundFile(const std::vector<CompoundEntry>& entries);

// Puts a number over what stands there.
void put16(Bytes& bytes, std::size_t at, std::uint32_t value);
void put32(Bytes& bytes, std::size_t at, std::uint32_t value);

}  // namespace tarrowin::vba
