// The entries of a recording taken apart into parts with properties.
#include "cli/compared_source.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <utility>

#include "access/database_source.h"
#include "access/macro/macro_module.h"
#include "cli/exit_status.h"

namespace tarrowin {

namespace {

constexpr const char* kOpenError = "(cannot be opened)";
constexpr const char* kText = "(text)";

ObjectFacts unreadable(const VbError& error) {
  ObjectFacts facts;
  facts.properties[kOpenError] = recordError(error);
  return facts;
}

std::vector<std::string> collectionNames(const RecordedObject& database, const char* collection) {
  std::vector<std::string> names;
  database.forEach(collection,
                   [&names](const RecordedObject& item) { names.push_back(item.text("Name")); });
  return names;
}

bool isAccessOwn(std::string_view name) {
  return name.starts_with("MSys") || name.starts_with('~');
}

// Gives names that occur several times a number from the second on.
class Labels {
 public:
  std::string next(const std::string& label) {
    const int count = ++counts_[label];
    return count == 1 ? label : label + " (" + std::to_string(count) + ")";
  }

 private:
  std::map<std::string, int> counts_;
};

void addControls(Json& controls, ObjectFacts& facts) {
  Labels labels;
  for (Json& control : controls) {
    Json& properties = control["properties"];
    properties["(type)"] = control["type"];
    properties["(parent)"] = control.value("parent", "");
    facts.parts.push_back(
        {labels.next("control " + control["name"].get<std::string>()), std::move(properties)});
  }
}

ObjectFacts designFacts(Json entry) {
  ObjectFacts facts;
  if (entry.contains("openError")) {
    facts.properties[kOpenError] = entry["openError"];
    return facts;
  }
  facts.properties = std::move(entry["properties"]);
  if (entry.contains("exportError")) facts.properties["(module)"] = entry["exportError"];
  if (!entry["module"].is_null()) facts.properties["(module)"] = std::move(entry["module"]);
  for (Json& section : entry["sections"])
    facts.parts.push_back(
        {"section " + section["number"].dump(), std::move(section["properties"])});
  if (entry.contains("groupLevels")) {
    int level = 0;
    for (Json& properties : entry["groupLevels"])
      facts.parts.push_back({"group level " + std::to_string(level++), std::move(properties)});
  }
  addControls(entry["controls"], facts);
  return facts;
}

ObjectFacts moduleFacts(const Json& entry) {
  ObjectFacts facts;
  if (entry.contains("openError")) {
    facts.properties[kOpenError] = entry["openError"];
    return facts;
  }
  facts.properties["(type)"] = entry["type"];
  facts.properties[kText] = entry.contains("text") ? entry["text"] : entry["exportError"];
  return facts;
}

}  // namespace

ComparedSource::ComparedSource(const Environment& environment, const std::string& source)
    : opened_(environment, CodePage(CodePage::kUtf8), source),
      application_(opened_.main().state.gappAccess.object()),
      database_(application_.object("CurrentDb")),
      designs_(application_, database_) {}

std::vector<std::string> ComparedSource::names(FactKind kind) {
  std::vector<std::string> names;
  switch (kind) {
    case FactKind::kTable:
      names = collectionNames(database_, "TableDefs");
      break;
    case FactKind::kRelation:
      names = collectionNames(database_, "Relations");
      break;
    case FactKind::kQuery:
      names = collectionNames(database_, "QueryDefs");
      break;
    case FactKind::kForm:
      names = designs_.documentNames("Forms");
      break;
    case FactKind::kReport:
      names = designs_.documentNames("Reports");
      break;
    case FactKind::kMacro:
      names = designs_.documentNames("Scripts");
      break;
    case FactKind::kModule:
      names = designs_.documentNames("Modules");
      break;
  }
  std::erase_if(names, isAccessOwn);
  return names;
}

ObjectFacts ComparedSource::facts(FactKind kind, const std::string& name) {
  try {
    switch (kind) {
      case FactKind::kTable:
        return tableFacts(name);
      case FactKind::kRelation:
        return relationFacts(name);
      case FactKind::kQuery: {
        const RecordedObject query = database_.object("QueryDefs", Value(name));
        ObjectFacts facts;
        facts.properties["SQL"] = recordReading([&query] { return query.get("SQL"); });
        return facts;
      }
      case FactKind::kForm:
        return designFacts(designs_.form(name));
      case FactKind::kReport:
        return designFacts(designs_.report(name));
      case FactKind::kMacro:
        return macroFacts(name);
      case FactKind::kModule:
        return moduleFacts(designs_.module(name));
    }
    return {};
  } catch (const VbError& error) {
    return unreadable(error);
  }
}

ObjectFacts ComparedSource::tableFacts(const std::string& name) const {
  const RecordedObject table = database_.object("TableDefs", Value(name));
  ObjectFacts facts;
  facts.properties["Connect"] = recordReading([&table] { return table.get("Connect"); });
  table.object("Fields");  // raises what keeps them from being read
  Labels labels;
  table.forEach("Fields", [&](const RecordedObject& field) {
    facts.parts.push_back({labels.next("field " + field.text("Name")),
                           {{"Type", field.number("Type")}, {"Size", field.number("Size")}}});
  });
  return facts;
}

ObjectFacts ComparedSource::relationFacts(const std::string& name) const {
  const RecordedObject relation = database_.object("Relations", Value(name));
  ObjectFacts facts;
  facts.properties["Table"] = relation.text("Table");
  facts.properties["ForeignTable"] = relation.text("ForeignTable");
  Labels labels;
  relation.forEach("Fields", [&](const RecordedObject& field) {
    facts.parts.push_back(
        {labels.next("field " + field.text("Name")), {{"ForeignName", field.text("ForeignName")}}});
  });
  return facts;
}

// As the module that Access makes of it.
ObjectFacts ComparedSource::macroFacts(const std::string& name) {
  ObjectFacts facts;
  const MacroModel* macro = tree().macros.find(name, tree().folding);
  if (!macro) return facts;
  if (macro->openError) macro->openError->raise(name);
  facts.properties[kText] =
      macro->module ? *macro->module : macroModuleText(name, macro->actions.get());
  return facts;
}

const DatabaseModel& ComparedSource::tree() {
  if (!tree_) {
    try {
      tree_ = openDatabaseFile(opened_.path(), CodePage(CodePage::kUtf8));
    } catch (const OpenFailure& failure) {
      throw CommandFailure(opened_.path() + ": " + failure.reason());
    }
  }
  return *tree_;
}

}  // namespace tarrowin
