// Names of objects as names of files, and back.
#pragma once

#include <string>
#include <string_view>

namespace tarrowin::exports {

// The characters that no file name can have are written as "%3F" and so on; the codes of others
// stand as they are. In UTF-8.
std::string nameOfFile(std::string_view stem);

}  // namespace tarrowin::exports
