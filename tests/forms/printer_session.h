// A session with a form open in Design view, whose controls are printed one by one.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "forms/form_session.h"
#include "forms/printer_case.h"

namespace tarrowin::test {

// The heights of the sections in twips; their sums tell which of them were added.
inline constexpr std::int16_t kFormHeaderHeight = 1000, kPageHeaderHeight = 200,
                              kDetailHeight = 3000, kPageFooterHeight = 40, kFormFooterHeight = 5;

class PrinterSession : public FormSession {
 public:
  // Opens the form "Sales Form", 9000 twips wide, with these controls. Section n has the BackColor
  // 50100 + n.
  void openForm(const std::vector<Json>& controls, const Json& properties = Json::object(),
                Json database = emptyDatabase()) {
    Json entry = form("Sales Form", controls);
    entry["properties"].update(properties);
    entry["sections"] = Json::array();
    const std::int16_t heights[] = {kDetailHeight, kFormHeaderHeight, kFormFooterHeight,
                                    kPageHeaderHeight, kPageFooterHeight};
    for (int n = 0; n < 5; ++n)
      entry["sections"].push_back(section(n, {{"Height", heights[n]}, {"BackColor", 50100 + n}}));
    database["forms"].push_back(entry);
    open(database, "orders" + std::to_string(++opened_) + ".access.json");
    clearBoxes();
    main.state.gappAccess.doCmd().OpenForm("Sales Form", access_constants::acDesign);
    main.state.frmCurr = main.state.gappAccess.Forms("Sales Form");
    main.state.intHeaderHeight = kFormHeaderHeight;
    main.state.intPageHeaderHeight = kPageHeaderHeight;
    main.state.intDetailHeight = kDetailHeight;
    main.state.intPageFooterHeight = kPageFooterHeight;
    main.state.intFooterHeight = kFormFooterHeight;
    main.state.strCtlName = "My_Control";
  }

  LateBound controlNamed(std::string_view name) {
    return LateBound(toObject(main.state.frmCurr.get("Controls", {Value(name)})));
  }

  std::vector<std::string> print(Printer printer, std::string_view name) {
    return output([&] { printer(main, controlNamed(name)); });
  }

  // Opens a form with the one control and prints it.
  std::vector<std::string> printOnly(Printer printer, int type, const Json& properties) {
    openForm({control("ctl", type, properties)});
    return print(printer, "ctl");
  }

 private:
  int opened_ = 0;  // every form in a file of its own, so that none is taken for the one before
};

// The lines that start with a key, their indent not counted.
inline std::vector<std::string> linesWith(const std::vector<std::string>& lines,
                                          std::string_view key) {
  std::vector<std::string> found;
  std::copy_if(lines.begin(), lines.end(), std::back_inserter(found), [&](const std::string& line) {
    return line.compare(line.find_first_not_of(' '), key.size(), key) == 0;
  });
  return found;
}

}  // namespace tarrowin::test
