// The output directory: its test, the question whether to create it, the error table.
#include "core/output_directory.h"

#include "core/main_object.h"
#include "core/statement.h"
#include "shared/path_procedures.h"

namespace tarrowin {

namespace {

// The same text whatever the object type.
constexpr std::string_view kSpecifyDirectory =
    "Please specify an output directory for converted Forms.";
// GetAttr: the bit of a directory.
constexpr int kDirectoryBit = 16;

Resume onError(MainObject& main, const VbError& error) {
  switch (error.number()) {
    case kErrInvalidCall:
    case kErrFileNotFound:
      return Resume::kNext;
    case kErrDiskNotReady:
      if (main.messageBox(message_style::kYesNoQuestion, "Disk drive not ready.  Retry?") ==
          Answer::kYes) {
        return Resume::kRetry;
      }
      main.window.focus = "txtCurDir";
      return Resume::kLeave;
    default:
      main.errorBox("GetOutputDir", error);
      return Resume::kLeave;
  }
}

}  // namespace

bool GetOutputDir(MainObject& main) {
  bool blnOk = false;
  std::string& directory = main.state.mstrOutputDir;
  Procedure procedure([&](const VbError& error) { return onError(main, error); });
  const bool ended = procedure.run([&] {
    if (main.window.txtCurDir.empty()) {
      main.messageBox(message_style::kInformation, kSpecifyDirectory);
      procedure.statement([&] { main.window.txtCurDir = main.files.CurDir(); });
      return;
    }
    directory = main.window.txtCurDir;
    // Attributes that cannot be read leave the question to be asked.
    bool isDirectory = false;
    procedure.statement(
        [&] { isDirectory = (main.files.GetAttr(directory) & kDirectoryBit) != 0; });
    if (!isDirectory) {
      const Answer answer =
          main.messageBox(message_style::kYesNoQuestion,
                          "Directory " + directory + " does not exist.  Do you want to create it?");
      if (answer != Answer::kYes) {
        main.messageBox(message_style::kInformation, kSpecifyDirectory);
        main.window.focus = "txtCurDir";
        return;
      }
      procedure.statement([&] { main.files.MkDir(directory); });
    }
    if (directory.back() != kPathSeparator) directory += kPathSeparator;
    blnOk = true;
  });
  return ended && blnOk;
}

}  // namespace tarrowin
