// Paths from the machine, from a search and from the user.
#include "core/library_paths.h"

#include <array>
#include <string_view>

#include "core/folder_search.h"
#include "core/main_object.h"
#include "core/statement.h"
#include "shared/path_procedures.h"
#include "shared/vb_text.h"

namespace tarrowin {

namespace {

constexpr std::string_view kUsualSystemDirectory = "C:\\WINDOWS\\system32\\";
constexpr std::string_view kSearchedFolder = "C:\\Program Files\\Common Files\\";
constexpr int kDefaultPointer = 0;
constexpr int kHourglassPointer = 11;
// lblFindPath shows the paths behind the two headings.
constexpr std::size_t kFirstPathLabel = 2;

struct Library {
  std::string_view file;
  std::string_view fileInMessages;
  std::string_view usualDirectory;
  std::string ConversionState::*path;
  std::optional<std::string> MachinePaths::*supplied;
};
// clang-format off
constexpr std::array<Library, 2> kLibraries = {{
    {"msderun.dll", "MSDERUN.DLL", "C:\\Program Files\\Common Files\\Designer\\",
     &ConversionState::mstrMsderunPath, &MachinePaths::msderunPath},
    {"msado15.dll", "MSADO15.DLL", "C:\\Program Files\\Common Files\\SYSTEM\\ADO\\",
     &ConversionState::mstrMsadoPath, &MachinePaths::msadoPath},
}};
// clang-format on

const Library& library(int index) { return kLibraries.at(static_cast<std::size_t>(index)); }

std::string withFinalBackslash(std::string directory) {
  if (!directory.ends_with('\\') && !directory.ends_with('/')) directory += '\\';
  return directory;
}

// The library's directory from a text that names it or the file.
std::string directoryIn(const std::string& text, std::string_view file) {
  if (text.empty()) return text;
  if (LCase(FileNameOf(text)) == file) return DirectoryOf(text);
  return withFinalBackslash(text);
}

// An unknown path is shown as the directory where the dialog would start.
void takePath(MainObject& main, int index, const std::string& directory) {
  main.state.*library(index).path = directory;
  libraryPathLabel(main.window, index).caption =
      directory.empty() ? main.window.CmnOpenDlg.initDir : directory;
}

// Runs a procedure that its first failing statement ends with its box.
template <class Body>
void reported(MainObject& main, std::string_view procedure, Body&& body) {
  try {
    body();
  } catch (const VbError& error) {
    main.errorBox(procedure, error);
  }
}

}  // namespace

std::string GetWindowsSysDir(const MainObject& main) {
  return withFinalBackslash(main.machine.systemDir.value_or(std::string(kUsualSystemDirectory)));
}

Label& libraryPathLabel(MainWindow& window, int index) {
  return window.lblFindPath.at(kFirstPathLabel + static_cast<std::size_t>(index));
}

void FindDLLPath(MainObject& main, int index) {
  const Library& sought = library(index);
  const std::optional<std::string>& supplied = main.machine.*sought.supplied;
  takePath(main, index,
           supplied ? directoryIn(*supplied, sought.file) : std::string(sought.usualDirectory));
}

void FindDLLPaths(MainObject& main, int index) {
  const Library& sought = library(index);
  std::string& path = main.state.*sought.path;
  if (!path.empty()) return;
  reported(main, "FindDLLPath", [&] {
    main.window.mousePointer = kHourglassPointer;
    Label& label = libraryPathLabel(main.window, index);
    label.caption = "Locating path to " + std::string(sought.fileInMessages) + " file...";
    SearchFolder(main, std::string(kSearchedFolder), sought.file, path);
    label.caption = path;
    main.window.mousePointer = kDefaultPointer;
  });
}

void cmdFindPath_Click(MainObject& main, int index) {
  const Library& sought = library(index);
  reported(main, "CmdFindPath", [&] {
    OpenDialog& dialog = main.window.CmnOpenDlg;
    dialog.defaultExt = "*.dll";
    dialog.dialogTitle = "Locate System DLL Files";
    dialog.fileName = sought.file;
    dialog.filter = "System DLL Files (*.dll)|*.dll";
    dialog.initDir = sought.usualDirectory;
    const std::string chosen = main.user.openFile(dialog);
    // A cancelled dialog changes nothing and asks for nothing.
    if (chosen.empty()) return;
    if (FileNameOf(chosen) != sought.file) {
      main.messageBox(message_style::kInformation,
                      "Please select the " + std::string(sought.fileInMessages) + " file.");
      return;
    }
    if (chosen.find('*') == std::string::npos) takePath(main, index, DirectoryOf(chosen));
  });
}

}  // namespace tarrowin
