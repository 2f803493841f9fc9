// The recursive walk.
#include "core/folder_search.h"

#include "core/main_object.h"
#include "shared/path_procedures.h"

namespace tarrowin {

void SearchFolder(MainObject& main, const std::string& folder, std::string_view file,
                  std::string& foundPath) {
  const std::string path = folder.ends_with(kPathSeparator) ? folder : folder + kPathSeparator;
  const std::vector<FileSystem::Entry> entries = main.files.Entries(folder);
  for (const FileSystem::Entry& entry : entries) {
    if (entry.directory) continue;
    if (entry.name == file) {
      foundPath = path;
      return;
    }
    main.host.DoEvents();
  }
  for (const FileSystem::Entry& entry : entries) {
    if (entry.directory) SearchFolder(main, path + entry.name, file, foundPath);
  }
}

}  // namespace tarrowin
