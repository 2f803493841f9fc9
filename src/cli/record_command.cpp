// Walking the open database and writing the document in one piece.
#include "cli/record_command.h"

#include <array>
#include <filesystem>
#include <string_view>
#include <system_error>

#include "access/recorder.h"
#include "access/snapshot/atomic_file.h"
#include "cli/console.h"
#include "cli/json_text.h"
#include "cli/open_source.h"
#include "cli/paths.h"

namespace tarrowin {

namespace {

// "2 tables, 1 query" of what the recording holds; kinds without objects are left out.
std::string counted(const Json& recording) {
  struct Kind {
    std::string_view key, one, many;
  };
  constexpr std::array<Kind, 6> kKinds = {{{"tables", "table", "tables"},
                                           {"queries", "query", "queries"},
                                           {"forms", "form", "forms"},
                                           {"reports", "report", "reports"},
                                           {"macros", "macro", "macros"},
                                           {"modules", "module", "modules"}}};
  std::string text;
  for (const Kind& kind : kKinds) {
    const auto list = recording.find(kind.key);
    if (list == recording.end() || !list->is_array() || list->empty()) continue;
    if (!text.empty()) text += ", ";
    text +=
        std::to_string(list->size()) + " " + std::string(list->size() == 1 ? kind.one : kind.many);
  }
  return text.empty() ? "no objects" : text;
}

// A recording replaces files only, and never the database that it records.
void refuseTarget(const std::string& path, const std::string& source, const std::string& shown) {
  namespace fs = std::filesystem;
  std::error_code error;
  if (fs::equivalent(path, source, error)) throw CommandFailure(shown + ": is the source itself");
  const fs::file_status status = fs::status(path, error);
  if (fs::is_directory(status)) throw CommandFailure(shown + ": is a directory");
  if (fs::exists(status) && !fs::is_regular_file(status)) {
    throw CommandFailure(shown + ": is no regular file");
  }
}

}  // namespace

ExitStatus recordSource(const Environment& environment, const RecordOptions& options) {
  if (options.file.empty()) throw CommandFailure("the name of the recording is empty");
  OpenedSource opened(environment, CodePage(CodePage::kUtf8), options.source);
  const std::string path = absolutePath(environment.workingDirectory, options.file);
  refuseTarget(path, opened.path(), options.file);
  Json recording;
  try {
    recording = recordSnapshot(opened.main().state.gappAccess.object());
  } catch (const VbError& failure) {
    throw CommandFailure(options.source + ": " + failure.description());
  }
  try {
    replaceFile(path, jsonText(recording, 1) + "\n");
  } catch (const AtomicWriteError& failure) {
    throw CommandFailure(failure.message());
  }
  environment.console.print("Recorded " + options.source + " in " + options.file + ": " +
                            counted(recording) + "\n");
  return ExitStatus::kDone;
}

}  // namespace tarrowin
