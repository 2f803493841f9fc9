// The database, and its output directory.
#include "shell/opened_session.h"

#include <QLineEdit>
#include <filesystem>

namespace tarrowin::test {

namespace {

constexpr const char* kSmallDatabase = R"({
  "snapshot": 1,
  "database": {"name": "small.mdb", "version": "4.0", "properties": {"AccessVersion": "08.50"}},
  "queries": [{"name": "Q One", "sql": "SELECT 1;\r\n"}, {"name": "Q Two", "sql": "SELECT 2;\r\n"}],
  "forms": [
    {"name": "F One", "properties": {"Caption": "One", "Width": 3000, "RecordSource": ""},
     "sections": [{"number": 0, "properties": {"Name": "Detail", "Height": 1000}}], "controls": []},
    {"name": "F Two", "properties": {"Caption": "Two", "Width": 3000, "RecordSource": ""},
     "sections": [{"number": 0, "properties": {"Name": "Detail", "Height": 1000}}], "controls": []}],
  "reports": [
    {"name": "R One", "properties": {"Caption": "One", "Width": 3000, "RecordSource": ""},
     "sections": [{"number": 0, "properties": {"Name": "Detail", "Height": 1000}}],
     "controls": [], "groupLevels": []},
    {"name": "R Two", "properties": {"Caption": "Two", "Width": 3000, "RecordSource": ""},
     "sections": [{"number": 0, "properties": {"Name": "Detail", "Height": 1000}}],
     "controls": [], "groupLevels": []}],
  "macros": [{"name": "M One", "actions": []}, {"name": "M Two", "actions": []}],
  "modules": [{"name": "B One", "type": 0, "text": "Sub One()\r\nEnd Sub\r\n"},
              {"name": "B Two", "type": 0, "text": "Sub Two()\r\nEnd Sub\r\n"}]
})";

}  // namespace

OpenedSession::OpenedSession() {
  openWith(database("small.access.json", kSmallDatabase));
  std::filesystem::create_directory(path("out").toStdString());
  find<QLineEdit>("txtCurDir")->setText(path("out"));
  dialogs().forget();
}

QStringList OpenedSession::written() {
  QStringList names;
  for (const auto& entry : std::filesystem::directory_iterator(path("out").toStdString()))
    names.append(QString::fromStdString(entry.path().filename().string()));
  names.sort();
  return names;
}

}  // namespace tarrowin::test
