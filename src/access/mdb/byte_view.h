// A piece of the file whose every read is checked: the one way in which this folder looks at bytes
// that it did not make itself. Numbers are little-endian.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>

namespace tarrowin::mdb {

// What a view shows, for messages: "page 17", "table definition 2", "long value".
struct Place {
  const char* what = "value";  // a literal
  std::uint32_t number = 0;    // 0 = none
};

class ByteView {
 public:
  ByteView() = default;
  explicit ByteView(std::span<const std::uint8_t> bytes, Place place = {})
      : bytes_(bytes), place_(place) {}

  std::size_t size() const { return bytes_.size(); }
  bool empty() const { return bytes_.empty(); }
  std::span<const std::uint8_t> bytes() const { return bytes_; }
  Place place() const { return place_; }

  // Reads at a 0-based offset. Beyond the end they throw Error (kDamaged).
  std::uint8_t u8(std::size_t at) const { return read<std::uint8_t>(at); }
  std::uint16_t u16(std::size_t at) const { return read<std::uint16_t>(at); }
  std::uint32_t u24(std::size_t at) const {
    check(at, 3);
    return static_cast<std::uint32_t>(bytes_[at]) |
           (static_cast<std::uint32_t>(bytes_[at + 1]) << 8) |
           (static_cast<std::uint32_t>(bytes_[at + 2]) << 16);
  }
  std::uint32_t u32(std::size_t at) const { return read<std::uint32_t>(at); }
  std::int16_t s16(std::size_t at) const { return read<std::int16_t>(at); }
  std::int32_t s32(std::size_t at) const { return read<std::int32_t>(at); }
  std::int64_t s64(std::size_t at) const { return read<std::int64_t>(at); }
  float f32(std::size_t at) const { return read<float>(at); }
  double f64(std::size_t at) const { return read<double>(at); }

  // A part of this view; it must lie inside.
  ByteView sub(std::size_t at, std::size_t length) const {
    check(at, length);
    return ByteView(bytes_.subspan(at, length), place_);
  }
  ByteView from(std::size_t at) const {
    check(at, 0);
    return ByteView(bytes_.subspan(at), place_);
  }

 private:
  // The machines that this is built for are little-endian like the file.
  template <class Number>
  Number read(std::size_t at) const {
    check(at, sizeof(Number));
    Number number;
    std::memcpy(&number, bytes_.data() + at, sizeof number);
    return number;
  }
  void check(std::size_t at, std::size_t length) const {
    if (at > bytes_.size() || length > bytes_.size() - at) fail(at, length);
  }
  [[noreturn]] void fail(std::size_t at, std::size_t length) const;

  std::span<const std::uint8_t> bytes_;
  Place place_;
};

}  // namespace tarrowin::mdb
