// The user of the one-shot commands: chooses the named source, answers every question with yes but
// the one whether to stop the program, and shows boxes on standard error.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/console.h"
#include "core/user.h"
#include "preview/preview_surface.h"
#include "shared/code_page.h"

namespace tarrowin {

class CommandUser : public User {
 public:
  CommandUser(Console& console, CodePage codePage)
      : console_(console), codePage_(std::move(codePage)) {}

  // What the next dialog answers, in the code page.
  void choosePath(std::string path) { path_ = std::move(path); }

  // Starts the count that the progress line shows: the kind ("queries") and how many are selected.
  void beginBatch(std::string_view words, std::size_t selected);
  void endBatch();

  // Texts of the boxes since beginBatch, in UTF-8 with plain line ends.
  const std::vector<std::string>& messages() const { return messages_; }
  // What was shown last; nothing before the first preview.
  const std::optional<PreviewSurface>& preview() const { return preview_; }
  // A box that tells of a failure was shown since beginBatch or the start.
  bool sawFailure() const { return sawFailure_; }

  Answer messageBox(int style, std::string_view text, std::string_view title) override;
  std::string openFile(const OpenDialog& dialog) override;
  void refresh(const MainWindow& window) override;
  void showPreview(const PreviewSurface& surface) override { preview_ = surface; }

 private:
  Console& console_;
  CodePage codePage_;
  std::string path_;
  std::string words_;
  std::size_t selected_ = 0;
  std::size_t reached_ = 0;
  std::vector<std::string> messages_;
  bool sawFailure_ = false;
  std::optional<PreviewSurface> preview_;
};

}  // namespace tarrowin
