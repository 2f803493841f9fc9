// Quoting.
// See vb_literal.h.
#include "access/macro/vb_literal.h"

#include <algorithm>

#include "shared/vb_text.h"

namespace tarrowin {

namespace {

constexpr unsigned char kFirstPrintable = 32;
// Longer ones are beyond what any argument of an action takes.
constexpr std::size_t kMaximumDigits = 15;

}  // namespace

std::string vbLiteral(std::string_view text) {
  std::string line;
  bool quoted = false;
  const auto join = [&] {
    if (quoted) line += '"';
    if (!line.empty()) line += " & ";
    quoted = false;
  };
  while (!text.empty()) {
    const auto code = static_cast<unsigned char>(text.front());
    if (text.starts_with(kCrLf)) {
      join();
      line += "vbCrLf";
      text.remove_prefix(1);
    } else if (code < kFirstPrintable) {
      join();
      line += "Chr(" + std::to_string(code) + ")";
    } else {
      if (!quoted) {
        join();
        line += '"';
        quoted = true;
      }
      line += text.front();
      if (text.front() == '"') line += '"';
    }
    text.remove_prefix(1);
  }
  if (quoted) line += '"';
  return line.empty() ? "\"\"" : line;
}

bool isPlainNumber(std::string_view text) {
  if (text.starts_with('-')) text.remove_prefix(1);
  const auto isDigit = [](char character) { return character >= '0' && character <= '9'; };
  const auto digits = std::ranges::count_if(text, isDigit);
  const auto points = std::ranges::count(text, '.');
  return digits > 0 && static_cast<std::size_t>(digits) <= kMaximumDigits && points <= 1 &&
         digits + points == std::ssize(text) && !text.ends_with('.');
}

}  // namespace tarrowin
