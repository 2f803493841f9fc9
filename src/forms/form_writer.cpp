// A form file: its header rows, its walk, its closing lines.
#include "forms/form_writer.h"

#include <algorithm>
#include <string>

#include "forms/control_dispatch.h"
#include "forms/control_walk.h"
#include "forms/form_header.h"
#include "forms/section_heights.h"
#include "forms/value_rules.h"

namespace tarrowin {

namespace {

using namespace value_rule;

// What the client area is higher than the sections: twips.
constexpr std::int16_t kClientMargin = 120;

void readHeights(Procedure& procedure, ConversionState& state) {
  readSectionHeights(procedure, state.frmCurr, mainFormHeights(state));
  procedure.statement(
      [&] { state.intClientHeight = sumOfHeights(mainFormHeights(state), kClientMargin); });
  state.intClientHeight = std::min(state.intClientHeight, kHighestClient);
}

// A user control cleans its caption too, and has no line for it.
void caption(const PrintedControl& form) {
  const std::string& clean = cleanedCaption(form);
  if (!form.state().mblnUserControl) printCaption(form, clean);
}

void clientHeight(const PrintedControl& form, std::string_view, std::string& line) {
  line += std::to_string(form.state().intClientHeight);
}

// clang-format off
constexpr PrinterRow kCaptionRows[] = {
    PrinterRow(caption),
    {"   ClientHeight  = ",   clientHeight},
};

constexpr PrinterRow kKeyRows[] = {
    {"   KeyPreview    = ",   boolean,      "KeyPreview"},
};
// clang-format on

constexpr HeaderKind kHeader = {"GetAccFormProps",
                                &ConversionState::frmCurr,
                                &ConversionState::intClientHeight,
                                readHeights,
                                kCaptionRows,
                                kKeyRows};

constexpr WalkKind kFormWalk = {.procedure = "CreateVBForm",
                                .design = &ConversionState::frmCurr,
                                .isLeftToContainer = isPrintedByContainer,
                                .isIndented = isIndentedInContainer,
                                .convert = GetControlProps};

}  // namespace

void GetAccFormProps(MainObject& main) { printHeader(main, kHeader); }

void CreateVBForm(MainObject& main) {
  convertWhole(main, kFormWalk, [&main](ControlWalk& walk) {
    const ConversionState& state = main.state;
    if (!state.mblnUserControl) return walk.printWithName("End   ' Form ");
    walk.printWithName("End   ' UserControl ctl");
    for (const std::string_view line :
         {"", "Attribute VB_Creatable = True", "Attribute VB_Exposed = True", ""}) {
      walk.print(line);
    }
  });
}

}  // namespace tarrowin
