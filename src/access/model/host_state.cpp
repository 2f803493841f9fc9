// What the host keeps between its calls: the selected database, and a recording read ahead.
#include <sys/stat.h>

#include "access/database_source.h"
#include "access/model/application_object.h"

namespace tarrowin {

namespace {

// Changes when the file does; empty for no file.
std::string stateOfFile(const std::string& path) {
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0) return {};
  std::string result;
  for (const auto number :
       {static_cast<long long>(status.st_dev), static_cast<long long>(status.st_ino),
        static_cast<long long>(status.st_size), static_cast<long long>(status.st_mtim.tv_sec),
        static_cast<long long>(status.st_mtim.tv_nsec)})
    result += std::to_string(number) + ' ';
  return result;
}

}  // namespace

std::string HostState::diskPath(const std::string& path) const {
  const std::string utf8 = options.codePage.toUtf8(path);
  if (stateOfFile(utf8).empty() && !stateOfFile(path).empty()) return path;
  return utf8;
}

std::unique_ptr<DatabaseModel> HostState::open(const std::string& path) {
  const std::string file = diskPath(path);
  ReadAhead known = std::move(readAhead);
  readAhead = {};
  if (known.model && known.path == file && known.fileState == stateOfFile(file))
    return std::move(known.model);
  known.model.reset();
  return openDatabaseFile(file, options.codePage, options.operations, options.designsFromExports);
}

std::shared_ptr<const ApplicationErrors> HostState::selectedErrors() {
  auto none = std::make_shared<const ApplicationErrors>();
  if (selectedDatabase.empty()) return none;
  const std::string file = diskPath(selectedDatabase);
  if (!isRecording(file)) return none;
  try {
    std::string state = stateOfFile(file);
    readAhead = {file, std::move(state),
                 openDatabaseFile(file, options.codePage, options.operations)};
    return readAhead.model->errors;
  } catch (const OpenFailure&) {
    return none;  // OpenCurrentDatabase will tell
  }
}

}  // namespace tarrowin
