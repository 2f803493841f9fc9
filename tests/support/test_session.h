// A session of the main object for tests: a database written as a snapshot into a folder of its
// own, a user whose answers are queued and whose boxes are kept, a clock that stands still.
#pragma once

#include <deque>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <nlohmann/json.hpp>

#include "core/main_object.h"
#include "preview/preview_surface.h"
#include "shared/file_system.h"
#include "shared/temporary_directory.h"

namespace tarrowin::test {

using Json = nlohmann::ordered_json;

struct Box {
  int style;
  std::string text;
  std::string title;
  friend bool operator==(const Box&, const Box&) = default;
};

// Shows a box with its style in a failed expectation.
void PrintTo(const Box& box, std::ostream* out);

class RecordingUser : public User {
 public:
  Answer messageBox(int style, std::string_view text, std::string_view title) override;
  std::string openFile(const OpenDialog& dialog) override;
  std::optional<std::string> browseForFolder(std::string_view title) override {
    folderTitles.emplace_back(title);
    return chosenFolder;
  }
  void refresh(const MainWindow& window) override;
  void listsFilled(const MainWindow&) override { ++fillings; }
  void showPreview(const PreviewSurface& surface) override { previews.push_back(surface); }

  std::deque<Answer> answers;               // of Yes/No boxes; Yes when empty
  std::string chosenPath;                   // what the Open dialog answers
  std::optional<std::string> chosenFolder;  // what the dialog for folders answers
  std::vector<std::string> folderTitles;
  std::vector<Box> boxes;
  std::vector<OpenDialog> dialogs;
  std::vector<std::string> progressLabels;  // lblPct at each refresh
  std::vector<PreviewSurface> previews;
  int fillings = 0;
};

// A temporary directory whose path is put together with others.
class TemporaryFolder {
 public:
  const std::filesystem::path& path() const { return path_; }

 private:
  TemporaryDirectory directory_;
  std::filesystem::path path_ = directory_.path();
};

// The bytes of a file; throws when it cannot be read.
std::string fileContent(const std::filesystem::path& path);
void writeFile(const std::filesystem::path& path, std::string_view content);
// The names of the files in a folder, sorted.
std::vector<std::string> fileNames(const std::filesystem::path& folder);

// A snapshot of a database "C:\Data\Orders.mdb" of version 8.50 without objects.
Json emptyDatabase();
// An entry of "queries" in a snapshot.
Json query(std::string_view name, const Json& sql);

class TestSession {
 public:
  explicit TestSession(std::unique_ptr<FileSystem> fileSystem = nullptr);

  // Writes the database as a snapshot of that file name and opens it.
  void open(const Json& database, const std::string& fileName = "orders.access.json");
  // Opens a path as it stands.
  void openPath(const std::string& path);
  void select(ObjectList list, const std::vector<std::string>& names);
  // The only box since the last call of this or of clearBoxes; fails the test for any other count.
  Box onlyBox();
  void clearBoxes() { user.boxes.clear(); }

  std::string folder() const { return folder_.path().string(); }
  std::filesystem::path out() const { return folder_.path() / "out"; }

 private:
  TemporaryFolder folder_;
  std::unique_ptr<FileSystem> fileSystem_;

 public:
  RecordingUser user;
  FileSlots files;
  Date now{46000.5};
  MainObject main;
};

}  // namespace tarrowin::test
