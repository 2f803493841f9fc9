// Finding and decoding pages.
// See page_file.h.
#include "access/mdb/page_file.h"

#include <algorithm>
#include <array>
#include <limits>

#include "access/mdb/damage.h"
#include "access/mdb/rc4.h"

namespace tarrowin::mdb {
namespace {

constexpr Place pagePlace(std::uint32_t number) { return Place{"page", number}; }

}  // namespace

PageFile::PageFile(FileImage image, const FileHeader& header)
    : image_(std::move(image)),
      header_(header),
      pageCount_(static_cast<std::uint32_t>(
          std::min<std::size_t>(image_.bytes().size() / header.format->pageSize,
                                std::numeric_limits<std::uint32_t>::max()))) {
  if (header_.pageKey != 0) decoded_.resize(pageCount_);
}

ByteView PageFile::page(std::uint32_t number) const {
  if (number >= pageCount_) {
    raiseDamaged("page " + std::to_string(number) + " is missing, the file has only " +
                 std::to_string(pageCount_) + " pages");
  }
  std::size_t size = format().pageSize;
  auto stored = image_.bytes().subspan(number * size, size);
  return ByteView(number == 0 || header_.pageKey == 0 ? stored : decoded(number, stored),
                  pagePlace(number));
}

ByteView PageFile::page(std::uint32_t number, std::uint8_t type) const {
  ByteView view = page(number);
  if (view.u8(0) != type) {
    raiseDamaged("page " + std::to_string(number) + " is of type " + std::to_string(view.u8(0)) +
                 " instead of " + std::to_string(type));
  }
  return view;
}

// Each page has its own key: the file's, mixed with the page number.
std::span<const std::uint8_t> PageFile::decoded(std::uint32_t number,
                                                std::span<const std::uint8_t> stored) const {
  auto& plain = decoded_[number];
  if (!plain) {
    auto bytes = std::make_unique<std::uint8_t[]>(stored.size());
    std::copy(stored.begin(), stored.end(), bytes.get());
    std::uint32_t key = header_.pageKey ^ number;
    std::array<std::uint8_t, 4> keyBytes{
        static_cast<std::uint8_t>(key), static_cast<std::uint8_t>(key >> 8),
        static_cast<std::uint8_t>(key >> 16), static_cast<std::uint8_t>(key >> 24)};
    applyRc4(keyBytes, std::span(bytes.get(), stored.size()));
    plain = std::move(bytes);
  }
  return {plain.get(), stored.size()};
}

}  // namespace tarrowin::mdb
