// Error numbers to texts: looks the number up in the table and puts the name in.
#include "shared/vb_error.h"

#include <algorithm>

#include "shared/error_texts.h"

namespace tarrowin {

namespace {

constexpr std::string_view kUnknownText = "Application-defined or object-defined error";

}  // namespace

std::string standardErrorText(std::int32_t number, std::string_view name) {
  const auto table = errorTexts();
  const auto entry = std::ranges::lower_bound(table, number, {}, &ErrorText::number);
  if (entry == table.end() || entry->number != number) return std::string(kUnknownText);

  std::string text;
  for (const char character : entry->text) {
    if (character == '|') {
      text += name;
    } else {
      text += character;
    }
  }
  return text;
}

void VbError::makeText() const {
  description_ = standardErrorText(number_, description_);
  isTextDue_ = false;
}

void raise(std::int32_t number, std::string_view name) { throw VbError::standard(number, name); }

}  // namespace tarrowin
