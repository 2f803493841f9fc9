// Writes designs the way Access keeps them, in both of its encodings, and prints what was read.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "access/designs/stored_design.h"
#include "shared/value.h"

namespace tarrowin {

// Versions, types of objects.
using Numbers = std::initializer_list<std::uint16_t>;

// Types of values in verbose records.
inline constexpr std::uint32_t kBooleanType = 1, kByteType = 2, kIntegerType = 3, kLongType = 4,
                               kSingleType = 6, kDoubleType = 8, kGuidType = 9, kTextType = 10,
                               kBinaryType = 11, kLongTextType = 12, kMacroType = 17;

struct BuiltRecord {
  std::uint32_t id = 0;
  std::uint32_t type = 0;  // of verbose records
  Bytes bytes;             // of anything but a text
  std::u16string text;     // of a text, in the way of the version
  std::uint16_t code = 0;  // of verbose records

  BuiltRecord withCode(std::uint16_t newCode) const;
};

BuiltRecord flag(std::uint32_t id);
BuiltRecord byteValue(std::uint32_t id, std::uint8_t value);
BuiltRecord integerValue(std::uint32_t id, std::int16_t value);
BuiltRecord longValue(std::uint32_t id, std::int32_t value);
BuiltRecord textValue(std::uint32_t id, std::u16string_view text);
// Bytes as they stand.
BuiltRecord raw(std::uint32_t id, std::uint32_t type, Bytes bytes);

struct BuiltObject {
  std::uint16_t type = 0;
  std::vector<BuiltRecord> records;
  std::vector<BuiltObject> inside;
};

// The terminator tells the number of objects inside in its shortest form.
Bytes designBlob(std::uint16_t version, const BuiltObject& root);

// A block a line, two blanks for each level; numbers as they are, texts in quotes, bytes as
// <number of bytes>, flags with "!".
std::string listing(const StoredBlock& block);

}  // namespace tarrowin
