// How the shared values are made.
#include "reports/report_values.h"

#include "shared/value_tests.h"
#include "shared/vb_text.h"

namespace tarrowin {

std::string yesOrNo(bool value) { return value ? "-1   'True" : "0   'False"; }

std::string betweenBrackets(std::string_view text) {
  const std::int32_t start = InStr(text, "[") + 1;
  return Mid(text, start, InStr(text, "]") - start);
}

bool isSqlText(std::string_view source) {
  constexpr std::size_t kKeyword = 6;
  const std::string head = UCase(source.substr(0, kKeyword));
  return head == "SELECT" || head == "TRANSF";
}

bool refersToForms(std::string_view source) {
  for (const std::string_view word : {"FORMS", "Forms", "forms", "!"}) {
    if (source.find(word) != std::string_view::npos) return true;
  }
  return false;
}

namespace value_rule {

void baseName(const PrintedControl& report, std::string_view, std::string& line) {
  line += report.state().mstrBaseName;
}

void reportHeight(const PrintedControl& report, std::string_view, std::string& line) {
  line += std::to_string(report.state().lngReportHeight);
}

}  // namespace value_rule

}  // namespace tarrowin
