// The rows of the font block.
#include "forms/font_block.h"

#include "core/statement.h"
#include "forms/printer_rows.h"
#include "forms/value_rules.h"
#include "shared/value_tests.h"

namespace tarrowin {

namespace {

using namespace value_rule;

constexpr std::string_view kEnd = "      EndProperty";

// The note behind the value has a blank that the one of trueOrFalse has not.
void italic(const PrintedControl& control, std::string_view property, std::string& line) {
  line += isTrue(control.ctl.get(property)) ? "-1  ' True" : "0   'False";
}

// clang-format off
constexpr PrinterRow kFontRows[] = {
    {"      BeginProperty Font"},
    {"         Name       = ", quoted,      "FontName"},
    {"         Italic     = ", italic,      "FontItalic"},
    {"         Size       = ", raw,         "FontSize"},
    {"         Underline  = ", trueOrFalse, "FontUnderline"},
    {"         Weight     = ", raw,         "FontWeight"},
    {kEnd},
};
// clang-format on

// What a control without fonts raises.
constexpr std::int32_t kErrNoProperty = 2186;

}  // namespace

void GetFontProps(MainObject& main, const LateBound& ctl) {
  const ConversionState& state = main.state;
  const PrintedControl control{main, ctl};
  Procedure procedure([&](const VbError& error) {
    if (error.number() == kErrNoSuchMember || error.number() == kErrNoProperty) {
      ignoringErrors([&] { main.files.Print(kOutputFile, state.strIndent + std::string(kEnd)); });
      return Resume::kLeave;
    }
    main.controlErrorBox("GetFontProps", state.strCtlName, error);
    return Resume::kNext;
  });
  procedure.run([&] {
    for (const PrinterRow& row : kFontRows)
      procedure.statement([&] { printRow(control, row, state.strIndent); });
  });
}

}  // namespace tarrowin
