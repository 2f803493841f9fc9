// The blocks of generated statements.
#include "codeconv/generated_statements.h"

#include <utility>

namespace tarrowin {

namespace {
constexpr char kSeparator = ';';
}

GeneratedStatements::GeneratedStatements(const ConversionState& state, PrintLine print)
    : state_(state), print_(std::move(print)) {}

bool GeneratedStatements::isDue() const {
  return state_.blnHasPictures || state_.blnFillCombos || state_.blnFillLists;
}

void GeneratedStatements::write(const GoOn& goOn) {
  if (state_.blnHasPictures) {
    writeImages();
  } else if (state_.blnFillCombos) {
    writeItems("' Tarrowin: Load ComboBox items", state_.astrComboSources, goOn);
  } else if (state_.blnFillLists) {
    writeItems("' Tarrowin: Load ListBox items", state_.astrListSources, goOn);
  }
}

void GeneratedStatements::writeImages() {
  print_("' Tarrowin: Load and display images");
  // From the unused element 0 on, which gives a line of three blanks.
  for (std::int32_t i = 0; i < state_.astrPictureCode.upperBound(); ++i) {
    print_("   " + state_.astrPictureCode[i]);
  }
}

void GeneratedStatements::writeItems(std::string_view heading, const GrowingList& sources,
                                     const GoOn& goOn) {
  if (state_.mblnUserControl) return;
  print_(heading);
  for (const std::string& source : sources) {
    if (!goOn()) return;
    writeEntry(source);
  }
}

void GeneratedStatements::writeEntry(std::string entry) {
  if (!entry.ends_with(kSeparator)) entry += kSeparator;
  std::size_t start = 0;
  while (start < entry.size()) {
    const std::size_t end = entry.find(kSeparator, start);
    const std::string item = entry.substr(start, end - start);
    if (start == 0) {
      print_("   With " + item);
    } else {
      if (firstItemPosition_ == 0) {
        firstItemPosition_ = end + 1;
        print_("      .Text = \"" + item + "\"");
      }
      print_("      .AddItem \"" + item + "\"");
    }
    start = end + 1;
  }
  print_("   End With");
}

}  // namespace tarrowin
