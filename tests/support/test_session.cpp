// The session's folder, user and database.
#include "support/test_session.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <ostream>
#include <stdexcept>

#include <gtest/gtest.h>

#include "access/access_host.h"
#include "core/database_opening.h"

namespace tarrowin::test {

void PrintTo(const Box& box, std::ostream* out) { *out << box.style << " \"" << box.text << '"'; }

Answer RecordingUser::messageBox(int style, std::string_view text, std::string_view title) {
  boxes.push_back({style, std::string(text), std::string(title)});
  if (!message_style::asksYesNo(style)) return Answer::kOk;
  if (answers.empty()) return Answer::kYes;
  const Answer answer = answers.front();
  answers.pop_front();
  return answer;
}

std::string RecordingUser::openFile(const OpenDialog& dialog) {
  dialogs.push_back(dialog);
  return chosenPath;
}

void RecordingUser::refresh(const MainWindow& window) {
  progressLabels.push_back(window.lblPct.caption);
}

std::string fileContent(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error("cannot read " + path.string());
  return {std::istreambuf_iterator<char>(file), {}};
}

void writeFile(const std::filesystem::path& path, std::string_view content) {
  std::ofstream file(path, std::ios::binary);
  file << content;
  if (!file.flush()) throw std::runtime_error("cannot write " + path.string());
}

std::vector<std::string> fileNames(const std::filesystem::path& folder) {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

Json emptyDatabase() {
  return Json::parse(R"({
    "snapshot": 1,
    "database": {"name": "C:\\Data\\Orders.mdb", "version": "4.0",
                 "properties": {"AccessVersion": "08.50"}},
    "queries": [], "forms": [], "reports": [], "macros": [], "modules": []})");
}

Json query(std::string_view name, const Json& sql) { return {{"name", name}, {"sql", sql}}; }

TestSession::TestSession(std::unique_ptr<FileSystem> fileSystem)
    : fileSystem_(fileSystem ? std::move(fileSystem) : std::make_unique<PosixFileSystem>()),
      files(*fileSystem_, CodePage(), folder()),
      main(user, files, AccessHost(createAccessHost()), [this] { return now; }) {
  std::filesystem::create_directory(out());
}

void TestSession::open(const Json& database, const std::string& fileName) {
  writeFile(folder_.path() / fileName, database.dump());
  openPath((folder_.path() / fileName).string());
  main.window.txtCurDir = out().string();
}

void TestSession::openPath(const std::string& path) {
  user.chosenPath = path;
  cmdOpen_Click(main);
}

void TestSession::select(ObjectList list, const std::vector<std::string>& names) {
  for (ListItem& item : main.window.list(list)) {
    item.selected = std::find(names.begin(), names.end(), item.text) != names.end();
  }
}

Box TestSession::onlyBox() {
  EXPECT_EQ(user.boxes.size(), 1u);
  const Box box = user.boxes.empty() ? Box{} : user.boxes.back();
  user.boxes.clear();
  return box;
}

}  // namespace tarrowin::test
