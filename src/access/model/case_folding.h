// Matching of names without regard to case, as automation and the database engine do it, for texts
// in the program's code page.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "shared/code_page.h"

namespace tarrowin {

class CaseFolding {
 public:
  // Letters beyond ASCII fold as the code page has them; under CodePage::kUtf8 only ASCII folds.
  explicit CaseFolding(const CodePage& codePage);

  char fold(char c) const { return table_[static_cast<unsigned char>(c)]; }
  std::string fold(std::string_view text) const;
  bool equal(std::string_view left, std::string_view right) const;
  bool startsWith(std::string_view text, std::string_view prefix) const;

 private:
  std::array<char, 256> table_;
};

}  // namespace tarrowin
