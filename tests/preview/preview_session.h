// Previews for tests: forms whose controls have what is copied, and a session that gives the
// surface of one.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "forms/form_session.h"
#include "preview/preview_form.h"
#include "preview/preview_surface.h"
#include "support/test_session.h"
#include "support/watched_access.h"

namespace tarrowin::test {

// A control at a place of a section, with its name, and extra properties behind.
inline Json placed(std::string_view name, int type, int left, int top, int sectionNumber = 0,
                   const Json& extra = Json::object(), std::string_view parent = "") {
  Json properties = at(left, top, sectionNumber);
  properties.update(Json{{"Width", 1000}, {"Height", 300}, {"Visible", true}});
  if (!extra.is_null()) properties.update(extra);
  return control(name, type, properties, parent);
}

// One form of these properties beside those of form(); its sections as pairs of number and height.
inline Json formOf(const std::vector<Json>& controls, const Json& properties = Json::object(),
                   const std::vector<std::pair<int, int>>& sections = {{0, 3000}}) {
  Json entry = form("frmMain", controls);
  if (!properties.is_null()) entry["properties"].update(properties);
  entry["sections"] = Json::array();
  for (const auto& [number, height] : sections)
    entry["sections"].push_back(section(number, {{"Height", height}}));
  return entry;
}

// All written properties as "Name value" lines, texts in quotes.
inline std::vector<std::string> linesOf(const PreviewProperties& object) {
  std::vector<std::string> lines;
  for (const auto& [name, value] : object.properties)
    lines.push_back(name + " " + (value.text() ? '"' + *value.text() + '"' : toText(value)));
  return lines;
}

class PreviewSession : public TestSession {
 public:
  void openForms(const std::vector<Json>& forms, const Json& tables = Json::array()) {
    Json database = emptyDatabase();
    database["forms"] = forms;
    database["tables"] = tables;
    openDatabase(database);
  }
  // As a file of its own, since one that is open is not opened again.
  void openDatabase(const Json& database) {
    file = "preview" + std::to_string(++files_) + ".access.json";
    open(database, file);
    clearBoxes();
  }
  std::string file;

  // What a click on the button shows of the form frmMain, which must come without a box.
  const PreviewSurface& preview() {
    select(ObjectList::kForms, {"frmMain"});
    user.previews.clear();
    cmdObjProps_Click(main);
    for (const Box& box : user.boxes) ADD_FAILURE() << box.text;
    EXPECT_EQ(user.previews.size(), 1u);
    if (user.previews.empty()) user.previews.emplace_back();
    return user.previews.back();
  }
  const PreviewSurface& previewOf(const Json& form, const Json& tables = Json::array()) {
    openForms({form}, tables);
    return preview();
  }
  // The one box of a preview that shows nothing.
  Box refusal() {
    user.previews.clear();
    PreviewForm(main, "frmMain");
    EXPECT_TRUE(user.previews.empty());
    return onlyBox();
  }
  Box refusalOf(const Json& form) {
    openForms({form});
    return refusal();
  }

 private:
  int files_ = 0;
};

// The control of that name on the form; fails the test without one.
inline const PreviewControl& named(const PreviewSurface& surface, std::string_view name) {
  for (const PreviewControl& control : surface.controls)
    if (control.name == name) return control;
  ADD_FAILURE() << "no control " << name;
  static const PreviewControl none;
  return none;
}

inline std::vector<std::string> namesOf(const PreviewSurface& surface) {
  std::vector<std::string> names;
  for (const PreviewControl& control : surface.controls) names.push_back(control.name);
  return names;
}

// The value as text, "(unwritten)" without one.
inline std::string valueOf(const PreviewProperties& object, std::string_view property) {
  const Value* value = object.find(property);
  return value ? toText(*value) : "(unwritten)";
}

// The names of the controls that show.
inline std::vector<std::string> visibleOf(const PreviewSurface& surface) {
  std::vector<std::string> names;
  for (const PreviewControl& control : surface.controls)
    if (valueOf(control, "Visible") == "True") names.push_back(control.name);
  return names;
}

using Lines = std::vector<std::string>;

}  // namespace tarrowin::test
