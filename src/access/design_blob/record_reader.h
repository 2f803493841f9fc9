// Takes a stored design apart into objects and their records, one after the other. There is no
// length anywhere: every record must be measured to find the next one.
//
//   design := word version, word version required, 4 bytes 0, object
//   object := word type, record*, terminator, object*
//
// The terminator tells how many objects stand inside. Access 97 and 2000 (versions 17 to 19) keep
// records compact, later ones (20, 21) verbose.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "access/design_blob/value_kind.h"
#include "access/mdb/byte_view.h"

namespace tarrowin {

// One stored property.
struct Record {
  std::uint32_t id = 0;
  std::uint16_t code = 0;  // of verbose records; see keywordOfCode
  ValueKind kind = ValueKind::kUnknown;
  std::span<const std::uint8_t> bytes;  // the value, little-endian; none for a flag
};

// Properties below this number are flags: the presence of the record is the value.
inline constexpr std::uint32_t kFirstValueId = 48;

// All functions throw mdb::Error (kDamaged) for a design that is cut short or goes wrong.
class RecordReader {
 public:
  // Reads the head. The bytes must outlive the reader.
  explicit RecordReader(std::span<const std::uint8_t> design);

  std::int32_t version() const { return version_; }

  // Begins the next object; gives its type, 100 to 200.
  std::uint16_t beginObject();
  // The next record of the object; false when there is none left.
  bool next(Record& record);
  // Behind the last record of an object: how many objects stand inside, and follow.
  std::size_t objectsInside() const { return objectsInside_; }

  bool atEnd() const { return at_ == bytes_.size(); }

 private:
  bool nextCompact(Record& record);
  bool nextVerbose(Record& record);
  void endObject(std::uint32_t terminator);
  std::size_t compactLength();
  std::uint8_t takeByte();
  std::uint16_t takeWord();
  std::uint32_t takeLong();
  std::span<const std::uint8_t> take(std::size_t length);

  mdb::ByteView bytes_;
  std::size_t at_ = 0;
  std::int32_t version_ = 0;
  bool compact_ = false;
  std::uint32_t nextId_ = 0;  // the lowest that a compact record may have now
  std::size_t objectsInside_ = 0;
};

}  // namespace tarrowin
