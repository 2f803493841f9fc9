// A digit, then a name.
#include "preview/page_entry.h"

#include <algorithm>

#include "shared/vb_text.h"

namespace tarrowin {

std::string previewName(std::string_view accessName) {
  std::string name(accessName);
  std::ranges::replace(name, ' ', '_');
  return name;
}

std::string pageEntry(std::int32_t page, std::string_view accessName) {
  return Left(LTrimStr(page), 1) + std::string(accessName);
}

std::string nameOfPageEntry(const std::string& entry) { return previewName(Mid(entry, 2)); }

std::optional<int> pageOfEntry(std::string_view entry) {
  if (entry.empty() || entry.front() < '0' || entry.front() > '9') return std::nullopt;
  return entry.front() - '0';
}

}  // namespace tarrowin
