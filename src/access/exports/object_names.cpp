// The codes are those of the ten characters, in one pass.
#include "access/exports/object_names.h"

#include <charconv>

namespace tarrowin::exports {

std::string nameOfFile(std::string_view stem) {
  constexpr std::string_view kCoded = "%<>:\"/\\|?*";
  constexpr std::size_t kDigits = 2;
  std::string name;
  while (!stem.empty()) {
    const std::string_view digits = stem.substr(1).substr(0, kDigits);
    unsigned code = 0;
    const auto [rest, error] =
        std::from_chars(digits.data(), digits.data() + digits.size(), code, 16);
    const bool isCode = stem.front() == '%' && digits.size() == kDigits && error == std::errc() &&
                        rest == digits.data() + digits.size() &&
                        kCoded.find(static_cast<char>(code)) != std::string_view::npos;
    name += isCode ? static_cast<char>(code) : stem.front();
    stem.remove_prefix(isCode ? 1 + kDigits : 1);
  }
  return name;
}

}  // namespace tarrowin::exports
