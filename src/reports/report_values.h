// Values that the files of a report share.
#pragma once

#include <string>
#include <string_view>

#include "forms/printer_rows.h"
#include "shared/value_tests.h"

namespace tarrowin {

// "-1   'True" or "0   'False", with one blank more than trueOrFalse has in front of "'True".
std::string yesOrNo(bool value);

// The text between the first "[" and the first "]". Raises 5 when there is none.
std::string betweenBrackets(std::string_view text);

// Whether a RecordSource is the text of a query rather than a name: it begins with SELECT or
// TRANSF, in capitals or not.
bool isSqlText(std::string_view source);

// Whether a source refers to a form, which DAO alone cannot resolve.
bool refersToForms(std::string_view source);

namespace value_rule {

// mstrBaseName; lngReportHeight.
void baseName(const PrintedControl&, std::string_view, std::string& line);
void reportHeight(const PrintedControl&, std::string_view, std::string& line);

// The value, but no more than most.
template <std::int32_t most>
void atMost(const PrintedControl& control, std::string_view property, std::string& line) {
  const Value value = control.ctl.get(property);
  line += isAbove(value, most) ? std::to_string(most) : joined(value);
}

}  // namespace value_rule

}  // namespace tarrowin
