// Joining and shortening paths.
#include "cli/paths.h"

#include <filesystem>

#include "cli/exit_status.h"

namespace tarrowin {

namespace {

// Absolute here or on the system that the database comes from: "C:\\dll" and "\\\\server\\share"
// are data to this one and must stay as they are.
bool isAbsolute(const std::string& path) {
  if (path.starts_with('/') || path.starts_with('\\')) return true;
  const auto isLetter = [](char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); };
  return path.size() >= 3 && isLetter(path[0]) && path[1] == ':' &&
         (path[2] == '\\' || path[2] == '/');
}

}  // namespace

std::string absolutePath(const std::string& directory, const std::string& path) {
  return (std::filesystem::path(directory) / path).string();
}

std::string lexicalPath(const std::string& directory, const std::string& path) {
  if (isAbsolute(path)) return path;
  return (std::filesystem::path(directory) / path).lexically_normal().string();
}

std::string pathInCodePage(const CodePage& codePage, const std::string& path) {
  std::string inPage = codePage.fromUtf8(path);
  if (codePage.toUtf8(inPage) != path) {
    throw CommandFailure(path + ": the path has a character that code page " +
                         std::to_string(codePage.number()) +
                         " lacks; name another page with --code-page");
  }
  return inPage;
}

}  // namespace tarrowin
