// Reports for tests: entries of a snapshot, and a session in which one is open in Design view and
// is being converted into a form.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "forms/container_forms.h"
#include "forms/form_session.h"

namespace tarrowin::test {

// A report with a Detail section of 3000 twips, all that the header reads, and these controls.
inline Json report(std::string_view name, const std::vector<Json>& controls = {}) {
  return {
      {"name", name},
      {"properties",
       {{"RecordSource", "Orders"},
        {"Caption", "A report"},
        {"Width", 9000},
        {"BorderStyle", 2},
        {"HelpContextId", 7},
        {"MinMaxButtons", 3},
        {"Tag", ""}}},
      {"sections", {section(0, {{"Height", 3000}, {"BackColor", 12632256}, {"SpecialEffect", 0}})}},
      {"controls", controls}};
}

// All thirteen sections of a report; the heights tell by their sums which of them were added.
// Section n is 2 to the n twips high.
inline std::vector<Json> thirteenSections() {
  std::vector<Json> sections;
  for (int n = 0; n < 13; ++n)
    sections.push_back(section(n, {{"Height", 1 << n}, {"BackColor", 0}, {"SpecialEffect", 0}}));
  return sections;
}
inline ReportHeights thirteenHeights() {
  ReportHeights heights{};
  for (int n = 0; n < 13; ++n) heights[n] = static_cast<std::int16_t>(1 << n);
  return heights;
}

// What stands above each section, from the top of the report to its foot.
struct StackedSection {
  int number;
  int above;
};
inline constexpr StackedSection kStack[] = {
    {1, 0},                                                                 // report header
    {3, 2},                                                                 // page header
    {5, 2 + 8},       {7, 10 + 32},   {9, 42 + 128},    {11, 170 + 512},    // group headers
    {0, 682 + 2048},                                                        // Detail
    {6, 2730 + 1},    {8, 2731 + 64}, {10, 2795 + 256}, {12, 3051 + 1024},  // group footers
    {4, 4075 + 4096},                                                       // page footer
    {2, 8171 + 16},                                                         // report footer
};

class ReportFormSession : public FormSession {
 public:
  // Opens a database of these reports and the first of them in Design view.
  void openReports(const std::vector<Json>& reports, Json database = emptyDatabase()) {
    const std::string name = reports.front()["name"].get<std::string>();
    database["reports"] = reports;
    // A run of its own, and a file that is not taken for the one before.
    main.state = {};
    open(database, "orders" + std::to_string(++opened_) + ".access.json");
    clearBoxes();
    ConversionState& state = main.state;
    state.gappAccess.doCmd().OpenReport(name, access_constants::acViewDesign);
    state.mrptCurr = state.gappAccess.Reports(name);
    state.mblnReportMode = true;
    state.mstrBaseName = name;
  }
  void openReport(const Json& entry) { openReports({entry}); }

  LateBound controlNamed(std::string_view name) {
    return LateBound(toObject(main.state.mrptCurr.get("Controls", {Value(name)})));
  }

  // The lines of a procedure that takes the report from the conversion state.
  std::vector<std::string> linesOfReport(void (*procedure)(MainObject&)) {
    return output([&] { procedure(main); });
  }

  std::vector<std::string> boxTexts() const {
    std::vector<std::string> texts;
    for (const Box& box : user.boxes) texts.push_back(box.text);
    return texts;
  }

 private:
  int opened_ = 0;
};

}  // namespace tarrowin::test
