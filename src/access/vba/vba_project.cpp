// From the tree of streams to the texts of modules.
// See vba_project.h.
#include "access/vba/vba_project.h"

#include <algorithm>
#include <utility>

#include "access/mdb/damage.h"
#include "access/mdb/text.h"
#include "access/vba/decompress.h"
#include "access/vba/module_text.h"

namespace tarrowin::vba {
namespace {

constexpr std::string_view kFormPrefix = "Form_";
constexpr std::string_view kReportPrefix = "Report_";
constexpr std::string_view kSourceStart = "Attribute";

// Far more than the references and modules of the largest project need: Access allows 1,000 modules
// with those of forms and reports, and a module takes some 300 bytes.
constexpr std::size_t kMaximumDirectory = 4u << 20;

ModuleKind kindOf(const DirectoryModule& module, const mdb::Database& database) {
  if (!module.isClass) return ModuleKind::kStandard;
  if (database.find(mdb::ObjectKind::kModule, module.name) != nullptr) return ModuleKind::kClass;
  if (module.name.starts_with(kFormPrefix)) return ModuleKind::kForm;
  if (module.name.starts_with(kReportPrefix)) return ModuleKind::kReport;
  return ModuleKind::kClass;
}

std::span<const std::uint8_t> from(const Bytes& bytes, std::size_t offset) {
  return std::span<const std::uint8_t>(bytes).subspan(offset);
}

std::string_view textOf(const Bytes& bytes) {
  return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

// The source text at the stated offset or, when that is no source text, where one is found.
Bytes decompressSource(const Bytes& stream, std::optional<std::uint32_t> offset) {
  std::optional<mdb::Error> failure;
  if (offset && *offset < stream.size()) {
    try {
      Bytes source = decompress(from(stream, *offset));
      if (textOf(source).starts_with(kSourceStart)) return source;
    } catch (const mdb::Error& error) {
      failure = error;
    }
  }
  const std::optional<std::size_t> found = findCompressedSource(stream);
  if (found && found != offset) return decompress(from(stream, *found));
  if (failure) throw *failure;
  mdb::raiseDamaged("it holds no source text");
}

}  // namespace

VbaProject VbaProject::open(const mdb::Database& database) {
  try {
    return open(database, std::make_shared<const ObjectTree>(ObjectTree::open(database)));
  } catch (const mdb::Error& error) {
    VbaProject project;
    project.directory_.damage = error;
    return project;
  }
}

VbaProject VbaProject::open(const mdb::Database& database, std::shared_ptr<const ObjectTree> tree) {
  VbaProject project(std::move(tree));
  try {
    project.readDirectory();
  } catch (const mdb::Error& error) {
    project.directory_.damage = error;
  }
  project.listModules(database);
  return project;
}

void VbaProject::readDirectory() {
  const StreamStore& store = tree_->store();
  const auto directory = store.find({"VBA", "VBAProject", "VBA", "dir"});
  if (!directory) return;
  directory_ = readProjectDirectory(decompress(store.read(*directory), kMaximumDirectory));
}

// The project knows its own code page; the names in an Access 97 file are read in the page of the
// file's head, which is often wrong. The names of the catalog are those by which callers ask.
void VbaProject::nameAsInCatalog(const mdb::Database& database) {
  if (!database.isJet3() || !directory_.page || directory_.codePage == database.codePage()) return;
  const CodePage catalogPage(database.codePage());
  for (DirectoryModule& module : directory_.modules) {
    module.name = catalogPage.toUtf8(directory_.page->fromUtf8(module.name));
  }
}

void VbaProject::listModules(const mdb::Database& database) {
  nameAsInCatalog(database);
  for (const DirectoryModule& module : directory_.modules) {
    modules_.push_back({module.name, kindOf(module, database)});
  }
  std::sort(modules_.begin(), modules_.end(), [](const Module& left, const Module& right) {
    return mdb::nameLess(left.name, right.name);
  });
}

const Module* VbaProject::find(std::string_view module) const {
  const Module* found = nullptr;
  for (const Module& candidate : modules_) {
    if (candidate.name == module) return &candidate;
    if (!found && mdb::compareIgnoringCase(candidate.name, module) == 0) found = &candidate;
  }
  return found;
}

const Module& VbaProject::require(std::string_view module) const {
  const Module* found = find(module);
  if (found != nullptr) return *found;
  if (directory_.damage) throw *directory_.damage;
  mdb::raiseDamaged("the Visual Basic project has no such module");
}

Bytes VbaProject::readStream(const DirectoryModule& module) const {
  const StreamStore& store = tree_->store();
  const auto stream = store.namedFolders()
                          ? store.find({"VBA", "VBAProject", "Modules", module.name})
                          : store.find({"VBA", "VBAProject", "VBA", module.stream});
  if (!stream) mdb::raiseDamaged("its stream is missing");
  return store.read(*stream);
}

std::string VbaProject::readSource(std::string_view module) const {
  const auto& modules = directory_.modules;
  const auto entry = std::find_if(modules.begin(), modules.end(),
                                  [&](const auto& one) { return one.name == module; });
  const Bytes source = decompressSource(readStream(*entry), entry->offset);
  std::string_view text = textOf(source);
  // A plain last chunk is filled up with zeros.
  text = text.substr(0, text.find_last_not_of('\0') + 1);
  if (text.find('\0') != std::string_view::npos) mdb::raiseDamaged("its text holds a zero byte");
  return directory_.toUtf8(text);
}

std::string VbaProject::sourceText(std::string_view module) const {
  return mdb::inContext("module", module, [&] { return readSource(require(module).name); });
}

std::string VbaProject::moduleText(std::string_view module) const {
  const std::string source = sourceText(module);
  return exportedText(source, find(module)->kind != ModuleKind::kStandard);
}

std::size_t VbaProject::countOfLines(std::string_view module) const {
  return shownLines(sourceText(module));
}

}  // namespace tarrowin::vba
