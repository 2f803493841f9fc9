// Writing to the two streams by their descriptors.
#include "cli/console.h"

#include <cerrno>
#include <cstddef>

#include <unistd.h>

namespace tarrowin {

namespace {

constexpr std::size_t kGatherBytes = std::size_t{64} * 1024;
constexpr std::chrono::milliseconds kProgressInterval{100};
// Back to the first column, then erase to the end of the line.
constexpr std::string_view kEraseLine = "\r\x1b[K";

// Writes everything; 0 or the errno value of the write that failed.
int writeAll(int descriptor, std::string_view text) {
  while (!text.empty()) {
    const ssize_t written = ::write(descriptor, text.data(), text.size());
    if (written >= 0) {
      text.remove_prefix(static_cast<std::size_t>(written));
    } else if (errno != EINTR) {
      return errno;
    }
  }
  return 0;
}

}  // namespace

Console::Console(int output, int error, bool showsProgress)
    : output_(output), error_(error), showsProgress_(showsProgress) {}

void Console::print(std::string_view text) {
  gathered_ += text;
  if (gathered_.size() >= kGatherBytes) flush();
}

void Console::flush() {
  if (outputError_ == 0) outputError_ = writeAll(output_, gathered_);
  gathered_.clear();
}

void Console::message(std::string_view text) {
  endProgress();
  writeError(std::string(text) + '\n');
}

void Console::ownMessage(std::string_view text) {
  std::size_t start = 0;
  while (start <= text.size()) {
    const std::size_t end = text.find('\n', start);
    message("tarrowin-cli: " + std::string(text.substr(start, end - start)));
    if (end == std::string_view::npos) break;
    start = end + 1;
  }
}

void Console::progress(const std::function<std::string()>& text) {
  if (!showsProgress_) return;
  const auto now = std::chrono::steady_clock::now();
  if (now - lastProgress_ < kProgressInterval) return;
  lastProgress_ = now;
  progressVisible_ = true;
  writeError(std::string(kEraseLine) + text());
}

void Console::endProgress() {
  if (!progressVisible_) return;
  progressVisible_ = false;
  writeError(kEraseLine);
}

void Console::writeError(std::string_view text) {
  // Nobody is left to be told that standard error cannot be written.
  static_cast<void>(writeAll(error_, text));
}

}  // namespace tarrowin
