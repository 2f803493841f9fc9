// The ANSI code page in which the program keeps all text: one byte, one character. Sources and
// faces convert at their edge.
#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace tarrowin {

class CodePage {
 public:
  static constexpr int kUtf8 = 65001;
  static constexpr int kWestern = 1252;

  // A Windows single-byte code page (1250 to 1258, 874, 437, 850 and others that the C library's
  // iconv knows), or kUtf8, under which text passes unchanged: a recording uses it to lose nothing.
  // Throws std::invalid_argument for an unknown or multi-byte page.
  explicit CodePage(int number = kWestern);

  int number() const { return number_; }

  // UTF-8 to the code page. A character that the page lacks becomes "?", as Windows does it;
  // malformed UTF-8 becomes one "?" a maximal bad sequence.
  std::string fromUtf8(std::string_view utf8) const;
  // The code page to UTF-8. The bytes that the page leaves undefined pass as the control
  // characters of the same number, as Windows does it, so that fromUtf8(toUtf8(x)) == x.
  std::string toUtf8(std::string_view text) const;

 private:
  struct Tables;
  int number_;
  std::shared_ptr<const Tables> tables_;  // none under kUtf8
};

}  // namespace tarrowin
