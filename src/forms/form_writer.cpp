// The header rows, the walk, and their error tables.
#include "forms/form_writer.h"

#include <algorithm>
#include <iterator>
#include <string>

#include "core/statement.h"
#include "forms/control_dispatch.h"
#include "forms/control_types.h"
#include "forms/control_walk.h"
#include "forms/form_sections.h"
#include "forms/printer_rows.h"
#include "forms/section_heights.h"
#include "forms/value_rules.h"
#include "shared/text_procedures.h"
#include "shared/value_tests.h"
#include "shared/vb_text.h"

namespace tarrowin {

namespace {

using namespace value_rule;

// Visual Basic shows no more of a form than a screen of its time: twips.
constexpr std::int32_t kHighestClient = 11520;
constexpr std::int32_t kWidestClient = 15360;
// What the client area is higher than the sections: twips.
constexpr std::int16_t kClientMargin = 120;

bool ofForm(const PrintedControl& control) { return !control.state().mblnUserControl; }

LateBound detailOf(const PrintedControl& form) {
  return sectionOf(form.ctl, section_number::kDetail);
}

void className(const PrintedControl& form, std::string_view, std::string& line) {
  line += form.state().mblnUserControl ? "UserControl ctl" : "Form ";
  line += form.state().mstrBaseName;
}

void detailAppearance(const PrintedControl& form, std::string_view, std::string& line) {
  constexpr std::int32_t kSunken = 2;
  const Value effect = detailOf(form).get("SpecialEffect");
  line += isAtLeast(effect, kSunken) ? "1" : joined(effect);
}

void detailColor(const PrintedControl& form, std::string_view property, std::string& line) {
  line += joined(detailOf(form).get(property));
}

// Cleaned from its first to its last character that is no blank; a caption of blanks as it stands.
// A user control cleans it too, and has no line for it.
void caption(const PrintedControl& form) {
  const std::string whole = form.ctl.text("Caption");
  const std::string trimmed = Trim(whole);
  std::string& clean = form.state().strCleanText;
  clean = trimmed.empty() ? whole : CleanText(std::string(trimmed));
  const std::string line = "   Caption       = \"" + clean + '"';
  if (ofForm(form)) form.main.files.Print(kOutputFile, line);
}

void clientHeight(const PrintedControl& form, std::string_view, std::string& line) {
  line += std::to_string(form.state().intClientHeight);
}

void clientWidth(const PrintedControl& form, std::string_view property, std::string& line) {
  const Value width = form.ctl.get(property);
  line += isAbove(width, kWidestClient) ? std::to_string(kWidestClient) : joined(width);
}

// Lines that a user control lacks have the condition ofForm.
// clang-format off
constexpr PrinterRow kHeaderRows[] = {
    {"VERSION 5.00"},
    {"Begin VB.",             className},
    {"   Appearance    = ",   detailAppearance},
    {"   BackColor     = ",   detailColor,  "BackColor"},
    {"   BorderStyle   = ",   raw,          "BorderStyle",   ofForm},
    PrinterRow(caption),
    {"   ClientHeight  = ",   clientHeight},
    {"   ClientLeft    = 60"},
    {"   ClientTop     = 345"},
    {"   ClientWidth   = ",   clientWidth,  "Width"},
    {"   Enabled       = -1"},
    {"   HelpContextID = ",   raw,          "HelpContextID", ofForm},
    {"   KeyPreview    = ",   boolean,      "KeyPreview"},
    {"   MaxButton     = ",   raw,          "MinMaxButtons", ofForm},
    {"   MinButton     = ",   raw,          "MinMaxButtons", ofForm},
    {"   Tag           = ",   quotedClean,  "Tag"},
};
// clang-format on

// Errors of the header that pass silently: what a form without a section raises, and members that
// forms of some kinds lack.
constexpr std::int32_t kHeaderTolerated[] = {2186, 2452, 2455, 2462, 2465};

// Members of option groups and of tab pages are printed by these, those of a subform by it.
bool isPrintedByContainer(std::int32_t P, std::int32_t Q) {
  using namespace control_type;
  return P == kOptionGroup || Q == kOptionGroup || (Q == kSubform && P != kSubform) ||
         P == kTabControl || Q == kTabControl;
}

bool isIndented(const ConversionState& state) { return state.blnInOptionGroup || state.blnInTab; }

constexpr WalkKind kFormWalk = {"CreateVBForm", isPrintedByContainer, isIndented, GetControlProps};

}  // namespace

void GetAccFormProps(MainObject& main) {
  constexpr std::int32_t kOverflowHeight = 32767;
  ConversionState& state = main.state;
  Procedure procedure([&](const VbError& error) {
    if (error.number() == kErrOverflow) {
      state.intClientHeight = kOverflowHeight;
    } else if (std::ranges::find(kHeaderTolerated, error.number()) == std::end(kHeaderTolerated)) {
      main.errorBox("GetAccFormProps", error);
    }
    return Resume::kNext;
  });
  procedure.run([&] {
    readSectionHeights(procedure, state.frmCurr, mainFormHeights(state));
    procedure.statement(
        [&] { state.intClientHeight = sumOfHeights(mainFormHeights(state), kClientMargin); });
    state.intClientHeight = std::min(state.intClientHeight, kHighestClient);
    const PrintedControl form{main, state.frmCurr};
    for (const PrinterRow& row : kHeaderRows) {
      procedure.statement([&] { printRow(form, row, ""); });
    }
  });
}

void CreateVBForm(MainObject& main) {
  ConversionState& state = main.state;
  state.astrDupNames.reset();
  state.astrPictureCode.reset();
  state.blnSubInTab = false;
  ControlWalk walk(main, kFormWalk);
  walk.begin();
  walk.convertControls();
  const auto print = [&](std::string_view literal, bool withName = false) {
    walk.statement([&] {
      std::string line(literal);
      if (withName) line += state.frmCurr.text("Name");
      main.files.Print(kOutputFile, line);
    });
  };
  if (state.mblnUserControl) {
    print("End   ' UserControl ctl", true);
    print("");
    print("Attribute VB_Creatable = True");
    print("Attribute VB_Exposed = True");
    print("");
  } else {
    print("End   ' Form ", true);
  }
  state.astrCtlNames.reset();
  state.astrDupNames.reset();
}

}  // namespace tarrowin
