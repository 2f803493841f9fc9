// Cutting a path into directory and file name. Both separators count, since the path of a database
// may come from another system.
#pragma once

#include <string>
#include <string_view>

namespace tarrowin {

// The separator that this system puts into the paths it builds.
#ifdef _WIN32
inline constexpr char kPathSeparator = '\\';
#else
inline constexpr char kPathSeparator = '/';
#endif

// The text behind the last "\" or "/"; the whole path when there is none.
std::string FileNameOf(std::string_view path);
// The text up to and including the last "\" or "/"; empty when there is none.
std::string DirectoryOf(std::string_view path);
// The text before the first "."; the whole text when there is none.
std::string StemOf(std::string_view fileName);

}  // namespace tarrowin
