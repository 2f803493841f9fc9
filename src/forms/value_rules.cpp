// What each rule reads and prints.
#include "forms/value_rules.h"

#include "forms/control_geometry.h"
#include "forms/design_in_hand.h"
#include "forms/font_block.h"
#include "shared/text_procedures.h"
#include "shared/value_tests.h"
#include "shared/vb_text.h"

namespace tarrowin {

namespace {

void appendQuoted(std::string& line, std::string_view text) {
  line += '"';
  line += text;
  line += '"';
}

void oneIf(bool condition, const PrintedControl& control, std::string& line) {
  line += condition ? "1" : joined(control.ctl.get("BorderStyle"));
}

}  // namespace

namespace value_rule {

void raw(const PrintedControl& control, std::string_view property, std::string& line) {
  line += joined(control.ctl.get(property));
}

void quoted(const PrintedControl& control, std::string_view property, std::string& line) {
  appendQuoted(line, joined(control.ctl.get(property)));
}

void quotedTrim(const PrintedControl& control, std::string_view property, std::string& line) {
  appendQuoted(line, Trim(joined(control.ctl.get(property))));
}

void quotedClean(const PrintedControl& control, std::string_view property, std::string& line) {
  std::string& clean = control.state().strCleanText;
  clean = CleanText(joined(control.ctl.get(property)));
  appendQuoted(line, clean);
}

void boolean(const PrintedControl& control, std::string_view property, std::string& line) {
  line += isTrue(control.ctl.get(property)) ? "-1" : "0";
}

void trueOrFalse(const PrintedControl& control, std::string_view property, std::string& line) {
  line += isTrue(control.ctl.get(property)) ? "-1  'True" : "0   'False";
}

void quotedText(const PrintedControl&, std::string_view text, std::string& line) {
  appendQuoted(line, text);
}

void name(const PrintedControl& control, std::string_view, std::string& line) {
  line += control.state().strCtlName;
}

std::string prefixedName(const ConversionState& state, std::string_view prefix) {
  if (!state.mblnDataRepeater || state.strCtlName.starts_with(prefix)) return state.strCtlName;
  return std::string(prefix) + state.strCtlName;
}

void prefixedName(const PrintedControl& control, std::string_view prefix, std::string& line) {
  line += prefixedName(control.state(), prefix);
}

void appearance(const PrintedControl& control, std::string_view, std::string& line) {
  line += isAtLeast(control.ctl.get("SpecialEffect"), 2) ? '1' : '0';
}

void alignment(const PrintedControl& control, std::string_view, std::string& line) {
  constexpr std::int32_t kCenter = 2, kRight = 3;
  const Value align = control.ctl.get("TextAlign");
  line += equals(align, kCenter) ? '2' : (equals(align, kRight) ? '1' : '0');
}

void backColor(const PrintedControl& control, std::string_view, std::string& line) {
  constexpr std::int32_t kTransparent = 0;
  if (!equals(control.ctl.get("BackStyle"), kTransparent)) return raw(control, "BackColor", line);
  const Value section = control.ctl.get("Section");
  const LateBound& design = designInHand(control.state());
  line += joined(LateBound(toObject(design.get("Section", {section}))).get("BackColor"));
}

void effectBorder(const PrintedControl& control, std::string_view, std::string& line) {
  oneIf(isAbove(control.ctl.get("SpecialEffect"), 0), control, line);
}

void cappedBorder(const PrintedControl& control, std::string_view, std::string& line) {
  oneIf(isAtLeast(control.ctl.get("BorderStyle"), 2), control, line);
}

std::string field(const LateBound& ctl) {
  const std::string source = joined(ctl.get("ControlSource"));
  return source.starts_with('=') ? std::string() : source;
}

void quotedField(const PrintedControl& control, std::string_view, std::string& line) {
  appendQuoted(line, field(control.ctl));
}

void quotedAdodc(const PrintedControl& control, std::string_view, std::string& line) {
  appendQuoted(line, "Adodc" + LTrimStr(control.state().intAdoCtlNum));
}

void left(const PrintedControl& control, std::string_view, std::string& line) {
  line += std::to_string(GetControlLeft(control.main, control.ctl));
}

void top(const PrintedControl& control, std::string_view, std::string& line) {
  line += std::to_string(topInHand(control.main, control.ctl));
}

void formTop(const PrintedControl& control, std::string_view, std::string& line) {
  line += std::to_string(GetFormSection(control.main, control.ctl));
}

void subFormHeight(const PrintedControl& control, std::string_view, std::string& line) {
  line += std::to_string(control.state().intSubHeight);
}

void subFormWidth(const PrintedControl& control, std::string_view, std::string& line) {
  line += std::to_string(control.state().intSubWidth);
}

}  // namespace value_rule

namespace row_condition {

bool withDataCtl(const PrintedControl& control) { return control.state().blnDataCtl; }

bool withAdoAlone(const PrintedControl& control) {
  return !control.state().blnDataCtl && control.state().mblnAdoDataCtl;
}

bool outsideOptionGroup(const PrintedControl& control) { return !control.state().blnInOptionGroup; }

}  // namespace row_condition

namespace row_block {

void font(const PrintedControl& control) { GetFontProps(control.main, control.ctl); }

}  // namespace row_block

}  // namespace tarrowin
