// The value of a stored property, out of its bytes.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <variant>

#include "access/design_blob/record_reader.h"
#include "access/designs/stored_design.h"
#include "shared/code_page.h"

namespace tarrowin {

// How the texts of a design are stored, and the code page into which they are taken.
class DesignTexts {
 public:
  // Wide texts are UTF-16, others are in the ANSI page. The pages must outlive this object.
  DesignTexts(bool wide, const CodePage& ansi, const CodePage& codePage)
      : wide_(wide), ansi_(ansi), codePage_(codePage) {}

  std::string text(std::span<const std::uint8_t> bytes) const;

 private:
  bool wide_;
  const CodePage& ansi_;
  const CodePage& codePage_;
};

// The value as a text export gives it: numbers, texts, and bytes for what it writes as bytes (which
// the GUID and the date RecSrcDt are too); a Boolean of a later Access is a number. Nothing when
// the length is none that a value of the kind may have.
std::optional<std::variant<TurnedOver, Value>> storedValue(const Record& record, ValueKind kind,
                                                           const DesignTexts& texts);

}  // namespace tarrowin
