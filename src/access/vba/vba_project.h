// The Visual Basic code of a database: the text of its modules, class modules, and of the code
// behind forms and reports, as the text export of Access gives it.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "access/mdb/mdb_database.h"
#include "access/vba/object_tree.h"
#include "access/vba/project_directory.h"

namespace tarrowin::vba {

enum class ModuleKind {
  kStandard,
  kClass,
  kForm,    // the code behind a form; the module is called "Form_" and the form's name
  kReport,  // "Report_" and the report's name
};

struct Module {
  std::string name;  // UTF-8, as in the catalog of the database
  ModuleKind kind = ModuleKind::kStandard;
};

// Opening reads the directory of the project; texts are read when asked for, each time anew. All
// texts given and taken are UTF-8, made from the project's own code page.
class VbaProject {
 public:
  // The database must live and stay in its place as long as the project. A database without code
  // gives an empty project. Never throws for damage: see damage().
  static VbaProject open(const mdb::Database& database);
  // The same with a tree that is open already.
  static VbaProject open(const mdb::Database& database, std::shared_ptr<const ObjectTree> tree);

  // What kept the project, or its directory, from being read to its end. modules() then holds what
  // stands before the damage.
  const std::optional<mdb::Error>& damage() const { return directory_.damage; }

  const std::string& name() const { return directory_.name; }
  int codePage() const { return directory_.codePage; }
  const std::vector<Reference>& references() const { return directory_.references; }

  // By name as in the lists of mdb::Database.
  const std::vector<Module>& modules() const { return modules_; }
  // An exact match first, then one without regard to case; or nullptr.
  const Module* find(std::string_view module) const;

  // The text that the export of the module gives, lines ended by CR LF: a standard module without
  // any hidden line, a class module and the code behind a form or report with the four lines
  // "Attribute VB_GlobalNameSpace", "VB_Creatable", "VB_PredeclaredId", "VB_Exposed" before it.
  // Throws mdb::Error (kDamaged): no such module, its stream is damaged or holds no source text
  // (as in an MDE), or the text is not ASCII and the project's code page is not known.
  std::string moduleText(std::string_view module) const;

  // Module.CountOfLines: the lines that the code window shows, so none of the "Attribute" lines.
  // Throws what moduleText throws.
  std::size_t countOfLines(std::string_view module) const;

  // The whole stored text with all its hidden lines. Throws as above.
  std::string sourceText(std::string_view module) const;

 private:
  VbaProject() = default;
  explicit VbaProject(std::shared_ptr<const ObjectTree> tree) : tree_(std::move(tree)) {}

  void readDirectory();
  void nameAsInCatalog(const mdb::Database& database);
  void listModules(const mdb::Database& database);
  const Module& require(std::string_view module) const;
  std::string readSource(std::string_view module) const;
  Bytes readStream(const DirectoryModule& module) const;

  std::shared_ptr<const ObjectTree> tree_;
  ProjectDirectory directory_;
  std::vector<Module> modules_;
};

}  // namespace tarrowin::vba
