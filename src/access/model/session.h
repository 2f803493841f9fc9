// An open database: the tree, and what is open in it.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "access/model/control_index.h"
#include "access/model/database_model.h"
#include "access/record_source/record_source.h"

namespace tarrowin {

// A form or report that is open in design view. The tree itself is not touched by changes: the
// first one makes a copy, which is gone when the object is closed.
class OpenDesign {
 public:
  // Raises what reading the design raises.
  OpenDesign(const DesignModel& design, bool isReport)
      : source_(&design), design_(&design), body_(design.body.get()), isReport_(isReport) {}
  // A form that the database does not have yet, made from the form of that name.
  OpenDesign(std::unique_ptr<DesignModel> created, std::string templateName)
      : source_(created.get()),
        design_(created.get()),
        body_(created->body.get()),
        copy_(std::move(created)),
        isReport_(false),
        isNew_(true),
        templateName_(std::move(templateName)) {}

  // As stored, and as it looks now.
  const DesignModel* source() const { return source_; }
  const DesignModel& design() const { return *design_; }
  const DesignBody& body() const { return *body_; }
  bool isReport() const { return isReport_; }
  bool isNew() const { return isNew_; }
  // Empty for what is not new.
  const std::string& templateName() const { return templateName_; }
  // The copy for changes, which are to be made before anything else is asked.
  DesignModel& edit();
  DesignBody& editBody() { return edit().body.edit(); }

  bool isOpen() const { return open_; }
  // Closes it with all that is loaded in its subform controls.
  void close();

  // Of the controls as they look now: made anew after each edit().
  ControlIndex& controlIndex();
  // What the subform control at the position shows, loaded once; empty until it is set.
  std::shared_ptr<OpenDesign>& loadedIn(std::size_t control) { return loaded_[control]; }

 private:
  const DesignModel* source_;
  const DesignModel* design_;
  std::shared_ptr<const DesignBody> body_;
  std::unique_ptr<DesignModel> copy_;
  bool isReport_;
  bool isNew_ = false;
  std::string templateName_;
  bool open_ = true;
  std::optional<ControlIndex> controlIndex_;
  std::unordered_map<std::size_t, std::shared_ptr<OpenDesign>> loaded_;
};

class Session {
 public:
  explicit Session(std::unique_ptr<DatabaseModel> model);
  ~Session();

  // The tree, which lives as long as an object of it is held: DAO's objects outlive the
  // application that gave them.
  const DatabaseModel& model() const { return *model_; }
  // The tree for new objects that are not kept yet and for the names of their properties.
  DatabaseModel& tree() { return *model_; }
  bool isOpen() const { return open_; }
  // Adds the object to the database, in place of one of the same name, and to what is kept of it.
  // Raises, and adds nothing, when that cannot be saved.
  void keepForm(const DesignModel& form);
  void keepModule(ModuleModel module);
  // Closes all forms, reports and modules; nothing can be opened any more.
  void close();

  // In the order of opening.
  std::vector<std::shared_ptr<OpenDesign>> openForms, openReports;
  std::vector<const ModuleModel*> openModules;
  const MacroModel* selectedMacro = nullptr;

  // The value of a query's parameter, or nullptr while it has none.
  const Value* parameterValue(std::size_t query, std::size_t parameter) const;
  void setParameterValue(std::size_t query, std::size_t parameter, Value value);

  // The parameters of a query, recorded ones or else those that its text shows.
  const std::vector<ParameterModel>& parametersOf(std::size_t query);
  // The fields of a query: recorded, or found from its text as if every parameter had a value.
  FieldList queryFields(std::size_t query);
  // QueryDef.OpenRecordset: the same, but parameters without a value raise 3061.
  FieldList openQuery(std::size_t query);

  // The fields of a table, their source table and field filled in.
  FieldList fieldsOfTable(const TableModel& table) const;

  // Database.OpenRecordset.
  struct Opened {
    FieldList fields;
    // Empty, or giving null: no rows are known.
    std::function<std::unique_ptr<RowCursor>()> openRows;
  };
  Opened openRecordset(std::string_view source);

 private:
  class RecordSourceSchema;
  RecordSourceAnalyzer& analyzer();
  // A recordset of these fields on a query by its name or on an SQL text.
  Opened onQuery(std::string_view source, FieldList fields) const;

  std::unique_ptr<DatabaseModel> model_;
  bool open_ = true;
  std::unique_ptr<RecordSourceSchema> schema_;
  std::unique_ptr<RecordSourceAnalyzer> analyzer_;
  std::unordered_map<std::size_t, std::vector<ParameterModel>> parameters_;
  std::unordered_map<std::size_t, std::unordered_map<std::size_t, Value>> parameterValues_;
};

}  // namespace tarrowin
