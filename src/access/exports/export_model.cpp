// Fills the tree with what the catalog lists, and leaves the rest to be read later.
#include "access/exports/export_model.h"

#include <filesystem>
#include <span>
#include <utility>

#include "access/designs/lazy_design.h"
#include "access/exports/database_facts.h"
#include "access/exports/design_text.h"
#include "access/exports/export_source.h"
#include "access/exports/linked_table.h"
#include "access/exports/module_source.h"
#include "access/exports/query_export.h"
#include "access/exports/table_rows.h"
#include "access/exports/table_text.h"
#include "access/macro/macro_text.h"

namespace tarrowin::exports {

namespace {

constexpr std::int32_t kErrFileNotFound = 53;

// The design in a file, and whether it has code.
StoredDesign readDesign(const ExportSource& source, const ExportedFile& file, DesignKind kind) {
  return source.reading(file.path, [&] {
    StoredDesign design = readDesignText(source.text(file.path), kind, source.codePage()).design;
    design.hasModule = design.hasModule || !file.codePath.empty();
    return design;
  });
}

// The code of a design; none without any.
std::optional<ModuleSource> readCode(const ExportSource& source, const ExportedFile& file) {
  if (!file.codePath.empty()) return moduleSource(source.text(file.codePath), true);
  const std::string text = source.text(file.path);
  const auto code = codeBehind(text);
  if (!code) return std::nullopt;
  if (onlyNamesCodeFile(*code))
    throw VbError(kErrFileNotFound,
                  source.shown(file.path) + ": the file with its code is missing.");
  return moduleSource(*code, true);
}

DesignModel designModel(const SourceRef& source, const ExportedFile& file, DesignKind kind,
                        DatabaseModel& model) {
  DesignModel design = lazyDesign(model, source->codePage().fromUtf8(file.name), kind,
                                  [source, file, kind] { return readDesign(*source, file, kind); });
  design.module = Lazy<std::optional<std::string>>([source, file]() -> std::optional<std::string> {
    const auto code = readCode(*source, file);
    return code ? std::optional(code->text) : std::nullopt;
  });
  design.countOfLines =
      Lazy<std::optional<std::int32_t>>([source, file]() -> std::optional<std::int32_t> {
        const auto code = readCode(*source, file);
        return code ? std::optional(static_cast<std::int32_t>(code->shownLines)) : std::nullopt;
      });
  return design;
}

std::vector<MacroAction> readActions(const ExportSource& source, const std::string& path) {
  return source.reading(path, [&] {
    const std::string utf8 = source.codePage().toUtf8(source.text(path));
    return readMacroText(std::span(reinterpret_cast<const std::uint8_t*>(utf8.data()), utf8.size()),
                         source.codePage());
  });
}

Lazy<std::vector<MacroAction>> lazyActions(const SourceRef& source, const ExportedFile& file) {
  return Lazy<std::vector<MacroAction>>(
      [source, path = file.path] { return readActions(*source, path); });
}

ExportedQuery readQuery(const ExportSource& source, const std::string& path) {
  return source.reading(path, [&] {
    const std::string text = source.text(path);
    const bool isExport =
        headOf(std::string_view(text).substr(0, kHeadSize)).nature == FileNature::kQuery;
    if (!path.ends_with(".sql") || isExport) return readQueryText(text, source.codePage());
    return ExportedQuery{sqlFromFile(text), connectBesideQuery(source, path), {}};
  });
}

QueryModel queryModel(const SourceRef& source, const ExportedFile& file) {
  QueryModel query;
  query.name = source->codePage().fromUtf8(file.name);
  query.sql = Lazy<Recorded<std::string>>(
      [source, path = file.path] { return Recorded<std::string>(readQuery(*source, path).sql); });
  query.parametersAreComplete = false;
  query.parameters = Lazy<std::vector<ParameterModel>>(
      [source, path = file.path] { return readQuery(*source, path).parameters; });
  query.type = queryTypeOfOperation(file.head.number);
  query.connect = Lazy<std::optional<std::string>>(
      [source, path = file.path] { return std::optional(readQuery(*source, path).connect); });
  return query;
}

ModuleModel moduleModel(const SourceRef& source, const ExportedFile& file) {
  const bool isClass = file.head.nature == FileNature::kClassModule;
  ModuleModel module;
  module.name = source->codePage().fromUtf8(file.name);
  module.type = isClass ? 1 : 0;
  module.text = Lazy<std::string>([source, path = file.path, isClass] {
    return moduleSource(source->text(path), isClass).text;
  });
  module.countOfLines = Lazy<std::optional<std::int32_t>>([source, path = file.path, isClass] {
    const ModuleSource code = moduleSource(source->text(path), isClass);
    return std::optional(static_cast<std::int32_t>(code.shownLines));
  });
  return module;
}

FieldList readFields(const ExportSource& source, const ExportedTable& table) {
  if (!table.schemaPath.empty())
    return source.reading(table.schemaPath, [&] {
      return fieldsOfSchema(source.text(table.schemaPath), source.codePage());
    });
  if (!table.statementPath.empty())
    return source.reading(table.statementPath,
                          [&] { return fieldsOfCreateTable(source.text(table.statementPath)); });
  return {};
}

TableModel tableModel(const SourceRef& source, const ExportedTable& file) {
  TableModel table;
  table.name = source->codePage().fromUtf8(file.name);
  if (file.schemaPath.empty() && !file.linkPath.empty())
    table.connect = connectOfLink(*source, file.linkPath);
  table.fields = Lazy<FieldList>([source, file] { return readFields(*source, file); });
  if (!file.rowsPath.empty())
    table.openRows = [source, file] {
      return source->reading(file.rowsPath, [&] {
        return exportedRows(source->text(file.rowsPath), readFields(*source, file),
                            source->codePage());
      });
    };
  return table;
}

}  // namespace

std::unique_ptr<DatabaseModel> makeExportModel(const ExportCatalog& catalog,
                                               const CodePage& codePage) {
  auto model = std::make_unique<DatabaseModel>(codePage);
  const auto source = std::make_shared<const ExportSource>(catalog.path, codePage);
  readDatabaseFacts(*source, catalog, *model);
  for (const ExportedTable& table : catalog.tables) model->tables.add(tableModel(source, table));
  for (TableModel& table : linkedTables(*source, catalog))
    if (!model->tables.find(table.name, model->folding)) model->tables.add(std::move(table));
  for (const ExportedFile& query : catalog.queries) model->queries.add(queryModel(source, query));
  for (const ExportedFile& form : catalog.forms)
    model->forms.add(designModel(source, form, DesignKind::kForm, *model));
  for (const ExportedFile& report : catalog.reports)
    model->reports.add(designModel(source, report, DesignKind::kReport, *model));
  for (const ExportedFile& macro : catalog.macros) {
    MacroModel added;
    added.name = codePage.fromUtf8(macro.name);
    added.actions = lazyActions(source, macro);
    model->macros.add(std::move(added));
  }
  for (const ExportedFile& module : catalog.modules)
    model->modules.add(moduleModel(source, module));
  return model;
}

namespace {

void takeDesigns(const SourceRef& source, const std::vector<ExportedFile>& files, DesignKind kind,
                 DatabaseModel& model, NamedList<DesignModel>& list) {
  for (const ExportedFile& file : files) {
    const DesignModel* const known =
        list.find(source->codePage().fromUtf8(file.name), model.folding);
    if (known == nullptr) continue;
    ExportedFile named = file;
    named.name = model.codePage.toUtf8(known->name);
    DesignModel taken = designModel(source, named, kind, model);
    taken.module = known->module;
    taken.countOfLines = known->countOfLines;
    taken.exportError = known->exportError;
    list.put(std::move(taken), model.folding);
  }
}

}  // namespace

void takeDesigns(const ExportCatalog& catalog, DatabaseModel& model) {
  const auto source = std::make_shared<const ExportSource>(catalog.path, model.codePage);
  takeDesigns(source, catalog.forms, DesignKind::kForm, model, model.forms);
  takeDesigns(source, catalog.reports, DesignKind::kReport, model, model.reports);
  for (const ExportedFile& macro : catalog.macros) {
    const MacroModel* const known =
        model.macros.find(model.codePage.fromUtf8(macro.name), model.folding);
    if (known == nullptr) continue;
    MacroModel taken = *known;
    taken.actions = lazyActions(source, macro);
    model.macros.put(std::move(taken), model.folding);
  }
}

std::optional<ExportCatalog> catalogBeside(const std::string& databasePath) {
  namespace fs = std::filesystem;
  const fs::path path(databasePath);
  fs::path bare = path;
  bare.replace_extension();
  for (const fs::path& folder : {fs::path(databasePath + ".src"), fs::path(bare.string() + ".src"),
                                 path.parent_path() / "source"}) {
    std::error_code error;
    if (!fs::is_directory(folder, error)) continue;
    auto catalog = catalogOfFolder(folder.string());
    if (catalog && !(catalog->forms.empty() && catalog->reports.empty() && catalog->macros.empty()))
      return catalog;
  }
  return std::nullopt;
}

}  // namespace tarrowin::exports
