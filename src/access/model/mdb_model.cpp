// Fills the tree with what the catalog lists, and leaves the rest to be read later.
#include "access/model/mdb_model.h"

#include <memory>
#include <utility>

#include "access/design_blob/design_streams.h"
#include "access/designs/lazy_design.h"
#include "access/macro/macro_blob.h"
#include "access/mdb/damage.h"
#include "access/mdb/query_text.h"
#include "access/mdb/text.h"
#include "access/vba/object_tree.h"
#include "access/vba/vba_project.h"

namespace tarrowin {

namespace {

constexpr std::int32_t kErrCorrupt = 3049;
// Access refused to open an object: the only number for which the conversions leave it alone.
constexpr std::int32_t kErrRefused = 2601;
// How DAO's Connect of a table on a server begins.
constexpr std::string_view kServerConnect = "ODBC;";

// The page of texts that Access 97 wrote. A later file may hold such designs and macros too, and
// only its project tells in which page.
CodePage ansiPageOf(const mdb::Database& database, const Lazy<vba::VbaProject>& project) {
  return mdb::knownCodePage(database.isJet3() ? database.codePage() : project.get().codePage());
}

// The open file, shared by everything that reads from it later.
struct Source {
  Source(mdb::Database&& opened, const CodePage& page)
      : database(std::move(opened)),
        codePage(page),
        objects([this] {
          return std::make_shared<const vba::ObjectTree>(vba::ObjectTree::open(database));
        }),
        project([this] { return openProject(); }),
        ansiPage([this] { return ansiPageOf(database, project); }) {}
  Source(const Source&) = delete;
  Source& operator=(const Source&) = delete;

  mdb::Database database;
  CodePage codePage;
  Lazy<std::shared_ptr<const vba::ObjectTree>> objects;
  Lazy<vba::VbaProject> project;
  Lazy<CodePage> ansiPage;

  std::string text(std::string_view utf8) const { return codePage.fromUtf8(utf8); }
  Value value(Value utf8) const {
    const std::string* found = utf8.text();
    return found ? Value(text(*found)) : utf8;
  }
  // Runs what reads the file.
  template <class Action>
  auto reading(Action action) const {
    try {
      return action();
    } catch (const mdb::Error& error) {
      throw VbError(kErrCorrupt, text(database.fileName() + ": " + error.message()));
    }
  }

 private:
  // Without a tree the project says itself what is wrong, when it is asked.
  vba::VbaProject openProject() const {
    try {
      return vba::VbaProject::open(database, objects.get());
    } catch (const mdb::Error&) {
      return vba::VbaProject::open(database);
    }
  }
};
using SourceRef = std::shared_ptr<const Source>;

class MdbRows : public RowCursor {
 public:
  MdbRows(SourceRef source, const mdb::CatalogObject& table)
      : source_(std::move(source)), rows_(source_->database.rows(table)) {}

  bool next() override {
    return source_->reading([this] { return rows_.next(); });
  }
  // A cell that cannot be read is an error of its own; the others of its row are not lost with it.
  Recorded<Value> cell(std::size_t field) const override {
    try {
      return source_->reading([&] { return source_->value(rows_.value(field)); });
    } catch (const VbError& error) {
      return RecordedError{error.number(), error.description()};
    }
  }

 private:
  SourceRef source_;
  mdb::Rows rows_;
};

FieldList readFields(const Source& source, const mdb::CatalogObject& table) {
  return source.reading([&] {
    FieldList fields;
    for (const mdb::Column& column : source.database.columns(table))
      fields.push_back({source.text(column.name), column.type, column.size, {}, {}});
    return fields;
  });
}

// DAO's Connect of a linked table. The file keeps the path of another database apart from it, and
// of a server's table not that it is one.
std::string connectOf(const mdb::CatalogObject& table) {
  if (table.kind != mdb::ObjectKind::kLinkedTable) return {};
  if (table.database.empty()) {
    const bool isWhole = table.connect.empty() || table.connect.starts_with(kServerConnect) ||
                         table.connect.starts_with(';');
    return isWhole ? table.connect : std::string(kServerConnect) + table.connect;
  }
  const bool isOpen = !table.connect.ends_with(';');
  return table.connect + (isOpen ? ";" : "") + "DATABASE=" + table.database;
}

TableModel tableModel(const SourceRef& source, const mdb::CatalogObject& object) {
  TableModel table;
  table.name = source->text(object.name);
  table.connect = source->text(connectOf(object));
  table.fields = Lazy<FieldList>([source, &object] { return readFields(*source, object); });
  if (object.kind == mdb::ObjectKind::kTable)
    table.openRows = [source, &object]() -> std::unique_ptr<RowCursor> {
      return source->reading([&] { return std::make_unique<MdbRows>(source, object); });
    };
  return table;
}

QueryModel queryModel(const SourceRef& source, const mdb::CatalogObject& object) {
  const auto flags = static_cast<std::int32_t>(object.flags);
  QueryModel query;
  query.name = source->text(object.name);
  query.sql = Lazy<Recorded<std::string>>([source, &object, flags] {
    return source->reading([&] {
      return Recorded<std::string>(
          source->text(mdb::querySql(source->database.queryRows(object), flags)));
    });
  });
  query.parametersAreComplete = false;
  query.parameters = Lazy<std::vector<ParameterModel>>([source, &object] {
    return source->reading([&] {
      std::vector<ParameterModel> parameters;
      for (const auto& parameter : mdb::queryParameters(source->database.queryRows(object)))
        parameters.push_back({source->text(parameter.name), parameter.type});
      return parameters;
    });
  });
  query.type = object.queryKind();
  query.connect = Lazy<std::optional<std::string>>([source, &object, flags] {
    return source->reading([&] {
      return std::optional(
          source->text(mdb::queryConnect(source->database.queryRows(object), flags)));
    });
  });
  return query;
}

// The text of a module of the project, and its lines; the name is in UTF-8.
std::string codeText(const Source& source, const std::string& module) {
  return source.reading([&] { return source.text(source.project.get().moduleText(module)); });
}
std::optional<std::int32_t> codeLines(const Source& source, const std::string& module) {
  return source.reading(
      [&] { return static_cast<std::int32_t>(source.project.get().countOfLines(module)); });
}

bool isForm(const mdb::CatalogObject& object) { return object.kind == mdb::ObjectKind::kForm; }

StoredDesign readDesign(const Source& source, const mdb::CatalogObject& object) {
  const auto container = isForm(object) ? vba::Container::kForms : vba::Container::kReports;
  try {
    return readStoredDesign(*source.objects.get(), container, object.name, source.ansiPage,
                            source.codePage);
  } catch (const mdb::Error& error) {
    throw VbError(kErrRefused, source.text("Its design cannot be read: " + error.message() + "."));
  }
}

// The module that the project keeps of the code behind a form or report.
std::string moduleBehind(const mdb::CatalogObject& object) {
  return (isForm(object) ? "Form_" : "Report_") + object.name;
}

// A form or report: its design, and the code behind it. Databases have thousands of them, so what
// waits for them to be opened is kept small.
DesignModel designModel(DatabaseModel& model, const SourceRef& source,
                        const mdb::CatalogObject& object) {
  DesignModel design = lazyDesign(model, source->text(object.name),
                                  isForm(object) ? DesignKind::kForm : DesignKind::kReport,
                                  [source, &object] { return readDesign(*source, object); });
  design.module =
      Lazy<std::optional<std::string>>([source, &object]() -> std::optional<std::string> {
        const std::string module = moduleBehind(object);
        if (source->project.get().find(module) == nullptr) return std::nullopt;
        return codeText(*source, module);
      });
  design.countOfLines = Lazy<std::optional<std::int32_t>>(
      [source, &object] { return codeLines(*source, moduleBehind(object)); });
  return design;
}

ModuleModel moduleModel(const SourceRef& source, const mdb::CatalogObject& object) {
  ModuleModel module;
  module.name = source->text(object.name);
  module.type = Lazy<std::int32_t>([source, name = object.name] {
    const vba::Module* found = source->project.get().find(name);
    return found != nullptr && found->kind != vba::ModuleKind::kStandard ? 1 : 0;
  });
  module.text = Lazy<std::string>([source, name = object.name] { return codeText(*source, name); });
  module.countOfLines = Lazy<std::optional<std::int32_t>>(
      [source, name = object.name] { return codeLines(*source, name); });
  return module;
}

std::vector<MacroAction> readActions(const Source& source, const std::string& name) {
  return source.reading([&] {
    return mdb::inContext("macro", name, [&] {
      const vba::ObjectTree& objects = *source.objects.get();
      const vba::StoredObject* const stored = objects.find(vba::Container::kMacros, name);
      if (stored == nullptr) mdb::raiseDamaged("it has no design");
      const auto blob = objects.stream(*stored, "Blob");
      return readMacroBlob(blob.value_or(Bytes()), source.ansiPage.get(), source.codePage);
    });
  });
}

MacroModel macroModel(const SourceRef& source, const mdb::CatalogObject& object) {
  MacroModel macro;
  macro.name = source->text(object.name);
  macro.actions = Lazy<std::vector<MacroAction>>(
      [source, name = object.name] { return readActions(*source, name); });
  return macro;
}

void addAccessObjects(const SourceRef& source, DatabaseModel& model) {
  for (const auto& object : source->database.forms())
    model.forms.add(designModel(model, source, object));
  for (const auto& object : source->database.reports())
    model.reports.add(designModel(model, source, object));
  for (const auto& object : source->database.macros()) model.macros.add(macroModel(source, object));
  for (const auto& object : source->database.modules())
    model.modules.add(moduleModel(source, object));
}

}  // namespace

std::unique_ptr<DatabaseModel> makeMdbModel(mdb::Database database, const CodePage& codePage) {
  auto model = std::make_unique<DatabaseModel>(codePage);
  const auto source = std::make_shared<const Source>(std::move(database), codePage);
  model->version = source->database.version();
  for (const mdb::Property& property : source->database.databaseProperties())
    model->properties.set(model->names, model->names.intern(source->text(property.name)),
                          source->value(property.value));
  for (const auto& table : source->database.tables()) model->tables.add(tableModel(source, table));
  for (const auto& query : source->database.queries())
    model->queries.add(queryModel(source, query));
  for (const mdb::Relation& relation : source->database.relations()) {
    RelationModel added{source->text(relation.name),
                        source->text(relation.table),
                        source->text(relation.foreignTable),
                        {}};
    for (const mdb::RelationField& field : relation.fields)
      added.fields.push_back({source->text(field.name), source->text(field.foreignName)});
    model->relations.add(std::move(added));
  }
  addAccessObjects(source, *model);
  return model;
}

}  // namespace tarrowin
