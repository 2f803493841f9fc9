// The steps of keeping one object: lock, compare, change the text, replace the file.
#include "access/snapshot/snapshot_keeper.h"

#include <cerrno>
#include <filesystem>
#include <functional>
#include <utility>

#include "access/snapshot/json_tree.h"
#include "access/snapshot/object_writer.h"
#include "access/snapshot/snapshot_edit.h"
#include "access/snapshot/source_lock.h"
#include "access/snapshot/whole_file.h"

namespace tarrowin {

namespace {

constexpr std::int32_t kErrDiskIsFull = 3026, kErrReadOnly = 3027, kErrDisk = 3043,
                       kErrInUse = 3045, kErrChangedByOther = 3197;

constexpr std::string_view kForms = "forms", kModules = "modules";
constexpr std::string_view kNoObjects = "{\n  \"snapshot\": 1\n}\n";

std::int32_t numberFor(int code) {
  switch (code) {
    case EACCES:
    case EPERM:
    case EROFS:
      return kErrReadOnly;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return kErrDiskIsFull;
    default:
      return kErrDisk;
  }
}

class SnapshotKeeper : public ObjectKeeper {
 public:
  SnapshotKeeper(const DatabaseModel& database, KeptFile file,
                 std::shared_ptr<ReplaceOperations> operations)
      : database_(database), file_(std::move(file)), operations_(std::move(operations)) {
    if (!operations_) operations_ = std::make_shared<ReplaceOperations>();
  }

  void keepForm(const DesignModel& form) override {
    keep({"form", kForms, form.name, formEntry(form, database_)});
  }
  void keepModule(const ModuleModel& module) override {
    keep({"module", kModules, module.name, moduleEntry(module, database_.codePage)});
  }

  std::string document() const override {
    std::string text = read(database_.path);
    if (isOwnFile() || !file_.hash) return text;
    const std::string added = read(file_.path);
    for (const std::string_view list : {kForms, kModules})
      for (const std::string_view entry : snapshotEntries(added, list))
        text = withEntry(text, list, entry, positionOf(text, list, nameOf(entry)));
    return text;
  }

  void release() override { lock_.release(); }

 private:
  struct NewObject {
    std::string_view kind, list;
    const std::string& name;
    std::string entry;
  };

  bool isOwnFile() const { return file_.path == database_.path; }

  // A program that has kept nothing holds up no other.
  void keep(const NewObject& object) {
    try {
      write(object);
      hasKept_ = true;
    } catch (const VbError&) {
      if (!hasKept_) lock_.release();
      throw;
    }
  }

  void write(const NewObject& object) {
    if (!lock_.acquire(database_.path))
      refuse(object, kErrInUse, database_.path + ": another program is changing it");
    const std::string before = currentText(object);
    const std::string after =
        withEntry(before, object.list, object.entry, positionOf(before, object.list, object.name));
    if (after.size() > kLargestRecording)
      refuse(object, kErrDiskIsFull, file_.path + ": it would be too large to be opened again");
    try {
      replace(after);
    } catch (const AtomicWriteError& error) {
      refuse(object, numberFor(error.code()), error.message());
    }
    file_.hash = contentHash(after);
  }

  void replace(const std::string& text) {
    if (!isOwnFile()) return replaceFile(file_.path, text, *operations_);
    LockedReplacement locked(*operations_, lock_);
    replaceFile(file_.path, text, locked);
  }

  // What stands in the file, which nobody else may have changed.
  std::string currentText(const NewObject& object) const {
    std::error_code ignored;
    if (!file_.hash && !std::filesystem::exists(file_.path, ignored))
      return std::string(kNoObjects);
    std::optional<std::string> text = readWholeFile(file_.path);
    if (!text) refuse(object, kErrDisk, file_.path + ": it cannot be read");
    if (file_.hash != contentHash(*text))
      refuse(object, kErrChangedByOther,
             file_.path + ": another program has changed it since it was opened");
    return *std::move(text);
  }

  [[noreturn]] void refuse(const NewObject& object, std::int32_t number,
                           const std::string& reason) const {
    throw VbError(number, "The " + std::string(object.kind) + " '" + object.name +
                              "' can't be saved. " + database_.codePage.fromUtf8(reason) + ".");
  }

  std::string nameOf(std::string_view entry) const {
    const JsonTree tree = JsonTree::parse(entry);
    const auto name = tree.root().member("name");
    return name && name->kind() == JsonKind::kText ? database_.codePage.fromUtf8(name->text())
                                                   : std::string();
  }

  // As a collection looks for a name: an exact match first.
  std::size_t positionOf(std::string_view document, std::string_view list,
                         std::string_view name) const {
    std::size_t alike = SIZE_MAX, position = 0;
    for (const std::string_view entry : snapshotEntries(document, list)) {
      const std::string other = nameOf(entry);
      if (other == name) return position;
      if (alike == SIZE_MAX && database_.folding.equal(other, name)) alike = position;
      ++position;
    }
    return alike;
  }

  std::string read(const std::string& path) const {
    std::optional<std::string> text = readWholeFile(path);
    if (!text)
      throw VbError(kErrAutomationFail, database_.codePage.fromUtf8(path) + ": cannot be read");
    return *std::move(text);
  }

  const DatabaseModel& database_;
  KeptFile file_;
  std::shared_ptr<ReplaceOperations> operations_;
  SourceLock lock_;
  bool hasKept_ = false;
};

}  // namespace

std::string newObjectsPath(const std::string& sourcePath) {
  std::string path = sourcePath;
  while (path.size() > 1 && path.ends_with('/')) path.pop_back();
  return path.append(kNewObjectsSuffix);
}

std::size_t contentHash(std::string_view content) { return std::hash<std::string_view>()(content); }

std::shared_ptr<ObjectKeeper> makeSnapshotKeeper(const DatabaseModel& database, KeptFile file,
                                                 std::shared_ptr<ReplaceOperations> operations) {
  return std::make_shared<SnapshotKeeper>(database, std::move(file), std::move(operations));
}

}  // namespace tarrowin
