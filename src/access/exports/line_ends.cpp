// Putting CR before each LF that has none.
#include "access/exports/line_ends.h"

namespace tarrowin::exports {

std::string withCrLf(std::string_view text) {
  std::string result;
  result.reserve(text.size() + text.size() / 32);
  for (const char character : text) {
    if (character == '\n' && !result.ends_with('\r')) result += '\r';
    result += character;
  }
  return result;
}

}  // namespace tarrowin::exports
