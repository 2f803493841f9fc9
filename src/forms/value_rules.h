// The value rules of the printers' tables, each written once. Values are read from the control when
// their line is printed, and no sooner.
#pragma once

#include <string>
#include <string_view>

#include "forms/printer_rows.h"

namespace tarrowin::value_rule {

// The value as Access returns it.
void raw(const PrintedControl&, std::string_view property, std::string& line);
// Between double quotes.
void quoted(const PrintedControl&, std::string_view property, std::string& line);
void quotedTrim(const PrintedControl&, std::string_view property, std::string& line);
// Between double quotes, control characters as blanks and double quotes as apostrophes; a text of
// blanks as it stands. Sets strCleanText.
void quotedClean(const PrintedControl&, std::string_view property, std::string& line);
// "-1" or "0".
void boolean(const PrintedControl&, std::string_view property, std::string& line);
// "-1  'True" or "0   'False".
void trueOrFalse(const PrintedControl&, std::string_view property, std::string& line);
// The fixed text between double quotes.
void quotedText(const PrintedControl&, std::string_view text, std::string& line);

// strCtlName.
void name(const PrintedControl&, std::string_view, std::string& line);
// strCtlName, with the prefix in front in a DataRepeater conversion unless it starts so.
void prefixedName(const PrintedControl&, std::string_view prefix, std::string& line);
std::string prefixedName(const ConversionState& state, std::string_view prefix);

// 1 for a SpecialEffect of 2 or more, else 0.
void appearance(const PrintedControl&, std::string_view, std::string& line);
// Access's 2 (center) and 3 (right) are Visual Basic's 2 and 1; all else is left, 0.
void alignment(const PrintedControl&, std::string_view, std::string& line);
// A transparent control shows the colour of the section that it stands on.
void backColor(const PrintedControl&, std::string_view, std::string& line);
// 1 for a SpecialEffect above 0, else BorderStyle.
void effectBorder(const PrintedControl&, std::string_view, std::string& line);
// 1 for a BorderStyle of 2 or more, else BorderStyle.
void cappedBorder(const PrintedControl&, std::string_view, std::string& line);

// ControlSource between double quotes; empty for a calculated one.
void quotedField(const PrintedControl&, std::string_view, std::string& line);
std::string field(const LateBound& ctl);
// "Adodc" and intAdoCtlNum between double quotes.
void quotedAdodc(const PrintedControl&, std::string_view, std::string& line);

// Left and Top inside the container, in twips.
void left(const PrintedControl&, std::string_view, std::string& line);
void top(const PrintedControl&, std::string_view, std::string& line);
// Top as in a form, of a control of a report too: kinds that forms alone know.
void formTop(const PrintedControl&, std::string_view, std::string& line);

// The saved size of the subform control in hand.
void subFormHeight(const PrintedControl&, std::string_view, std::string& line);
void subFormWidth(const PrintedControl&, std::string_view, std::string& line);

}  // namespace tarrowin::value_rule

namespace tarrowin::row_condition {

// blnDataCtl.
bool withDataCtl(const PrintedControl&);
// blnDataCtl is off and mblnAdoDataCtl on.
bool withAdoAlone(const PrintedControl&);
bool outsideOptionGroup(const PrintedControl&);

}  // namespace tarrowin::row_condition

namespace tarrowin::row_block {

// GetFontProps.
void font(const PrintedControl&);

}  // namespace tarrowin::row_block
