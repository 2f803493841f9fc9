// Checking the selection, making the directory, and one batch a kind.
#include "cli/convert_command.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <filesystem>
#include <set>
#include <span>
#include <system_error>

#include <unistd.h>

#include "cli/console.h"
#include "cli/json_text.h"
#include "cli/object_kinds.h"
#include "cli/open_source.h"
#include "cli/paths.h"
#include "core/window_events.h"

namespace tarrowin {

namespace {

// With more queries selected the estimate of the time they take, 11.618 seconds each, leaves the
// range of a 16-bit number, and the batch ends with an overflow. A longer list is worked off in
// parts.
constexpr std::size_t kMostQueriesAtOnce = 2820;

MachinePaths inCodePage(const CodePage& codePage, MachinePaths machine) {
  for (std::optional<std::string>* path :
       {&machine.systemDir, &machine.msderunPath, &machine.msadoPath}) {
    if (*path) *path = pathInCodePage(codePage, **path);
  }
  return machine;
}

class Conversion {
 public:
  Conversion(const Environment& environment, const ConvertOptions& options)
      : environment_(environment),
        options_(options),
        codePage_(options.codePage),
        directory_(absolutePath(environment.workingDirectory, options.directory)),
        directoryInPage_(pathInCodePage(codePage_, directory_)),
        opened_(environment, codePage_, options.source, inCodePage(codePage_, options.machine)) {}

  ExitStatus run() {
    checkNames();
    makeDirectory();
    MainWindow& window = opened_.main().window;
    window.txtCurDir = directoryInPage_;
    window.chkMultiSel = options_.singleFile ? 1 : 0;
    window.optContinuous = options_.dataRepeater ? 1 : 0;
    window.optMultiPage = options_.singleForms ? 1 : 0;
    if (options_.startupForm) window.cboFormNames = codePage_.fromUtf8(*options_.startupForm);
    for (const ObjectKind& kind : kObjectKinds) {
      if (isWanted(kind)) convert(kind);
    }
    if (batches_.empty()) environment_.console.ownMessage(options_.source + ": nothing to convert");
    closeFiles();
    if (options_.json) printForProgram();
    return status_;
  }

 private:
  const KindSelection& selection(const ObjectKind& kind) const {
    return options_.kinds[indexOf(kind.list)];
  }
  std::vector<ListItem>& list(const ObjectKind& kind) {
    return opened_.main().window.list(kind.list);
  }
  // As in the window, where the buttons of an empty list are disabled, "all" passes it over.
  bool isWanted(const ObjectKind& kind) {
    return selection(kind).wanted || (options_.all && !list(kind).empty());
  }

  void checkNames();
  void makeDirectory() const;
  // Indices in the list of what is to be converted.
  std::vector<std::size_t> wantedItems(const ObjectKind& kind);
  void clickFor(const ObjectKind& kind, std::span<const std::size_t> wanted);
  BatchOutcome convertInParts(const ObjectKind& kind, std::span<const std::size_t> wanted);
  void convert(const ObjectKind& kind);
  void closeFiles();
  void printForProgram() const;

  const Environment& environment_;
  const ConvertOptions& options_;
  CodePage codePage_;
  std::string directory_;
  std::string directoryInPage_;
  OpenedSource opened_;
  Json batches_ = Json::array();
  ExitStatus status_ = ExitStatus::kDone;
};

void Conversion::checkNames() {
  std::string missing;
  for (const ObjectKind& kind : kObjectKinds) {
    std::set<std::string> present;
    for (const ListItem& item : list(kind)) present.insert(item.text);
    std::vector<std::string> names = selection(kind).names;
    if (kind.list == ObjectList::kForms && options_.startupForm) {
      names.push_back(*options_.startupForm);
    }
    for (const std::string& name : names) {
      if (present.contains(codePage_.fromUtf8(name))) continue;
      if (!missing.empty()) missing += '\n';
      missing +=
          options_.source + ": there is no " + std::string(kind.one) + " named \"" + name + "\"";
    }
  }
  if (!missing.empty()) throw CommandFailure(missing);
}

void Conversion::makeDirectory() const {
  std::error_code error;
  std::filesystem::create_directories(directory_, error);
  if (!error && !std::filesystem::is_directory(directory_, error) && !error) {
    error = std::make_error_code(std::errc::not_a_directory);
  }
  if (!error && ::access(directory_.c_str(), W_OK | X_OK) != 0) {
    error = std::error_code(errno, std::generic_category());
  }
  if (error) throw CommandFailure(options_.directory + ": " + error.message());
}

std::vector<std::size_t> Conversion::wantedItems(const ObjectKind& kind) {
  std::set<std::string> wanted;
  for (const std::string& name : selection(kind).names) wanted.insert(codePage_.fromUtf8(name));
  const std::vector<ListItem>& items = list(kind);
  std::vector<std::size_t> found;
  for (std::size_t i = 0; i < items.size(); ++i) {
    if (wanted.empty() || wanted.contains(items[i].text)) found.push_back(i);
  }
  return found;
}

void Conversion::clickFor(const ObjectKind& kind, std::span<const std::size_t> wanted) {
  std::vector<ListItem>& items = list(kind);
  if (wanted.size() == items.size()) {
    clickButton(opened_.main(), kind.allButton);
    return;
  }
  for (ListItem& item : items) item.selected = false;
  for (const std::size_t i : wanted) items[i].selected = true;
  clickButton(opened_.main(), kind.convertButton);
}

BatchOutcome Conversion::convertInParts(const ObjectKind& kind,
                                        std::span<const std::size_t> wanted) {
  const bool divisible = kind.list == ObjectList::kQueries && !options_.singleFile;
  const std::size_t partSize = divisible ? kMostQueriesAtOnce : wanted.size();
  BatchOutcome sum{static_cast<int>(wanted.size()), 0};
  do {
    const std::span<const std::size_t> part = wanted.first(std::min(partSize, wanted.size()));
    wanted = wanted.subspan(part.size());
    clickFor(kind, part);
    sum.converted += opened_.main().lastBatch.converted;
  } while (!wanted.empty() && !opened_.user().sawFailure());
  return sum;
}

void Conversion::convert(const ObjectKind& kind) {
  const std::vector<std::size_t> wanted = wantedItems(kind);
  CommandUser& user = opened_.user();
  user.beginBatch(kind.many, wanted.size());
  const BatchOutcome outcome = convertInParts(kind, wanted);
  user.endBatch();

  const bool complete = outcome.converted == outcome.selected && !user.sawFailure();
  if (!complete) {
    status_ = ExitStatus::kNotConverted;
    const std::string counts = std::to_string(outcome.converted) + " of " +
                               std::to_string(outcome.selected) + " " + std::string(kind.many) +
                               " converted";
    environment_.console.ownMessage(options_.source + ": " + counts +
                                    (user.sawFailure() ? ", with the failure told above" : ""));
  }
  batches_.push_back({{"kind", kind.option},
                      {"selected", outcome.selected},
                      {"converted", outcome.converted},
                      {"messages", user.messages()}});
}

// A batch ended by an error leaves its file open; what it still holds is written here or lost
// aloud.
void Conversion::closeFiles() {
  try {
    opened_.files().CloseAll();
  } catch (const VbError& error) {
    status_ = ExitStatus::kNotConverted;
    environment_.console.ownMessage(options_.directory + ": " +
                                    codePage_.toUtf8(error.description()));
  }
}

void Conversion::printForProgram() const {
  const Json answer = {{"database", opened_.path()},
                       {"directory", directory_},
                       {"complete", status_ == ExitStatus::kDone},
                       {"batches", batches_}};
  environment_.console.print(jsonText(answer, 2) + "\n");
}

}  // namespace

ExitStatus convertSource(const Environment& environment, const ConvertOptions& options) {
  if (options.directory.empty()) throw CommandFailure("the name of the directory is empty");
  return Conversion(environment, options).run();
}

}  // namespace tarrowin
