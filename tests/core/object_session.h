// A session whose list of forms and modules is converted, for the tests of its driver.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "core/object_batch.h"
#include "forms/form_session.h"
#include "support/watched_access.h"

namespace tarrowin::test {

using Lines = std::vector<std::string>;

inline Json module(std::string_view name, std::string_view text = "x = 1\r\n", int type = 0) {
  return {{"name", name}, {"type", type}, {"text", text}};
}
inline Json refused(Json entry, const Json& error = 2601) {
  entry["openError"] = error;
  return entry;
}
inline bool contains(const Lines& lines, std::string_view line) {
  return std::find(lines.begin(), lines.end(), line) != lines.end();
}

class ObjectSession : public testing::Test {
 protected:
  void open(const std::vector<Json>& forms, const std::vector<Json>& modules) {
    Json database = emptyDatabase();
    database["forms"] = forms;
    database["modules"] = modules;
    session.openDatabase(database);
  }
  void convert(const std::vector<std::string>& names) {
    session.select(ObjectList::kObjects, names);
    ConvertObjects(main, false);
  }
  // Selects by position, since a form and a module may have one name.
  void convertAt(const std::vector<std::size_t>& positions) {
    std::vector<ListItem>& list = main.window.list(ObjectList::kObjects);
    for (std::size_t i = 0; i < list.size(); ++i)
      list[i].selected = std::find(positions.begin(), positions.end(), i) != positions.end();
    ConvertObjects(main, false);
  }
  // What the closing box says behind its first sentence.
  std::string tail(std::string_view project, std::string_view note = "") const {
    return "\r\n\r\nA Visual Basic Project file: " + std::string(project) +
           " is saved in directory: " + session.out().string() + "/\r\n\r\n" + std::string(note) +
           "Conversion completed in: 00:00 seconds.";
  }
  std::string summary() {
    EXPECT_FALSE(session.user.boxes.empty());
    return session.user.boxes.empty() ? "" : session.user.boxes.back().text;
  }
  Lines files() const { return fileNames(session.out()); }
  ProgressBar& bar() { return main.window.ProgressBar1[indexOf(ObjectList::kObjects)]; }

  FormSession session;
  MainObject& main = session.main;
  ConversionState& state = session.main.state;
};

}  // namespace tarrowin::test
