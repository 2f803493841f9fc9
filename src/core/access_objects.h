// Typed wrappers over the late-bound objects of Access and DAO, so that drivers and generators
// read like the object models they speak. A wrapper holds nothing but the object; a member is
// asked for when its function is called. With no object behind it every member raises 91.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

#include "core/access_object.h"

namespace tarrowin {

// Values that the object models give their constants; they are passed as they stand here.
namespace access_constants {
// Object types of DoCmd.Close, DoCmd.SelectObject and DoCmd.OutputTo.
inline constexpr std::int32_t acForm = 2, acReport = 3, acMacro = 4, acModule = 5;
// Save options of DoCmd.Close.
inline constexpr std::int32_t acSavePrompt = 0, acSaveYes = 1, acSaveNo = 2;
// Views of DoCmd.OpenForm and DoCmd.OpenReport.
inline constexpr std::int32_t acDesign = 1, acFormDS = 3, acViewDesign = 1;
// Data mode and window mode of DoCmd.OpenForm.
inline constexpr std::int32_t acFormPropertySettings = -1, acHidden = 1;
// Commands of DoCmd.RunCommand.
inline constexpr std::int32_t acCmdConvertMacrosToVisualBasic = 279, acCmdWindowHide = 2;
// Application.Quit.
inline constexpr std::int32_t acQuitSaveAll = 1;
// Type of OpenRecordset.
inline constexpr std::int32_t dbOpenDynaset = 2;
// Control.ControlType of a page break.
inline constexpr std::int32_t acPageBreak = 118;
}  // namespace access_constants

// Any object: members by name. The base of every wrapper.
class LateBound {
 public:
  LateBound() = default;
  explicit LateBound(ObjectRef object) : object_(std::move(object)) {}

  explicit operator bool() const { return object_ != nullptr; }
  const ObjectRef& object() const { return object_; }

  Value get(std::string_view name) const { return target().get(name); }
  Value get(std::string_view name, std::initializer_list<Value> arguments) const {
    return target().get(name, {arguments.begin(), arguments.size()});
  }
  // With the error as a value; also when there is no object.
  Reading tryGet(std::string_view name) const {
    if (!object_) return {{}, VbError::standard(kErrObjectNotSet)};
    return object_->tryGet(name);
  }
  void put(std::string_view name, const Value& value) const { target().put(name, value); }
  Value call(std::string_view name, std::initializer_list<Value> arguments = {}) const {
    return target().call(name, {arguments.begin(), arguments.size()});
  }

  // A member assigned to a text; Null is the empty text.
  std::string text(std::string_view name) const { return joined(get(name)); }
  std::int32_t number(std::string_view name) const { return toLong(get(name)); }

 private:
  AccessObject& target() const {
    if (!object_) raise(kErrObjectNotSet);
    return *object_;
  }
  ObjectRef object_;
};

// A collection of DAO or Access; indices are 0-based, names match without regard to case.
template <class Item>
class Collection : public LateBound {
 public:
  using LateBound::LateBound;
  std::int32_t Count() const { return number("Count"); }
  void Refresh() const { call("Refresh"); }
  Item operator()(std::int32_t index) const { return Item(toObject(get("", {Value(index)}))); }
  Item operator()(std::string_view name) const { return Item(toObject(get("", {Value(name)}))); }
};

class Property : public LateBound {
 public:
  using LateBound::LateBound;
  std::string Name() const { return text("Name"); }
  Value value() const { return get("Value"); }
};

class Field : public LateBound {
 public:
  using LateBound::LateBound;
  std::string Name() const { return text("Name"); }
  std::int32_t Type() const { return number("Type"); }  // DAO type number
  std::int32_t Size() const { return number("Size"); }  // characters of a text, else bytes
  std::string SourceTable() const { return text("SourceTable"); }
};

class Parameter : public LateBound {
 public:
  using LateBound::LateBound;
  std::string Name() const { return text("Name"); }
  std::int32_t Type() const { return number("Type"); }  // DAO type number
  void setValue(const Value& value) const { put("Value", value); }
};

class Recordset : public LateBound {
 public:
  using LateBound::LateBound;
  Collection<Field> Fields() const { return Collection<Field>(toObject(get("Fields"))); }
  void Close() const { call("Close"); }
};

class QueryDef : public LateBound {
 public:
  using LateBound::LateBound;
  std::string Name() const { return text("Name"); }
  std::string SQL() const { return text("SQL"); }  // may raise 2601, 3258
  Collection<Parameter> Parameters() const {
    return Collection<Parameter>(toObject(get("Parameters")));
  }
  Recordset OpenRecordset() const { return Recordset(toObject(call("OpenRecordset"))); }
  void Close() const { call("Close"); }
};

class TableDef : public LateBound {
 public:
  using LateBound::LateBound;
  std::string Name() const { return text("Name"); }
  Collection<Field> Fields() const { return Collection<Field>(toObject(get("Fields"))); }
};

class Document : public LateBound {
 public:
  using LateBound::LateBound;
  std::string Name() const { return text("Name"); }
};

class Container : public LateBound {
 public:
  using LateBound::LateBound;
  Collection<Document> Documents() const {
    return Collection<Document>(toObject(get("Documents")));
  }
};

class RelationField : public LateBound {
 public:
  using LateBound::LateBound;
  std::string Name() const { return text("Name"); }
  std::string ForeignName() const { return text("ForeignName"); }
};

class Relation : public LateBound {
 public:
  using LateBound::LateBound;
  std::string Name() const { return text("Name"); }
  std::string Table() const { return text("Table"); }
  std::string ForeignTable() const { return text("ForeignTable"); }
  Collection<RelationField> Fields() const {
    return Collection<RelationField>(toObject(get("Fields")));
  }
};

class Database : public LateBound {
 public:
  using LateBound::LateBound;
  std::string Name() const { return text("Name"); }  // full path
  Collection<Property> Properties() const {
    return Collection<Property>(toObject(get("Properties")));
  }
  Collection<QueryDef> QueryDefs() const {
    return Collection<QueryDef>(toObject(get("QueryDefs")));
  }
  Collection<TableDef> TableDefs() const {
    return Collection<TableDef>(toObject(get("TableDefs")));
  }
  Collection<Relation> Relations() const {
    return Collection<Relation>(toObject(get("Relations")));
  }
  Container Containers(std::string_view name) const {
    return Collection<Container>(toObject(get("Containers")))(name);
  }
  Recordset OpenRecordset(std::string_view source, std::int32_t type) const {
    return Recordset(toObject(call("OpenRecordset", {Value(source), Value(type)})));
  }
};

class Module : public LateBound {
 public:
  using LateBound::LateBound;
  std::int32_t CountOfLines() const { return number("CountOfLines"); }
  std::int32_t Type() const { return number("Type"); }  // 0 standard, else class module
};

class DoCmd : public LateBound {
 public:
  using LateBound::LateBound;
  void Hourglass(bool on) const { call("Hourglass", {Value(on)}); }
  void Echo(bool on) const { call("Echo", {Value(on)}); }
  void SetWarnings(bool on) const { call("SetWarnings", {Value(on)}); }
  void Minimize() const { call("Minimize"); }
  void OpenForm(std::string_view name, std::int32_t view) const {
    call("OpenForm",
         {Value(name), Value(view), Value(), Value(),
          Value(access_constants::acFormPropertySettings), Value(access_constants::acHidden)});
  }
  void OpenReport(std::string_view name, std::int32_t view) const {
    call("OpenReport", {Value(name), Value(view)});
  }
  void OpenModule(std::string_view name) const { call("OpenModule", {Value(name)}); }
  void Close(std::int32_t type, std::string_view name, std::int32_t save) const {
    call("Close", {Value(type), Value(name), Value(save)});
  }
  void SelectObject(std::int32_t type, const Value& name, bool inDatabaseWindow) const {
    call("SelectObject", {Value(type), name, Value(inDatabaseWindow)});
  }
  void RunCommand(std::int32_t command) const { call("RunCommand", {Value(command)}); }
};

// The Access application, Application or gappAccess.
class Application : public LateBound {
 public:
  using LateBound::LateBound;
  void setVisible(bool visible) const { put("Visible", Value(visible)); }
  void OpenCurrentDatabase(std::string_view path, bool exclusive) const {
    call("OpenCurrentDatabase", {Value(path), Value(exclusive)});
  }
  void CloseCurrentDatabase() const { call("CloseCurrentDatabase"); }
  void Quit(std::int32_t option) const { call("Quit", {Value(option)}); }
  // The database; no object while none is open.
  Database CurrentDb() const { return Database(get("CurrentDb").object()); }
  DoCmd doCmd() const { return DoCmd(toObject(get("DoCmd"))); }
  LateBound Forms(std::string_view name) const {
    return LateBound(toObject(get("Forms", {Value(name)})));
  }
  LateBound Reports(std::string_view name) const {
    return LateBound(toObject(get("Reports", {Value(name)})));
  }
  // A new form, open in design view, with the properties and sections of the template.
  LateBound CreateForm(std::string_view templateName) const {
    return LateBound(toObject(call("CreateForm", {Value(), Value(templateName)})));
  }
  // A new control of the open form; ControlType and section by number, place and size in twips.
  LateBound CreateControl(std::string_view form, std::int32_t type, std::int32_t section,
                          std::string_view parent, std::int32_t left, std::int32_t top,
                          std::int32_t width, std::int32_t height) const {
    return LateBound(toObject(
        call("CreateControl", {Value(form), Value(type), Value(section), Value(parent), Value(),
                               Value(left), Value(top), Value(width), Value(height)})));
  }
  // With the default place and size.
  LateBound CreateControl(std::string_view form, std::int32_t type, std::int32_t section) const {
    return LateBound(toObject(call("CreateControl", {Value(form), Value(type), Value(section)})));
  }
  void RefreshDatabaseWindow() const { call("RefreshDatabaseWindow"); }
  Module Modules(std::string_view name) const {
    return Module(toObject(get("Modules", {Value(name)})));
  }
};

// The machine that Access runs on: starting it, and the window calls that concern it.
class AccessHost : public LateBound {
 public:
  using LateBound::LateBound;

  // The path that the user chose. A recording also knows what its application answered before
  // its database was open, so the host is told before CreateAccessApp.
  void selectDatabase(std::string_view path) const { put("SelectedDatabase", Value(path)); }
  // GetObject with errors ignored, CreateObject when that failed.
  Application CreateAccessApp(std::string_view className) const;
  // True when a main window of Access exists, which is then sent the message of a live check.
  bool IsAccessRunning() const;
  // Tells a main window of Access whose automation link is gone to end.
  void endOrphanedAccess() const;
  void holdShiftKey() const;
  void releaseShiftKey() const;
  void SendKeys(std::string_view keys) const { call("SendKeys", {Value(keys), Value(false)}); }
  void DoEvents() const { call("DoEvents"); }
  // Why the last OpenCurrentDatabase failed, for a person: the file and the reason.
  std::string openProblem() const { return text("OpenProblem"); }

 private:
  std::int32_t mainWindow() const;
};

}  // namespace tarrowin
