// The user of a session script: queued answers, and every event as a line of the transcript.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "cli/json_text.h"
#include "core/main_window.h"
#include "core/user.h"
#include "shared/code_page.h"

namespace tarrowin {

class ScriptUser : public User {
 public:
  using Transcript = std::function<void(const Json& event)>;
  // Makes a path that a dialog is answered absolute; both in UTF-8.
  using Resolve = std::function<std::string(const std::string& path)>;

  ScriptUser(CodePage codePage, Resolve resolve, Transcript transcript);

  // Answers for the boxes and dialogs that follow, behind those that still wait. UTF-8.
  void queueAnswers(const std::deque<std::string>& answers);
  // What the next dialog answers instead of the queue; empty cancels it. UTF-8.
  void choosePath(std::string path) { chosenPath_ = std::move(path); }
  void forgetChosenPath() { chosenPath_.reset(); }
  // As at the start of the program.
  void reset();

  // Something in the script had no effect; a "warning" event says so.
  void warn(const std::string& text);

  // The program was stopped, so that steps have no effect until a reset.
  bool ended() const { return ended_; }

  Answer messageBox(int style, std::string_view text, std::string_view title) override;
  std::string openFile(const OpenDialog& dialog) override;
  std::optional<std::string> browseForFolder(std::string_view title) override;
  void captionChanged(const MainWindow& window) override;
  void listsFilled(const MainWindow& window) override;
  void showPreview(const PreviewSurface& surface) override;
  void programEnded() override { ended_ = true; }

 private:
  Answer answerTo(int style, std::string_view text);

  CodePage codePage_;
  Resolve resolve_;
  Transcript transcript_;
  std::deque<std::string> answers_;
  std::optional<std::string> chosenPath_;
  bool ended_ = false;
  std::string caption_ = MainWindow{}.caption;
};

}  // namespace tarrowin
