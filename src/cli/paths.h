// Paths as a person writes them, made absolute.
#pragma once

#include <string>

#include "shared/code_page.h"

namespace tarrowin {

// The path behind the directory unless it is absolute already. Nothing is looked up or shortened,
// so that ".." behind a symbolic link keeps its meaning.
std::string absolutePath(const std::string& directory, const std::string& path);

// The same with "." and ".." taken out by the text alone, which makes one file have one name. A
// path that is absolute, also one with a drive letter or of a Windows network share, stays as it
// is.
std::string lexicalPath(const std::string& directory, const std::string& path);

// The path in the code page. Throws CommandFailure when the page lacks one of its characters, since
// the file would not be found again.
std::string pathInCodePage(const CodePage& codePage, const std::string& path);

}  // namespace tarrowin
