// The header rows and their error table.
#include "forms/form_header.h"

#include <algorithm>
#include <iterator>
#include <string>

#include "core/design_sections.h"
#include "forms/control_types.h"
#include "forms/value_rules.h"
#include "shared/text_procedures.h"
#include "shared/value_tests.h"
#include "shared/vb_text.h"

namespace tarrowin {

namespace {

using namespace value_rule;

// The widest form that Visual Basic shows, in twips.
constexpr std::int32_t kWidestClient = 15360;

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

void clientWidth(const PrintedControl& form, std::string_view property, std::string& line) {
  const Value width = form.ctl.get(property);
  line += isAbove(width, kWidestClient) ? std::to_string(kWidestClient) : joined(width);
}

// Lines that a user control lacks have the condition ofForm. The rows stand in the order of the
// file; those of HeaderKind stand between them.
// clang-format off
constexpr PrinterRow kColourRows[] = {
    {"VERSION 5.00"},
    {"Begin VB.",             className},
    {"   Appearance    = ",   detailAppearance},
    {"   BackColor     = ",   detailColor,  "BackColor"},
    {"   BorderStyle   = ",   raw,          "BorderStyle",   ofForm},
};

constexpr PrinterRow kPlaceRows[] = {
    {"   ClientLeft    = 60"},
    {"   ClientTop     = 345"},
    {"   ClientWidth   = ",   clientWidth,  "Width"},
    {"   Enabled       = -1"},
    {"   HelpContextID = ",   raw,          "HelpContextID", ofForm},
};

constexpr PrinterRow kButtonRows[] = {
    {"   MaxButton     = ",   raw,          "MinMaxButtons", ofForm},
    {"   MinButton     = ",   raw,          "MinMaxButtons", ofForm},
    {"   Tag           = ",   quotedClean,  "Tag"},
};
// clang-format on

// Errors of the header that pass silently: what a form without a section raises, and members that
// forms of some kinds lack.
constexpr std::int32_t kTolerated[] = {2186, 2452, 2455, 2462, 2465};

}  // namespace

const std::string& cleanedCaption(const PrintedControl& design) {
  const std::string whole = design.ctl.text("Caption");
  const std::string trimmed = Trim(whole);
  std::string& clean = design.state().strCleanText;
  clean = trimmed.empty() ? whole : CleanText(std::string(trimmed));
  return clean;
}

void printCaption(const PrintedControl& design, std::string_view caption) {
  std::string line = "   Caption       = \"";
  line += caption;
  design.main.files.Print(kOutputFile, line += '"');
}

void printHeader(MainObject& main, const HeaderKind& kind) {
  ConversionState& state = main.state;
  Procedure procedure([&](const VbError& error) {
    if (error.number() == kErrOverflow) {
      state.*kind.clientHeight = kOverflowedClient;
    } else if (std::ranges::find(kTolerated, error.number()) == std::end(kTolerated)) {
      main.errorBox(kind.procedure, error);
    }
    return Resume::kNext;
  });
  procedure.run([&] {
    kind.readHeights(procedure, state);
    const PrintedControl design{main, state.*kind.design};
    const std::span<const PrinterRow> blocks[] = {kColourRows, kind.captionAndHeight, kPlaceRows,
                                                  kind.keys, kButtonRows};
    for (const std::span<const PrinterRow> rows : blocks) {
      for (const PrinterRow& row : rows) {
        procedure.statement([&] { printRow(design, row, ""); });
      }
    }
  });
}

}  // namespace tarrowin
