// Tells recordings, exports and .mdb files apart and opens any of them.
#include "access/database_source.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <optional>

#include <sys/stat.h>
#include <unistd.h>

#include "access/exports/export_model.h"
#include "access/mdb/mdb_database.h"
#include "access/model/mdb_model.h"
#include "access/snapshot/snapshot_keeper.h"
#include "access/snapshot/snapshot_reader.h"
#include "access/snapshot/whole_file.h"
#include "access/vba/vba_project.h"

namespace tarrowin {

namespace {

// How far a recording's first character is looked for.
constexpr std::size_t kHeadSize = 4096;
constexpr std::string_view kIsFolder = "is a directory";

// Empty, or why the path is no file that could be read.
std::string problemWith(const std::string& path) {
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0)
    return errno == ENOENT || errno == ENOTDIR ? "the file does not exist" : std::strerror(errno);
  if (S_ISDIR(status.st_mode)) return std::string(kIsFolder);
  if (!S_ISREG(status.st_mode)) return "is not a regular file";
  return {};
}

bool startsLikeRecording(std::string_view head) {
  if (head.starts_with("\xEF\xBB\xBF")) head.remove_prefix(3);
  const auto first = head.find_first_not_of(" \t\r\n");
  return first != std::string_view::npos && head[first] == '{';
}

std::string readRecordingText(const std::string& path) {
  std::error_code error;
  if (std::filesystem::file_size(path, error) > kLargestRecording && !error)
    throw OpenFailure(kErrAutomationFail,
                      "is larger than " + std::to_string(kLargestRecording >> 20) + " MB");
  std::optional<std::string> text = readWholeFile(path);
  if (!text) throw OpenFailure(kErrAutomationFail, "cannot be read");
  return *std::move(text);
}

// Runs what reads a recording.
template <class Action>
auto readingRecording(Action action) {
  try {
    return action();
  } catch (const NewerSnapshot& error) {
    throw OpenFailure(kErrNewerFormat, error.message());
  } catch (const SnapshotError& error) {
    throw OpenFailure(kErrAutomationFail, error.message());
  }
}

std::int32_t numberFor(mdb::ErrorKind kind) {
  if (kind == mdb::ErrorKind::kNewerFormat) return kErrNewerFormat;
  return kind == mdb::ErrorKind::kPassword ? kErrPassword : kErrAutomationFail;
}

// The head of a Jet 3 file names a code page that need not be that of its names: files in Cyrillic
// say 1252. The page of the Visual Basic project is right more often.
mdb::Database openWithItsCodePage(const std::string& path) {
  mdb::Database database = mdb::Database::open(path);
  if (!database.isJet3()) return database;
  mdb::Options options;
  {
    const vba::VbaProject project = vba::VbaProject::open(database);
    if (project.damage() || project.modules().empty()) return database;
    options.codePage = project.codePage();
  }
  if (options.codePage == database.codePage()) return database;
  return mdb::Database::open(path, options);
}

std::unique_ptr<DatabaseModel> openMdb(const std::string& path, const CodePage& codePage) {
  try {
    return makeMdbModel(openWithItsCodePage(path), codePage);
  } catch (const mdb::Error& error) {
    throw OpenFailure(numberFor(error.kind()), error.message());
  }
}

// None for a path that holds no exported objects.
std::unique_ptr<DatabaseModel> openExports(const std::string& path, const CodePage& codePage) {
  std::error_code error;
  const bool isDirectory = std::filesystem::is_directory(path, error);
  try {
    const auto catalog =
        isDirectory ? exports::catalogOfFolder(path) : exports::catalogOfFile(path);
    return catalog ? exports::makeExportModel(*catalog, codePage) : nullptr;
  } catch (const exports::TooManyFiles& failure) {
    throw OpenFailure(kErrAutomationFail, failure.what());
  }
}

void takeDesignsBeside(const std::string& path, DatabaseModel& model) {
  const auto catalog = exports::catalogBeside(path);
  if (!catalog) throw OpenFailure(kErrAutomationFail, "there are no exported designs beside it");
  exports::takeDesigns(*catalog, model);
}

// Absolute and without anything behind the name, so that what is kept beside a folder never comes
// to lie in it.
std::string cleanFolderPath(const std::string& path) {
  std::error_code error;
  if (!std::filesystem::is_directory(path, error)) return path;
  std::filesystem::path clean = std::filesystem::canonical(path, error);
  return error ? path : clean.string();
}

// Reads the new objects that are kept beside the source; their file's hash, none without them.
std::optional<std::size_t> addNewObjects(const std::string& path, DatabaseModel& model) {
  std::error_code error;
  if (!std::filesystem::exists(path, error)) return std::nullopt;
  try {
    const std::string text = readRecordingText(path);
    readingRecording([&] { readNewObjects(text, model); });
    return contentHash(text);
  } catch (const OpenFailure& failure) {
    throw OpenFailure(failure.number(), "the new objects beside it, " +
                                            std::filesystem::path(path).filename().string() + ": " +
                                            failure.reason());
  }
}

}  // namespace

bool isRecording(const std::string& path) {
  if (!problemWith(path).empty()) return false;
  std::ifstream file(path, std::ios::binary);
  std::string head(kHeadSize, '\0');
  file.read(head.data(), static_cast<std::streamsize>(head.size()));
  head.resize(static_cast<std::size_t>(file.gcount()));
  return startsLikeRecording(head);
}

std::unique_ptr<DatabaseModel> openDatabaseFile(const std::string& chosenPath,
                                                const CodePage& codePage,
                                                std::shared_ptr<ReplaceOperations> operations,
                                                bool designsFromExports) {
  const std::string path = cleanFolderPath(chosenPath);
  const std::string problem = problemWith(path);
  const bool isFolder = problem == kIsFolder;
  if (!problem.empty() && !isFolder) throw OpenFailure(kErrAutomationFail, problem);
  KeptFile ownFile{path, std::nullopt};
  std::unique_ptr<DatabaseModel> model;
  if (!isFolder && isRecording(path)) {
    const std::string text = readRecordingText(path);
    model = readingRecording([&] { return readSnapshot(text, codePage); });
    ownFile.hash = contentHash(text);
  } else if (model = openExports(path, codePage); !model) {
    if (isFolder) throw OpenFailure(kErrAutomationFail, problem);
    model = openMdb(path, codePage);
    if (designsFromExports) takeDesignsBeside(path, *model);
  }
  model->path = path;
  if (model->name.empty()) {
    std::error_code error;
    const auto absolute = std::filesystem::absolute(path, error);
    model->name = codePage.fromUtf8(error ? path : absolute.string());
  }
  KeptFile beside{newObjectsPath(path), std::nullopt};
  beside.hash = addNewObjects(beside.path, *model);
  const bool keepsItself = model->recording && !beside.hash && ::access(path.c_str(), W_OK) == 0;
  model->keeper = makeSnapshotKeeper(*model, keepsItself ? std::move(ownFile) : std::move(beside),
                                     std::move(operations));
  return model;
}

}  // namespace tarrowin
