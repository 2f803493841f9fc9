// Where a row stands in the file.
#pragma once

#include <cstdint>

namespace tarrowin::mdb {

struct RowAddress {
  std::uint32_t page = 0;
  std::uint16_t row = 0;  // 0-based on the page
};

}  // namespace tarrowin::mdb
