// Standard output and standard error as the commands use them: buffered results, messages at once,
// and one line of progress that is rewritten in place.
#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <string_view>

namespace tarrowin {

// Texts are UTF-8. A failed write is remembered, never raised: what a command does for the user
// must not end because nobody reads what it says.
class Console {
 public:
  // The file descriptors of the two streams. Progress is shown only when showsProgress is true,
  // which is for a standard error that is a terminal.
  Console(int output, int error, bool showsProgress);
  ~Console() { flush(); }
  Console(const Console&) = delete;
  Console& operator=(const Console&) = delete;

  // Standard output, written when enough has gathered and by flush.
  void print(std::string_view text);
  void flush();
  // errno of the first failed write to standard output; 0 when there was none.
  int outputError() const { return outputError_; }

  // Standard error: the text and a line end, without waiting.
  void message(std::string_view text);
  // A message of the program itself, each line behind the program's name.
  void ownMessage(std::string_view text);

  // Replaces the progress line, at most ten times a second; the text is asked for only when it is
  // shown. The line goes away with the next message or endProgress.
  void progress(const std::function<std::string()>& text);
  void endProgress();

 private:
  void writeError(std::string_view text);

  int output_;
  int error_;
  bool showsProgress_;
  bool progressVisible_ = false;
  std::chrono::steady_clock::time_point lastProgress_{};
  std::string gathered_;
  int outputError_ = 0;
};

}  // namespace tarrowin
