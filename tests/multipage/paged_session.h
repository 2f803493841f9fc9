// Forms with page breaks for tests: entries of a snapshot whose controls have few properties, all
// in the order that new controls have them, and a session that tells what its new forms hold.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "core/database_opening.h"
#include "forms/form_session.h"
#include "support/test_session.h"
#include "support/watched_access.h"

namespace tarrowin::test {

using Lines = std::vector<std::string>;

// The properties of every control of these tests but breaks and frames, in their order. Extra ones
// follow.
inline Json placed(std::string_view name, int type, int top, int section = 0,
                   const Json& extra = Json::object()) {
  Json properties{{"EventProcPrefix", name},
                  {"Name", name},
                  {"ControlType", type},
                  {"Caption", ""},
                  {"Left", 100},
                  {"Top", top},
                  {"Width", 2000},
                  {"Height", 250},
                  {"Section", section},
                  {"Tag", ""}};
  properties.update(extra);
  return properties;
}

inline Json box(std::string_view name, int top, int section = 0,
                const Json& extra = Json::object()) {
  return control(name, 109, placed(name, 109, top, section, extra));
}
inline Json label(std::string_view name, int top, int section = 0) {
  return control(name, 100, placed(name, 100, top, section));
}
inline Json pageBreak(int top, int section = 0) {
  return control("brk", 118, {{"Left", 0}, {"Top", top}, {"Section", section}});
}

inline Json sectionOf(int number, int height) {
  return section(number, {{"Name", "Section" + std::to_string(number)},
                          {"Height", height},
                          {"BackColor", 12632256},
                          {"SpecialEffect", 0}});
}

// "Paged", with a header, a footer and these controls.
inline Json pagedForm(const std::vector<Json>& controls) {
  Json entry = form("Paged", controls);
  entry["sections"] = {sectionOf(1, 500), sectionOf(0, 5000), sectionOf(2, 400)};
  return entry;
}

class PagedSession : public TestSession {
 public:
  // A database of these forms; a new control of the types 100, 101, 104 and 109 has the properties
  // of placed() with these behind.
  static Json databaseOf(const std::vector<Json>& forms, const Json& extra = Json::object()) {
    Json database = emptyDatabase();
    database["forms"] = forms;
    for (const int type : {100, 101, 104, 109}) {
      Json properties = placed("New0", type, 0, 0, extra);
      properties["Left"] = 0;
      database["templates"]["controls"][std::to_string(type)] = properties;
    }
    return database;
  }
  void openForms(const std::vector<Json>& forms) { openDatabase(databaseOf(forms)); }
  void openPaged(const std::vector<Json>& controls) { openForms({pagedForm(controls)}); }
  void openDatabase(const Json& database) {
    open(database);
    clearBoxes();
  }
  // As a user has to: the file that is open is not opened again.
  void reopen() {
    open(emptyDatabase(), "other.access.json");
    clearBoxes();
    openPath(folder() + "/orders.access.json");
    for (const Box& each : user.boxes) ADD_FAILURE() << each.text;
    main.window.txtCurDir = out().string();
  }

  // A saved form, open as it is stored.
  LateBound formOf(std::string_view name) {
    const Application& application = main.state.gappAccess;
    application.doCmd().OpenForm(name, access_constants::acDesign);
    return application.Forms(name);
  }
  LateBound controlOf(std::string_view form, std::string_view name) {
    return Collection<LateBound>(toObject(formOf(form).get("Controls")))(name);
  }
  // Each control of a saved form as "name top", with " in parent" when it is not on the form itself
  // and " section n" when that is not the Detail.
  Lines controlsOf(std::string_view form) {
    Lines found;
    const Collection<LateBound> controls(toObject(formOf(form).get("Controls")));
    for (std::int32_t i = 0; i < controls.Count(); ++i) {
      const LateBound item = controls(i);
      std::string line = item.text("Name") + " " + std::to_string(item.number("Top"));
      const std::string parent = LateBound(toObject(item.get("Parent"))).text("Name");
      if (parent != form) line += " in " + parent;
      if (item.number("Section") != 0) line += " section " + item.text("Section");
      found.push_back(line);
    }
    return found;
  }
  std::int32_t heightOf(std::string_view form, std::int32_t section) {
    return LateBound(toObject(formOf(form).get("Section", {Value(section)}))).number("Height");
  }
  // What the file now holds.
  Json stored() const { return Json::parse(fileContent(folder() + "/orders.access.json")); }
  Lines storedForms() const {
    Lines names;
    const Json database = stored();
    for (const Json& entry : database["forms"]) names.push_back(entry["name"]);
    return names;
  }
};

// What a form of one page break holds in its tests of copying: a box on each page.
inline std::vector<Json> twoPages() {
  return {box("txtA", 100), pageBreak(1000), box("txtB", 1200)};
}

}  // namespace tarrowin::test
