// One database as a tree in memory: what a recording or an .mdb file holds, in plain structs. All
// texts are in the program's code page.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "access/designs/stored_design.h"
#include "access/macro/macro_action.h"
#include "access/model/case_folding.h"
#include "access/model/lazy.h"
#include "access/model/lazy_body.h"
#include "access/model/name_table.h"
#include "access/model/named_list.h"
#include "access/model/property_bag.h"
#include "access/model/recorded.h"
#include "shared/code_page.h"

namespace tarrowin {

struct FieldModel {
  std::string name;
  std::int32_t type = 10;   // DAO's type number
  std::int32_t size = 0;    // DAO's Size: characters of a text, bytes of anything else
  std::string sourceTable;  // empty for a computed field; a table's own fields have its name
  std::string sourceField;  // the name in that table
};
using FieldList = std::vector<FieldModel>;

// Walks the rows of a table.
class RowCursor {
 public:
  virtual ~RowCursor() = default;
  // To the next row, at first to the first one; false when there is none left.
  virtual bool next() = 0;
  // The cell of the current row under the field at the 0-based position.
  virtual Recorded<Value> cell(std::size_t field) const = 0;
};

struct TableModel {
  std::string name;
  std::string connect;  // DAO's Connect; empty for a table of the file itself
  Lazy<FieldList> fields;
  std::function<std::unique_ptr<RowCursor>()> openRows;  // empty: no rows are known
};

struct ParameterModel {
  std::string name;
  std::int32_t type = 10;  // DAO's type number
};

struct QueryModel {
  std::string name;
  Lazy<Recorded<std::string>> sql;
  // The declared parameters, or all of them. What is only used in the text and not declared is then
  // found by its analysis.
  Lazy<std::vector<ParameterModel>> parameters;
  bool parametersAreComplete = true;
  std::optional<FieldList> fields;  // absent: what the analysis of the SQL text finds
  std::optional<RecordedError> recordsetError;
  std::optional<std::int32_t> type;          // DAO's QueryDef.Type, where the source tells
  Lazy<std::optional<std::string>> connect;  // likewise
};

// What OpenRecordset gave for one source text.
struct RecordsetModel {
  std::optional<RecordedError> error;
  FieldList fields;
};

struct RelationFieldModel {
  std::string name, foreignName;
};

struct RelationModel {
  std::string name, table, foreignTable;
  std::vector<RelationFieldModel> fields;
};

struct SectionModel {
  std::int32_t number = 0;
  PropertyBag properties;
};

// A damaged design may have controls inside themselves, or in circles.
struct ControlModel {
  static constexpr std::size_t kNoParent = SIZE_MAX;
  std::string name;
  std::int32_t type = 0;           // ControlType
  std::size_t parent = kNoParent;  // position of the control that holds this one
  PropertyBag properties;
};

// What stands in the design of a form or a report.
struct DesignBody {
  PropertyBag properties;
  std::vector<SectionModel> sections;
  std::vector<ControlModel> controls;
  std::vector<PropertyBag> groupLevels;
  std::optional<Understood> understood;  // absent: all of it, as in a recording
};

struct DesignModel {
  std::string name;
  LazyBody<DesignBody> body;  // a load that fails raises what opening the object raises
  Lazy<std::optional<std::string>> module;  // the text of its class module
  Lazy<std::optional<std::int32_t>> countOfLines;
  std::optional<RecordedError> openError, exportError;
};

struct MacroModel {
  std::string name;
  std::optional<std::string> module;  // the text of the module that Access makes of the macro
  Lazy<std::vector<MacroAction>> actions;
  std::optional<RecordedError> openError;
};

struct ModuleModel {
  std::string name;
  Lazy<std::int32_t> type;  // 0 standard module, else class module
  Lazy<std::string> text;
  Lazy<std::optional<std::int32_t>> countOfLines;  // absent: counted in the text
  std::optional<RecordedError> openError, exportError;
};

// The errors that operations of the application raise.
struct ApplicationErrors {
  std::optional<RecordedError> OpenCurrentDatabase, CloseCurrentDatabase, Quit, Visible, CurrentDb;
};

class ObjectKeeper;

struct DatabaseModel {
  explicit DatabaseModel(const CodePage& page) : codePage(page), folding(page), names(folding) {}

  CodePage codePage;
  CaseFolding folding;
  NameTable names;

  std::string path;        // of the file, as the disk knows it
  bool recording = false;  // the file is a recording

  std::string name;  // Database.Name
  std::string version;
  PropertyBag properties;
  std::vector<PropertyBag> references;
  std::shared_ptr<const ApplicationErrors> errors = std::make_shared<ApplicationErrors>();

  NamedList<TableModel> tables;
  NamedList<QueryModel> queries;
  std::unordered_map<std::string, RecordsetModel> recordsets;  // by their exact source
  NamedList<RelationModel> relations;
  NamedList<DesignModel> forms, reports;
  NamedList<MacroModel> macros;
  NamedList<ModuleModel> modules;
  // Properties of a new control by ControlType.
  std::map<std::int32_t, PropertyBag> controlTemplates;

  // Without one, new objects last as long as the database is open.
  std::shared_ptr<ObjectKeeper> keeper;
};

// DAO's Size of a field of that type where nothing else is known: 4 for a Long, 255 for a Text.
std::int32_t usualSizeOfType(std::int32_t daoType);

// Lines of a module text, ended by CR LF or LF; a last line needs no end.
std::int32_t countLines(std::string_view text);

}  // namespace tarrowin
