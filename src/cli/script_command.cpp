// Reading the script, and where its transcript goes.
#include "cli/script_command.h"

#include <cerrno>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>
#include <system_error>

#include "cli/console.h"
#include "cli/json_text.h"
#include "cli/paths.h"
#include "cli/script_session.h"

namespace tarrowin {

namespace {

[[noreturn]] void fail(const std::string& file, int error) {
  throw CommandFailure(file + ": " + std::generic_category().message(error));
}

std::string contentOf(const std::string& path, const std::string& shownPath) {
  if (std::error_code error; std::filesystem::is_directory(path, error)) fail(shownPath, EISDIR);
  errno = 0;
  std::ifstream file(path, std::ios::binary);
  std::ostringstream content;
  if (!file || (!(content << file.rdbuf()) && file.bad())) fail(shownPath, errno ? errno : EIO);
  return content.str();
}

// The transcript: each event is there as soon as it happened.
class TranscriptWriter {
 public:
  TranscriptWriter(const Environment& environment, const std::string& file)
      : console_(environment.console), shownPath_(file) {
    if (file.empty()) return;
    errno = 0;
    file_.emplace(absolutePath(environment.workingDirectory, file), std::ios::binary);
    if (!*file_) fail(file, errno ? errno : EIO);
  }

  void write(const Json& event) {
    const std::string line = jsonText(event) + "\n";
    if (file_) {
      *file_ << line << std::flush;
    } else {
      console_.print(line);
      console_.flush();
    }
  }

  // Throws CommandFailure when not everything could be written.
  void finish() {
    if (!file_) return;
    file_->close();
    if (!*file_) throw CommandFailure(shownPath_ + ": the transcript could not be written");
  }

 private:
  Console& console_;
  std::string shownPath_;
  std::optional<std::ofstream> file_;
};

std::vector<ScriptStep> readSteps(const std::string& path, const std::string& shownPath) {
  const std::string content = contentOf(path, shownPath);
  try {
    return readSessionScript(content);
  } catch (const CommandFailure& failure) {
    throw CommandFailure(shownPath + ": " + failure.what());
  }
}

}  // namespace

ExitStatus runScript(const Environment& environment, const ScriptOptions& options) {
  const CodePage codePage(options.codePage);
  const std::string path = lexicalPath(environment.workingDirectory, options.file);
  const std::vector<ScriptStep> steps = readSteps(path, options.file);
  const std::string folder = std::filesystem::path(path).parent_path().string();
  pathInCodePage(codePage, folder);
  TranscriptWriter transcript(environment, options.transcript);
  ScriptSession session(environment, codePage, folder,
                        [&](const Json& event) { transcript.write(event); });
  for (std::size_t i = 0; i < steps.size(); ++i) {
    try {
      session.run(steps[i]);
    } catch (const CommandFailure& failure) {
      throw CommandFailure(options.file + ": step " + std::to_string(i + 1) + ": " +
                           failure.what());
    }
  }
  session.files().CloseAll();
  transcript.finish();
  return ExitStatus::kDone;
}

}  // namespace tarrowin
