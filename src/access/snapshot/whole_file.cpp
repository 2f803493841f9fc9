// Reading a file in one piece.
#include "access/snapshot/whole_file.h"

#include <fstream>

namespace tarrowin {

std::optional<std::string> readWholeFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary | std::ios::ate);
  const auto size = file.tellg();
  if (!file || size < 0) return std::nullopt;
  std::string text(static_cast<std::size_t>(size), '\0');
  file.seekg(0);
  file.read(text.data(), static_cast<std::streamsize>(text.size()));
  if (!file) return std::nullopt;
  return text;
}

}  // namespace tarrowin
