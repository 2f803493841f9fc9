// Cuts a path at its last separator.
#include "shared/path_procedures.h"

namespace tarrowin {

namespace {

// Index behind the last separator; 0 when there is none.
std::size_t nameStart(std::string_view path) { return path.find_last_of("\\/") + 1; }

}  // namespace

std::string FileNameOf(std::string_view path) { return std::string(path.substr(nameStart(path))); }

std::string DirectoryOf(std::string_view path) {
  return std::string(path.substr(0, nameStart(path)));
}

std::string StemOf(std::string_view fileName) {
  return std::string(fileName.substr(0, fileName.find('.')));
}

}  // namespace tarrowin
