// Forms for tests: entries of a snapshot, and a session that converts one form and gives its lines.
#pragma once

#include <functional>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/form_batch.h"
#include "support/test_session.h"

namespace tarrowin::test {

inline Json control(std::string_view name, int type, const Json& properties = Json::object(),
                    std::string_view parent = "") {
  Json entry{{"name", name}, {"type", type}};
  if (!parent.empty()) entry["parent"] = parent;
  entry["properties"] = properties;
  return entry;
}

// Where a control stands: twips and the number of its section.
inline Json at(const Json& left, const Json& top, int section = 0) {
  return {{"Left", left}, {"Top", top}, {"Section", section}};
}

inline Json section(int number, const Json& properties) {
  return {{"number", number}, {"properties", properties}};
}

// The controls go as a vector since a list of one JSON value in braces is that value.
// A form with a Detail section of 3000 twips, all that the header reads, and these controls.
inline Json form(std::string_view name, const std::vector<Json>& controls = {}) {
  return {
      {"name", name},
      {"properties",
       {{"DefaultView", 0},
        {"RecordSource", ""},
        {"Caption", "A form"},
        {"Width", 9000},
        {"BorderStyle", 2},
        {"HelpContextID", 7},
        {"KeyPreview", false},
        {"MinMaxButtons", 3},
        {"Tag", ""}}},
      {"sections", {section(0, {{"Height", 3000}, {"BackColor", 12632256}, {"SpecialEffect", 0}})}},
      {"controls", controls}};
}

inline std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::size_t start = 0;
  for (std::size_t end; (end = text.find("\r\n", start)) != std::string::npos; start = end + 2)
    lines.push_back(text.substr(start, end - start));
  if (start < text.size()) lines.push_back(text.substr(start) + " (no line end)");
  return lines;
}

class FormSession : public TestSession {
 public:
  FormSession() { std::filesystem::create_directory(out()); }

  // Opens a database of these forms with the output directory "out".
  void openForms(const std::vector<Json>& forms) {
    Json database = emptyDatabase();
    database["forms"] = forms;
    openDatabase(database);
  }
  void openDatabase(const Json& database) {
    open(database);
    clearBoxes();
    main.window.txtCurDir = out().string();
  }

  // Converts the forms of these names in one batch.
  void convert(const std::vector<std::string>& names) {
    select(ObjectList::kForms, names);
    ConvertForms(main, false);
  }

  // Opens a database of the one form, converts it, and gives the lines of its file.
  std::vector<std::string> convertOne(const Json& entry) {
    openForms({entry});
    convert({entry["name"].get<std::string>()});
    return lines(main.state.gstrFormFile);
  }

  std::vector<std::string> lines(const std::string& fileName) {
    return linesOf(fileContent(out() / fileName));
  }

  // The lines that something prints into a new output file.
  std::vector<std::string> output(const std::function<void()>& print) {
    const std::string path = (out() / "printed.frm").string();
    files.Open(path, FileMode::kOutput, kOutputFile);
    print();
    files.Close(kOutputFile);
    return linesOf(fileContent(path));
  }
};

}  // namespace tarrowin::test
