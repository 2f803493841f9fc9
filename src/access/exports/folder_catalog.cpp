// Layouts of folders. The usual ones have a folder a kind of object, others all files in one; in
// both the content decides where it can.
#include "access/exports/folder_catalog.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <utility>

#include "access/exports/object_names.h"
#include "access/mdb/text.h"
#include "access/model/case_folding.h"

namespace tarrowin::exports {

namespace {

namespace fs = std::filesystem;

// What a folder is for, by its name.
enum class Purpose {
  kNone,
  kForms,
  kReports,
  kMacros,
  kQueries,
  kModules,
  kTables,
  kRows,
  kRelations
};

constexpr std::pair<std::string_view, Purpose> kPurposes[] = {
    {"form", Purpose::kForms},     {"forms", Purpose::kForms},
    {"report", Purpose::kReports}, {"reports", Purpose::kReports},
    {"macro", Purpose::kMacros},   {"macros", Purpose::kMacros},
    {"query", Purpose::kQueries},  {"queries", Purpose::kQueries},
    {"module", Purpose::kModules}, {"modules", Purpose::kModules},
    {"tbldef", Purpose::kTables},  {"tbldefs", Purpose::kTables},
    {"tables", Purpose::kRows},    {"relations", Purpose::kRelations},
};

// In one flat folder some tools put the kind before each name.
constexpr std::string_view kFormPrefixes[] = {"Frm_"}, kReportPrefixes[] = {"Rpt_"},
                           kMacroPrefixes[] = {"Mac_", "Mcr_"}, kQueryPrefixes[] = {"Qry_"},
                           kModulePrefixes[] = {"Mod_"}, kTablePrefixes[] = {"Tbl_"};

constexpr std::size_t kDeepestFolder = 8;

std::string lowered(std::string text) {
  static const CaseFolding kFolding{CodePage(CodePage::kUtf8)};
  return kFolding.fold(text);
}

FileHead headOfFile(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  std::string head(kHeadSize, '\0');
  file.read(head.data(), static_cast<std::streamsize>(head.size()));
  head.resize(static_cast<std::size_t>(std::max<std::streamsize>(file.gcount(), 0)));
  return headOf(head);
}

bool isDesign(FileNature nature) {
  return nature == FileNature::kForm || nature == FileNature::kReport ||
         nature == FileNature::kBareDesign;
}

// A file of several with one object's name: the newer form of an export comes first.
int rankOf(const fs::path& path) {
  constexpr std::string_view kOrder[] = {".form", ".report", ".macro", ".qdef"};
  const std::string ending = lowered(path.extension().string());
  if (std::ranges::find(kOrder, ending) != std::end(kOrder)) return 0;
  return ending == ".sql" ? 2 : 1;
}

// The files and folders directly inside, by name; what cannot be listed is empty.
std::vector<fs::path> entriesOf(const fs::path& folder) {
  std::vector<fs::path> entries;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
       entry.increment(error)) {
    entries.push_back(entry->path());
    if (entries.size() > kMostFiles) throw TooManyFiles();
  }
  std::ranges::sort(entries);
  return entries;
}

bool isFolder(const fs::path& path) {
  std::error_code error;
  return fs::is_directory(path, error);
}
bool isFile(const fs::path& path) {
  std::error_code error;
  return fs::is_regular_file(path, error);
}

class Scan {
 public:
  explicit Scan(const fs::path& folder) : folder_(folder) {}

  std::optional<ExportCatalog> run() {
    const std::vector<fs::path> entries = entriesOf(folder_);
    for (const fs::path& entry : entries)
      if (const Purpose purpose = purposeOf(entry); purpose != Purpose::kNone && isFolder(entry))
        scanFolder(entry, purpose, 0);
    const bool hasPurpose = objects() > 0;
    const std::size_t modulesInFolders = catalog_.modules.size();
    for (const fs::path& entry : entries)
      if (isFile(entry)) takeRootFile(entry);
    // Modules beside the folders of objects are of another program.
    if (hasPurpose) catalog_.modules.resize(modulesInFolders);
    // Modules alone are no sign: any program in Visual Basic has such files.
    if (!hasPurpose && !isMarked_ && !foundInRoot_) return std::nullopt;
    if (!hasPurpose) stripPrefixes();
    return finished();
  }

  std::optional<ExportCatalog> runOnFile(const fs::path& path) {
    takeRootFile(path);
    if (!foundInRoot_ && catalog_.modules.empty()) return std::nullopt;
    if (!catalog_.forms.empty() || !catalog_.reports.empty()) {
      fs::path code = path;
      if (code.replace_extension(".cls"); isFile(code)) codes_[stemOf(path)] = code.string();
    }
    return finished();
  }

 private:
  static Purpose purposeOf(const fs::path& folder) {
    const std::string name = lowered(folder.filename().string());
    const auto found =
        std::ranges::find(kPurposes, name, [](const auto& each) { return each.first; });
    return found == std::end(kPurposes) ? Purpose::kNone : found->second;
  }

  void scanFolder(const fs::path& folder, Purpose purpose, std::size_t depth) {
    for (const fs::path& entry : entriesOf(folder)) {
      if (++files_ > kMostFiles) throw TooManyFiles();
      if (isFile(entry))
        take(entry, purpose);
      else if (depth < kDeepestFolder && isFolder(entry))
        scanFolder(entry, purpose, depth + 1);
    }
  }

  std::size_t objects() const {
    return catalog_.forms.size() + catalog_.reports.size() + catalog_.macros.size() +
           catalog_.queries.size() + catalog_.modules.size() + tables_.size() +
           catalog_.relationPaths.size();
  }

  // With its folder, since modules may lie in several.
  static std::string stemOf(const fs::path& path) {
    return (path.parent_path() / path.stem()).string();
  }

  void take(const fs::path& path, Purpose purpose) {
    const std::string ending = lowered(path.extension().string());
    switch (purpose) {
      case Purpose::kForms:
        return takeDesign(path, ending, catalog_.forms);
      case Purpose::kReports:
        return takeDesign(path, ending, catalog_.reports);
      case Purpose::kMacros:
      case Purpose::kQueries:
        if (ending == ".json") return;
        return addFile(purpose == Purpose::kMacros ? catalog_.macros : catalog_.queries, path,
                       headOfFile(path));
      case Purpose::kModules:
        if (const FileHead head = headOfFile(path); isModuleEnding(ending) || isModule(head))
          addFile(catalog_.modules, path, moduleHead(head, ending));
        return;
      case Purpose::kTables:
        return takeTable(path, ending);
      case Purpose::kRows:
        if (ending == ".txt" || ending == ".xml" || ending == ".csv")
          rows_[path.stem().string()] = path.string();
        return;
      case Purpose::kRelations:
        if (ending == ".json" || ending == ".txt") catalog_.relationPaths.push_back(path.string());
        return;
      case Purpose::kNone:
        return;
    }
  }

  static bool isModuleEnding(std::string_view ending) {
    return ending == ".bas" || ending == ".cls";
  }
  static bool isModule(const FileHead& head) {
    return head.nature == FileNature::kModule || head.nature == FileNature::kClassModule;
  }
  static FileHead moduleHead(FileHead head, std::string_view ending) {
    const bool isClass = head.nature == FileNature::kClassModule || ending == ".cls";
    head.nature = isClass ? FileNature::kClassModule : FileNature::kModule;
    return head;
  }

  // The files of designs, their code and their print set-up.
  void takeDesign(const fs::path& path, std::string_view ending, std::vector<ExportedFile>& usual) {
    constexpr std::array<std::string_view, 8> kEndings = {".bas",    ".form",   ".report", ".frm",
                                                          ".accfrm", ".accrep", ".rpt",    ".txt"};
    if (ending == ".cls") {
      codes_[stemOf(path)] = path.string();
      return;
    }
    const FileHead head = headOfFile(path);
    if (head.nature == FileNature::kForm) return addFile(catalog_.forms, path, head);
    if (head.nature == FileNature::kReport) return addFile(catalog_.reports, path, head);
    // What should be one and is none belongs to the list, with its error.
    if (std::ranges::find(kEndings, ending) != kEndings.end() || isDesign(head.nature))
      addFile(usual, path, head);
  }

  void takeTable(const fs::path& path, std::string_view ending) {
    std::string ExportedTable::*place = nullptr;
    if (ending == ".xml" || ending == ".xsd") place = &ExportedTable::schemaPath;
    if (ending == ".sql") place = &ExportedTable::statementPath;
    if (ending == ".json" || ending == ".lnkd") place = &ExportedTable::linkPath;
    if (place != nullptr) tables_[path.stem().string()].*place = path.string();
  }

  void takeRootFile(const fs::path& path) {
    if (takeSystemFile(path)) return;
    const std::string ending = lowered(path.extension().string());
    const FileHead head = headOfFile(path);
    switch (head.nature) {
      case FileNature::kForm:
      case FileNature::kReport:
        foundInRoot_ = true;
        return addFile(head.nature == FileNature::kForm ? catalog_.forms : catalog_.reports, path,
                       head);
      case FileNature::kBareDesign: {
        foundInRoot_ = true;
        const bool isReport = ending == ".report" || ending == ".rpt" || ending == ".accrep";
        return addFile(isReport ? catalog_.reports : catalog_.forms, path, head);
      }
      case FileNature::kMacro:
      case FileNature::kQuery:
        foundInRoot_ = true;
        return addFile(head.nature == FileNature::kMacro ? catalog_.macros : catalog_.queries, path,
                       head);
      case FileNature::kTableSchema:
      case FileNature::kCreateTable:
        foundInRoot_ = true;
        return takeTable(path, head.nature == FileNature::kCreateTable ? ".sql" : ".xml");
      case FileNature::kClassModule:
      case FileNature::kModule:
        if (ending == ".cls") codes_[stemOf(path)] = path.string();
        return addFile(catalog_.modules, path, moduleHead(head, ending));
      case FileNature::kText:
        if (isModuleEnding(ending))
          return addFile(catalog_.modules, path, moduleHead(head, ending));
        break;
      case FileNature::kOther:
        break;
    }
    if (ending == ".txt") rows_[path.stem().string()] = path.string();
  }

  bool takeSystemFile(const fs::path& path) {
    const std::pair<std::string_view, std::string*> kNames[] = {
        {"dbs-properties.json", &catalog_.system.databaseProperties},
        {"project.json", &catalog_.system.project},
        {"vbe-references.json", &catalog_.system.references},
        {"references.csv", &catalog_.system.referenceList},
        {"__PROPERTIES__.xml", &catalog_.system.propertyTable},
        {"__REFERENCES__.xml", &catalog_.system.referenceTable},
        {"__RELATIONS__.xml", &catalog_.system.relationTable},
        {"__TABLES__.xml", &catalog_.system.tableTable},
    };
    const std::string name = path.filename().string();
    if (name == "vcs-options.json" || name == "dbs-properties.json") isMarked_ = true;
    for (const auto& [known, place] : kNames) {
      if (name != known) continue;
      *place = path.string();
      return true;
    }
    return false;
  }

  void addFile(std::vector<ExportedFile>& list, const fs::path& path, const FileHead& head) {
    list.push_back({nameOfFile(path.stem().string()), path.string(), head, {}});
  }

  // Where all objects have the prefix of their kind, it is none of theirs.
  void stripPrefixes() {
    const auto nameOf = [](auto& each) -> std::string& { return each.name; };
    std::vector<std::pair<std::string*, std::size_t>> prefixed;
    bool all = true;
    const auto collect = [&](std::string& name, auto& prefixes) {
      const auto found = std::ranges::find_if(
          prefixes, [&](std::string_view prefix) { return name.starts_with(prefix); });
      all = all && found != std::end(prefixes);
      if (all) prefixed.emplace_back(&name, found->size());
    };
    for (auto& each : catalog_.forms) collect(nameOf(each), kFormPrefixes);
    for (auto& each : catalog_.reports) collect(nameOf(each), kReportPrefixes);
    for (auto& each : catalog_.macros) collect(nameOf(each), kMacroPrefixes);
    for (auto& each : catalog_.queries) collect(nameOf(each), kQueryPrefixes);
    for (auto& each : catalog_.modules) collect(nameOf(each), kModulePrefixes);
    for (auto& [stem, table] : tables_) {
      table.name = nameOfFile(stem);
      collect(table.name, kTablePrefixes);
    }
    if (!all) return;
    for (const auto& [name, length] : prefixed) name->erase(0, length);
  }

  std::optional<ExportCatalog> finished() {
    catalog_.path = folder_.string();
    for (auto* list : {&catalog_.forms, &catalog_.reports}) {
      for (ExportedFile& file : *list)
        if (const auto code = codes_.find(stemOf(file.path)); code != codes_.end())
          file.codePath = code->second;
    }
    dropCodeOfDesigns();
    for (auto& [stem, table] : tables_) {
      if (table.name.empty()) table.name = nameOfFile(stem);
      if (const auto rows = rows_.find(stem); rows != rows_.end()) table.rowsPath = rows->second;
      catalog_.tables.push_back(std::move(table));
    }
    for (auto* list : {&catalog_.forms, &catalog_.reports, &catalog_.macros, &catalog_.queries,
                       &catalog_.modules})
      inOrder(*list);
    std::ranges::sort(catalog_.tables, mdb::nameLess, &ExportedTable::name);
    return std::move(catalog_);
  }

  // In a flat folder the code of a design looks like a class module.
  void dropCodeOfDesigns() {
    std::set<std::string> taken;
    for (const auto* list : {&catalog_.forms, &catalog_.reports})
      for (const ExportedFile& file : *list) taken.insert(file.codePath);
    std::erase_if(catalog_.modules,
                  [&](const ExportedFile& file) { return taken.contains(file.path); });
  }

  // By name; of several files for one name the first by rank.
  static void inOrder(std::vector<ExportedFile>& list) {
    std::ranges::stable_sort(list, [](const ExportedFile& left, const ExportedFile& right) {
      if (left.name != right.name) return mdb::nameLess(left.name, right.name);
      return rankOf(left.path) < rankOf(right.path);
    });
    const auto sameName = [](const ExportedFile& left, const ExportedFile& right) {
      return left.name == right.name;
    };
    list.erase(std::unique(list.begin(), list.end(), sameName), list.end());
  }

  fs::path folder_;
  ExportCatalog catalog_;
  std::map<std::string, std::string> codes_, rows_;
  std::map<std::string, ExportedTable> tables_;
  std::size_t files_ = 0;
  bool foundInRoot_ = false, isMarked_ = false;
};

// Absolute, without "." and "..", and without a slash at its end.
fs::path cleaned(const std::string& path) {
  std::error_code error;
  fs::path clean = fs::absolute(path, error).lexically_normal();
  if (!clean.has_filename()) clean = clean.parent_path();
  return clean;
}

}  // namespace

std::optional<ExportCatalog> catalogOfFolder(const std::string& path) {
  const fs::path folder = cleaned(path);
  if (auto found = Scan(folder).run()) return found;
  std::optional<ExportCatalog> inside;
  for (const fs::path& entry : entriesOf(folder)) {
    const std::string name = lowered(entry.filename().string());
    if ((name != "source" && name != "src" && !name.ends_with(".src")) || !isFolder(entry))
      continue;
    auto found = Scan(entry).run();
    if (found && inside) return std::nullopt;
    if (found) inside = std::move(found);
  }
  return inside;
}

std::optional<ExportCatalog> catalogOfFile(const std::string& path) {
  const fs::path file = cleaned(path);
  if (!isFile(file)) return std::nullopt;
  auto catalog = Scan(file.parent_path()).runOnFile(file);
  if (catalog) catalog->path = file.string();
  return catalog;
}

bool isExport(const std::string& path) {
  try {
    return isFolder(path) ? catalogOfFolder(path).has_value() : catalogOfFile(path).has_value();
  } catch (const TooManyFiles&) {
    return false;
  }
}

}  // namespace tarrowin::exports
