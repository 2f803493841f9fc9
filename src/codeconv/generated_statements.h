// The statements that fill controls when a form loads: images, combo boxes, list boxes.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "codeconv/code_text.h"
#include "core/conversion_state.h"

namespace tarrowin {

// One object serves the whole code of a form: the text of a box is set once in a form.
class GeneratedStatements {
 public:
  // Asked before each entry of the combo or list boxes; false ends them.
  using GoOn = std::function<bool()>;

  GeneratedStatements(const ConversionState& state, PrintLine print);

  // True when there is a block to write.
  bool isDue() const;
  // Writes one block, if one is due: that of the images, else that of the combo boxes, else that
  // of the list boxes. A user control gets no items.
  void write(const GoOn& goOn = [] { return true; });

 private:
  void writeImages();
  void writeItems(std::string_view heading, const GrowingList& sources, const GoOn& goOn);
  // An entry reads "cboCity;London;Paris".
  void writeEntry(std::string entry);

  const ConversionState& state_;
  PrintLine print_;
  std::size_t firstItemPosition_ = 0;  // where the first item of the form ended, 1-based; 0 before
};

}  // namespace tarrowin
