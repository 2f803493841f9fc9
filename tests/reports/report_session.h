// Reports for tests: entries of a snapshot, and a session that writes the two files of one report
// and gives them back as lines.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "core/output_naming.h"
#include "forms/form_session.h"
#include "reports/data_environment.h"
#include "reports/data_report.h"

namespace tarrowin::test {

using Lines = std::vector<std::string>;

inline Json errorValue(std::int32_t number) {
  return {{"error", number}, {"description", "As recorded."}};
}

// The entries of more take the place of those of the same name, the others follow.
inline Json merged(Json properties, const Json& more) {
  for (const auto& [name, value] : more.items()) properties[name] = value;
  return properties;
}

// A section of 1000 twips that is visible, with every property that is read of it.
inline Json reportSection(int number, std::string_view name, const Json& more = Json::object()) {
  return section(number, merged({{"Name", name},
                                 {"Height", 1000},
                                 {"Visible", true},
                                 {"KeepTogether", false},
                                 {"ForceNewPage", 0}},
                                more));
}

inline Json groupLevel(const Json& source, const Json& header = true, const Json& footer = false) {
  return {{"ControlSource", source}, {"GroupHeader", header}, {"GroupFooter", footer}};
}

// Control types of Access.
inline constexpr int kLabelControl = 100, kRectangleControl = 101, kLineControl = 102,
                     kImageControl = 103, kTextBoxControl = 109;

// A control with every property that is read of it but ControlSource, Caption and Format.
inline Json item(std::string_view name, int type, int sectionNumber,
                 const Json& more = Json::object()) {
  return control(name, type,
                 merged({{"Section", sectionNumber},
                         {"Left", 60},
                         {"Top", 30},
                         {"Width", 2000},
                         {"Height", 240},
                         {"FontName", "Arial"},
                         {"FontSize", 8},
                         {"FontWeight", 400},
                         {"FontUnderline", false},
                         {"FontItalic", false},
                         {"TextAlign", 1}},
                        more));
}

inline Json textBox(std::string_view name, int sectionNumber, const Json& source,
                    const Json& more = Json::object()) {
  return item(name, kTextBoxControl, sectionNumber,
              merged({{"ControlSource", source}, {"Format", ""}}, more));
}

// What one report is made of; every list may be changed before it is written as an entry.
struct ReportParts {
  std::string name = "Sales";
  Json properties = {{"BorderStyle", 2},    {"Caption", "Sales"}, {"FontName", "Arial"},
                     {"FontSize", 8},       {"FontWeight", 400},  {"FontUnderline", false},
                     {"FontItalic", false}, {"GridX", 24},        {"GridY", 20},
                     {"RecordSource", ""},  {"Width", 9000}};
  std::vector<Json> sections = {reportSection(0, "Detail")};
  std::vector<Json> levels;
  std::vector<Json> controls;

  Json entry() const {
    return {{"name", name},          {"properties", properties}, {"sections", sections},
            {"groupLevels", levels}, {"controls", controls},     {"module", nullptr}};
  }
};

// A report whose visible sections have these numbers, each named "Section" and its number, with
// the first levels grouped on A, B, C and D.
inline ReportParts reportOfSections(const std::vector<int>& numbers, int levels = 0) {
  ReportParts parts;
  parts.sections.clear();
  for (const int number : numbers)
    parts.sections.push_back(reportSection(number, "Section" + std::to_string(number)));
  for (int i = 0; i < levels; ++i)
    parts.levels.push_back(groupLevel(std::string(1, static_cast<char>('A' + i))));
  return parts;
}

// The tables Orders, of fields OrderID, Freight and Ship Name, and Customers, of CustomerID.
inline Json orderTables() {
  return Json::parse(R"([
    {"name": "Orders", "fields": [{"name": "OrderID", "type": 4, "size": 4},
                                  {"name": "Freight", "type": 5, "size": 8},
                                  {"name": "Ship Name", "type": 10, "size": 40}]},
    {"name": "Customers", "fields": [{"name": "CustomerID", "type": 10, "size": 5}]}])");
}

class ReportSession : public TestSession {
 public:
  ReportSession() {
    database["tables"] = orderTables();
    state.mblnReportMode = true;
  }

  // Opens the database, with these reports in it, as a file of its own.
  void openReports(const std::vector<Json>& reports) {
    database["reports"] = reports;
    open(database, "orders" + std::to_string(++openings_) + ".access.json");
    state.mstrOutputDir = out().string() + "/";
    clearBoxes();
  }
  void openReport(const ReportParts& parts) {
    openReports({parts.entry()});
    take(parts.name);
  }
  // Makes an open report the one in hand.
  void take(const std::string& name) {
    state.gappAccess.doCmd().OpenReport(name, access_constants::acViewDesign);
    state.mrptCurr = state.gappAccess.Reports(name);
    name_ = name;
  }

  // Writes a file of the report in hand and gives its lines.
  Lines dataEnvironment() {
    SetupDesignerName(main, name_);
    bool result = false;
    GetDesignerReportProps(main, result);
    EXPECT_TRUE(result);
    EXPECT_FALSE(files.IsOpen(kOutputFile));
    return linesOf(fileContent(out() / ("de" + state.gstrFormFile)));
  }
  Lines dataReport() {
    SetupFormNames(main, name_);
    GetAccDataReportProps(main);
    files.Close(kOutputFile);
    return linesOf(fileContent(out() / state.gstrFormFile));
  }
  // Opens a database of the one report and writes that file of it.
  Lines dataEnvironmentOf(const ReportParts& parts) {
    openReport(parts);
    return dataEnvironment();
  }
  Lines dataReportOf(const ReportParts& parts) {
    openReport(parts);
    return dataReport();
  }

  Lines boxTexts() const {
    Lines texts;
    for (const Box& box : user.boxes) texts.push_back(box.text);
    return texts;
  }

  ConversionState& state = main.state;
  Json database = emptyDatabase();

 private:
  std::string name_;
  int openings_ = 0;
};

// The lines that begin so.
inline Lines starting(const Lines& lines, std::string_view start) {
  Lines found;
  for (const std::string& line : lines)
    if (line.starts_with(start)) found.push_back(line);
  return found;
}

inline bool contains(const Lines& lines, std::string_view line) {
  return std::find(lines.begin(), lines.end(), line) != lines.end();
}

// The lines from the first that is begin to the next one that is end, both among them.
inline Lines block(const Lines& lines, std::string_view begin, std::string_view end) {
  const auto first = std::find(lines.begin(), lines.end(), begin);
  const auto last = std::find(first, lines.end(), end);
  EXPECT_NE(last, lines.end()) << begin << " to " << end;
  return last == lines.end() ? Lines{} : Lines(first, last + 1);
}

// Names of the sections in file order.
inline Lines sectionNames(const Lines& lines) {
  constexpr std::string_view kStart = "      Name            = \"";
  Lines names = starting(lines, kStart);
  for (std::string& name : names)
    name = name.substr(kStart.size(), name.size() - kStart.size() - 1);
  return names;
}

}  // namespace tarrowin::test
