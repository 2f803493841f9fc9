// Numbers and texts of records.
// See stored_value.h.
#include "access/design_blob/stored_value.h"

#include <algorithm>
#include <cstddef>

#include "access/mdb/byte_view.h"
#include "access/mdb/text.h"

namespace tarrowin {

namespace {

constexpr std::uint8_t kFirstBeyondAscii = 0x80;
constexpr std::size_t kGuidSize = 16;

bool isAscii(std::span<const std::uint8_t> bytes) {
  return std::ranges::all_of(bytes, [](std::uint8_t byte) { return byte < kFirstBeyondAscii; });
}

// The text when it is ASCII, as nearly all texts of designs are.
std::optional<std::string> asciiFromUtf16(std::span<const std::uint8_t> bytes) {
  std::string text(bytes.size() / 2, '\0');
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (bytes[2 * i] >= kFirstBeyondAscii || bytes[2 * i + 1] != 0) return std::nullopt;
    text[i] = static_cast<char>(bytes[2 * i]);
  }
  return text;
}

// Later versions of Access write some of their Booleans and Integers in four bytes.
std::optional<Value> wholeNumber(mdb::ByteView view) {
  switch (view.size()) {
    case 1:
      return Value(std::int32_t{view.u8(0)});
    case 2:
      return Value(std::int32_t{view.s16(0)});
    case 4:
      return Value(view.s32(0));
    default:
      return std::nullopt;
  }
}

Value bytesValue(std::span<const std::uint8_t> bytes) {
  return Value(Bytes(bytes.begin(), bytes.end()));
}

}  // namespace

std::string DesignTexts::text(std::span<const std::uint8_t> bytes) const {
  if (wide_) {
    if (auto text = asciiFromUtf16(bytes)) return *std::move(text);
    return codePage_.fromUtf8(mdb::TextDecoder(false, codePage_).plain(bytes));
  }
  if (isAscii(bytes) || ansi_.number() == codePage_.number())
    return std::string(bytes.begin(), bytes.end());
  return codePage_.fromUtf8(mdb::TextDecoder(true, ansi_).plain(bytes));
}

std::optional<std::variant<TurnedOver, Value>> storedValue(const Record& record, ValueKind kind,
                                                           const DesignTexts& texts) {
  const mdb::ByteView view(record.bytes);
  switch (kind) {
    case ValueKind::kBoolean:
      if (record.id >= kFirstValueId) return wholeNumber(view);
      if (view.empty()) return TurnedOver();
      break;
    case ValueKind::kByte:
    case ValueKind::kInteger:
    case ValueKind::kLong:
      return wholeNumber(view);
    case ValueKind::kSingle:
      if (view.size() == 4) return Value(static_cast<double>(view.f32(0)));
      break;
    case ValueKind::kDouble:
      if (view.size() == sizeof(double)) return bytesValue(record.bytes);
      break;
    case ValueKind::kGuid:
      if (view.size() == kGuidSize) return bytesValue(record.bytes);
      break;
    case ValueKind::kText:
      return Value(texts.text(record.bytes));
    case ValueKind::kBinary:
    case ValueKind::kMacro:
      return bytesValue(record.bytes);
    case ValueKind::kBySlot:
    case ValueKind::kUnknown:
      break;
  }
  return std::nullopt;
}

}  // namespace tarrowin
