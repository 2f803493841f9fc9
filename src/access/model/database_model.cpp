// Facts about field types and module texts that every source needs.
#include "access/model/database_model.h"

#include <algorithm>

namespace tarrowin {

std::int32_t usualSizeOfType(std::int32_t daoType) {
  switch (daoType) {
    case 1:  // Boolean
    case 2:  // Byte
      return 1;
    case 3:  // Integer
      return 2;
    case 4:  // Long
    case 6:  // Single
      return 4;
    case 5:  // Currency
    case 7:  // Double
    case 8:  // Date
      return 8;
    case 10:  // Text
      return 255;
    case 15:  // GUID
    case 20:  // Decimal
      return 16;
    default:
      return 0;
  }
}

std::int32_t countLines(std::string_view text) {
  const auto ends = std::count(text.begin(), text.end(), '\n');
  const bool openEnd = !text.empty() && text.back() != '\n';
  return static_cast<std::int32_t>(ends) + (openEnd ? 1 : 0);
}

}  // namespace tarrowin
