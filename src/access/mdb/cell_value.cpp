// Decodes the stored types.
// See cell_value.h.
#include "access/mdb/cell_value.h"

#include <array>
#include <cstdio>
#include <cstdlib>

namespace tarrowin::mdb {
namespace {

constexpr double kCurrencyUnits = 10000;  // Currency is stored in ten-thousandths

Bytes copy(const ByteView& view) {
  auto bytes = view.bytes();
  return Bytes(bytes.begin(), bytes.end());
}

// u8 sign, then a whole number of 128 bits as four u32, the highest first.
// Digit by digit, so that the double nearest to the written number comes out.
double decimalValue(const ByteView& cell, int scale) {
  std::array<std::uint32_t, 4> words{cell.u32(1), cell.u32(5), cell.u32(9), cell.u32(13)};
  std::string digits;  // the lowest first
  while ((words[0] | words[1] | words[2] | words[3]) != 0) {
    std::uint64_t remainder = 0;
    for (std::uint32_t& word : words) {
      std::uint64_t part = (remainder << 32) | word;
      word = static_cast<std::uint32_t>(part / 10);
      remainder = part % 10;
    }
    digits.push_back(static_cast<char>('0' + remainder));
  }
  if (digits.empty()) return 0;
  std::string text(digits.rbegin(), digits.rend());
  text += "e-" + std::to_string(scale);
  double magnitude = std::strtod(text.c_str(), nullptr);
  return cell.u8(0) != 0 ? -magnitude : magnitude;
}

}  // namespace

std::string guidText(const ByteView& bytes) {
  std::array<char, 39> text{};
  std::snprintf(text.data(), text.size(), "{%08X-%04X-%04X-%02X%02X-%02X%02X%02X%02X%02X%02X}",
                bytes.u32(0), bytes.u16(4), bytes.u16(6), bytes.u8(8), bytes.u8(9), bytes.u8(10),
                bytes.u8(11), bytes.u8(12), bytes.u8(13), bytes.u8(14), bytes.u8(15));
  return text.data();
}

Value cellValue(const ByteView& cell, const StoredColumn& column, const TextDecoder& text) {
  switch (column.type) {
    case kDaoByte:
      return Value(std::int32_t{cell.u8(0)});
    case kDaoInteger:
      return Value(std::int32_t{cell.s16(0)});
    case kDaoLong:
      return Value(cell.s32(0));
    case kDaoCurrency:
      return Value(static_cast<double>(cell.s64(0)) / kCurrencyUnits);
    case kDaoSingle:
      return Value(static_cast<double>(cell.f32(0)));
    case kDaoDouble:
      return Value(cell.f64(0));
    case kDaoDate:
      return Value(Date{cell.f64(0)});
    case kDaoText:
      return Value(text.column(cell.bytes()));
    case kDaoGuid:
      return Value(guidText(cell));
    case kStoredDecimal:
      return Value(decimalValue(cell, column.scale));
    default:
      return Value(copy(cell));
  }
}

}  // namespace tarrowin::mdb
