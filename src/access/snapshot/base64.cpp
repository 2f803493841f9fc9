// The alphabet of base64 in both directions.
#include "access/snapshot/base64.h"

#include <array>
#include <cstdint>

namespace tarrowin {

namespace {

constexpr std::string_view kAlphabet =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

// The six bits of each character, -1 for all others.
constexpr std::array<std::int8_t, 256> kValues = [] {
  std::array<std::int8_t, 256> values{};
  values.fill(-1);
  for (std::size_t i = 0; i < kAlphabet.size(); ++i)
    values[static_cast<unsigned char>(kAlphabet[i])] = static_cast<std::int8_t>(i);
  return values;
}();

}  // namespace

std::string toBase64(const Bytes& bytes) {
  std::string result;
  result.reserve((bytes.size() + 2) / 3 * 4);
  for (std::size_t i = 0; i < bytes.size(); i += 3) {
    std::uint32_t group = static_cast<std::uint32_t>(bytes[i]) << 16;
    if (i + 1 < bytes.size()) group |= static_cast<std::uint32_t>(bytes[i + 1]) << 8;
    if (i + 2 < bytes.size()) group |= bytes[i + 2];
    result += kAlphabet[group >> 18];
    result += kAlphabet[group >> 12 & 63];
    result += i + 1 < bytes.size() ? kAlphabet[group >> 6 & 63] : '=';
    result += i + 2 < bytes.size() ? kAlphabet[group & 63] : '=';
  }
  return result;
}

std::optional<Bytes> fromBase64(std::string_view text) {
  for (int padding = 0; padding < 2 && !text.empty() && text.back() == '='; ++padding)
    text.remove_suffix(1);
  if (text.size() % 4 == 1) return std::nullopt;
  Bytes result;
  result.reserve(text.size() * 3 / 4);
  std::uint32_t group = 0;
  int bits = 0;
  for (const char c : text) {
    const int value = kValues[static_cast<unsigned char>(c)];
    if (value < 0) return std::nullopt;
    group = group << 6 | static_cast<std::uint32_t>(value);
    bits += 6;
    if (bits >= 8) {
      bits -= 8;
      result.push_back(static_cast<std::uint8_t>(group >> bits & 0xFF));
    }
  }
  return result;
}

}  // namespace tarrowin
