// The user as the main object meets them: message boxes, dialogs, and the moments at which the
// window is to be painted. The window, the command line, the session script and the tests each
// implement it.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarrowin {

struct MainWindow;
struct PreviewSurface;  // preview/preview_surface.h

// The title of message boxes.
inline constexpr std::string_view kProgramTitle = "Access to Visual Basic Tarrowin";

// Styles of message boxes, Visual Basic's numbers: buttons plus icon plus default button.
namespace message_style {
inline constexpr int kCritical = 16;
inline constexpr int kYesNoCritical = 20;
inline constexpr int kYesNoQuestion = 36;
inline constexpr int kInformation = 64;
inline constexpr int kYesNoQuestionDefaultNo = 292;
// The low four bits are the buttons: 4 is Yes and No. Bit 256 makes the second one the default.
inline constexpr bool asksYesNo(int style) { return (style & 15) == 4; }
inline constexpr bool defaultIsNo(int style) { return (style & 256) != 0; }
}  // namespace message_style

enum class Answer { kOk, kYes, kNo };

// The common dialog for opening a file, with the properties that the program sets.
struct OpenDialog {
  std::string dialogTitle;
  std::string filter;
  std::string initDir;
  std::string fileName;
  std::string defaultExt;
};

// A balloon of the online help: a heading, a text, and up to five labels, which are links or
// paragraphs.
struct Balloon {
  std::string heading;
  std::string text;
  std::vector<std::string> labels;
};

class User {
 public:
  virtual ~User() = default;

  // Shows a message box and waits for its answer.
  virtual Answer messageBox(int style, std::string_view text, std::string_view title) = 0;
  // Shows the dialog; the chosen path, empty when cancelled.
  virtual std::string openFile(const OpenDialog& dialog) = 0;
  // Shows the dialog for a folder; the chosen path, nothing when cancelled.
  virtual std::optional<std::string> browseForFolder(std::string_view title) {
    static_cast<void>(title);
    return std::nullopt;
  }
  // Shows the balloon and waits; the number of the chosen label, from 1, or 0 when it was closed
  // without one. Nothing where no balloon can be shown.
  virtual std::optional<int> showBalloon(const Balloon& balloon) {
    static_cast<void>(balloon);
    return std::nullopt;
  }
  // Shows the preview of a form; it stays until the user closes it, or until the next one.
  virtual void showPreview(const PreviewSurface& surface) { static_cast<void>(surface); }

  // The main window is to be painted as it now is; once per selected object of a batch.
  virtual void refresh(const MainWindow& window) { static_cast<void>(window); }
  // The caption of the main window changed.
  virtual void captionChanged(const MainWindow& window) { static_cast<void>(window); }
  // The six lists were filled anew.
  virtual void listsFilled(const MainWindow& window) { static_cast<void>(window); }
  // The user chose to stop the program inside a batch: nothing more may reach the main object.
  virtual void programEnded() {}
};

}  // namespace tarrowin
