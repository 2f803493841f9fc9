// Both encodings of records.
// See record_reader.h.
#include "access/design_blob/record_reader.h"

#include <string>

#include "access/design_blob/object_types.h"
#include "access/mdb/damage.h"

namespace tarrowin {

namespace {

constexpr std::int32_t kFirstVersion = 17, kFirstVerboseVersion = 20, kLastVersion = 21;
constexpr std::size_t kHeadSize = 8;

// What ends the records of an object: nothing inside, one object, a word with their number.
constexpr std::uint32_t kNothingInside = 0xFD, kOneInside = 0xFE, kSeveralInside = 0xFF;

// The first numbers of compact records with a value of one, two, four bytes, and of any length.
constexpr std::uint8_t kFirstByteId = kFirstValueId, kFirstIntegerId = 96, kFirstLongId = 156,
                       kFirstPrefixedId = 188;
// In place of a compact length: a longer form of it follows.
constexpr std::uint8_t kLongerThanByte = 0xFF;
constexpr std::uint16_t kLongerThanWord = 0xFFFF;

// The fewest bytes that an object takes: its type and the terminator.
constexpr std::size_t kSmallestCompactObject = 3, kSmallestVerboseObject = 6;

ValueKind kindOfVerboseType(std::uint32_t type) {
  switch (type) {
    case 1:
      return ValueKind::kBoolean;
    case 2:
      return ValueKind::kByte;
    case 3:
      return ValueKind::kInteger;
    case 4:
      return ValueKind::kLong;
    case 6:
      return ValueKind::kSingle;
    case 8:
      return ValueKind::kDouble;
    case 9:
      return ValueKind::kGuid;
    case 10:
    case 12:
      return ValueKind::kText;
    case 11:
      return ValueKind::kBinary;
    case 17:
      return ValueKind::kMacro;
    default:
      return ValueKind::kUnknown;
  }
}

}  // namespace

RecordReader::RecordReader(std::span<const std::uint8_t> design) : bytes_(design, {"design"}) {
  version_ = bytes_.u16(0);
  take(kHeadSize);
  if (version_ < kFirstVersion || version_ > kLastVersion)
    mdb::raiseDamaged("the design is of an unknown version " + std::to_string(version_));
  compact_ = version_ < kFirstVerboseVersion;
}

std::uint16_t RecordReader::beginObject() {
  const std::uint16_t type = takeWord();
  if (type < kFirstObjectType || type > kLastObjectType)
    mdb::raiseDamaged("the design has an object of an impossible type " + std::to_string(type));
  nextId_ = 0;
  return type;
}

bool RecordReader::next(Record& record) {
  return compact_ ? nextCompact(record) : nextVerbose(record);
}

bool RecordReader::nextCompact(Record& record) {
  const std::uint8_t id = takeByte();
  if (id >= kNothingInside) {
    endObject(id);
    return false;
  }
  if (id < nextId_) mdb::raiseDamaged("the properties of an object are not in their order");
  nextId_ = id + 1u;
  record.id = id;
  record.code = 0;
  if (id < kFirstByteId) {
    record.kind = ValueKind::kBoolean;
    record.bytes = {};
  } else if (id < kFirstIntegerId) {
    record.kind = ValueKind::kByte;
    record.bytes = take(1);
  } else if (id < kFirstLongId) {
    record.kind = ValueKind::kInteger;
    record.bytes = take(2);
  } else if (id < kFirstPrefixedId) {
    record.kind = ValueKind::kLong;
    record.bytes = take(4);
  } else {
    record.kind = ValueKind::kBySlot;
    record.bytes = take(compactLength());
  }
  return true;
}

bool RecordReader::nextVerbose(Record& record) {
  const std::uint32_t id = takeLong();
  if (id >= kNothingInside && id <= kSeveralInside) {
    endObject(id);
    return false;
  }
  record.id = id;
  record.code = takeWord();
  record.kind = kindOfVerboseType(takeLong());
  takeLong();  // the size that the value has in memory
  record.bytes = take(takeLong());
  return true;
}

void RecordReader::endObject(std::uint32_t terminator) {
  objectsInside_ = terminator == kNothingInside ? 0 : terminator == kOneInside ? 1 : takeWord();
  const std::size_t smallest = compact_ ? kSmallestCompactObject : kSmallestVerboseObject;
  if (objectsInside_ > (bytes_.size() - at_) / smallest)
    mdb::raiseDamaged("the design should hold more objects than there is room for");
}

std::size_t RecordReader::compactLength() {
  const std::uint8_t shortLength = takeByte();
  if (shortLength != kLongerThanByte) return shortLength;
  const std::uint16_t length = takeWord();
  return length != kLongerThanWord ? length : takeLong();
}

std::uint8_t RecordReader::takeByte() {
  const std::uint8_t number = bytes_.u8(at_);
  at_ += 1;
  return number;
}

std::uint16_t RecordReader::takeWord() {
  const std::uint16_t number = bytes_.u16(at_);
  at_ += 2;
  return number;
}

std::uint32_t RecordReader::takeLong() {
  const std::uint32_t number = bytes_.u32(at_);
  at_ += 4;
  return number;
}

std::span<const std::uint8_t> RecordReader::take(std::size_t length) {
  const auto taken = bytes_.sub(at_, length).bytes();
  at_ += length;
  return taken;
}

}  // namespace tarrowin
