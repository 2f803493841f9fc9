// The summary for a person and the same data for a program.
#include "cli/list_command.h"

#include <string_view>
#include <utility>
#include <vector>

#include "access/database_source.h"
#include "cli/console.h"
#include "cli/design_detail.h"
#include "cli/json_text.h"
#include "cli/open_source.h"

namespace tarrowin {

namespace {

struct Heading {
  std::string_view key;    // in JSON
  std::string_view title;  // for a person
  std::vector<std::string> names;
};

// Tables of the engine itself and of unfinished work.
bool isInternalTable(std::string_view name) {
  return name.starts_with("MSys") || name.starts_with('~');
}

std::vector<std::string> tableNames(const Database& database) {
  std::vector<std::string> names;
  const Collection<TableDef> tables = database.TableDefs();
  const std::int32_t count = tables.Count();
  for (std::int32_t i = 0; i < count; ++i) {
    std::string name = tables(i).Name();
    if (!isInternalTable(name)) names.push_back(std::move(name));
  }
  return names;
}

std::vector<std::string> itemTexts(const MainWindow& window, ObjectList list) {
  std::vector<std::string> texts;
  for (const ListItem& item : window.list(list)) texts.push_back(item.text);
  return texts;
}

std::vector<Heading> headings(const MainObject& main) {
  const MainWindow& window = main.window;
  return {{"queries", "Queries", itemTexts(window, ObjectList::kQueries)},
          {"forms", "Forms", itemTexts(window, ObjectList::kForms)},
          {"reports", "Reports", itemTexts(window, ObjectList::kReports)},
          {"macros", "Macros", itemTexts(window, ObjectList::kMacros)},
          {"modules", "Modules", itemTexts(window, ObjectList::kModules)},
          {"tables", "Tables", tableNames(main.state.mdbCurr)}};
}

// What is known of each object of a heading.
struct DetailedHeading {
  std::string_view key, title;
  std::vector<ObjectDetail> objects;
  std::string (*described)(const ObjectDetail&);
};

std::vector<DetailedHeading> detailedHeadings(const std::string& path) {
  try {
    const auto tree = openDatabaseFile(path, CodePage(CodePage::kUtf8));
    return {{"forms", "Forms", designDetails(tree->forms), describedDesign},
            {"reports", "Reports", designDetails(tree->reports), describedDesign},
            {"macros", "Macros", macroDetails(tree->macros), describedMacro}};
  } catch (const OpenFailure& failure) {
    throw CommandFailure(path + ": " + failure.reason());
  }
}

Json shareJson(std::size_t known, std::size_t all) { return {{"known", known}, {"all", all}}; }

Json understoodJson(const Understood& counts) {
  return {{"controls", shareJson(counts.controlsKnown, counts.controls)},
          {"properties", shareJson(counts.propertiesKnown, counts.properties)}};
}

Json detailJson(const DetailedHeading& heading, const ObjectDetail& object) {
  Json entry = {{"name", object.name}};
  if (!object.problem.empty())
    entry["problem"] = object.problem;
  else if (heading.described == describedMacro)
    entry["actions"] = object.actions;
  else if (object.understood)
    entry["understood"] = understoodJson(*object.understood);
  else
    entry["complete"] = true;
  return entry;
}

void printForProgram(Console& console, const std::string& path, const std::string& version,
                     const std::vector<Heading>& found,
                     const std::vector<DetailedHeading>& details) {
  Json answer;
  answer["database"] = path;
  answer["version"] = version;
  for (const Heading& heading : found) answer[std::string(heading.key)] = heading.names;
  for (const DetailedHeading& heading : details) {
    Json& list = answer["detail"][std::string(heading.key)] = Json::array();
    for (const ObjectDetail& object : heading.objects) list.push_back(detailJson(heading, object));
  }
  console.print(jsonText(answer, 2) + "\n");
}

void printForPerson(Console& console, const std::string& path, const std::string& version,
                    const std::vector<Heading>& found,
                    const std::vector<DetailedHeading>& details) {
  console.print(path + " (Access " + version + ")\n");
  for (const Heading& heading : found) {
    console.print("\n" + std::string(heading.title) + ": " + std::to_string(heading.names.size()) +
                  "\n");
    for (const std::string& name : heading.names) console.print("  " + name + "\n");
  }
  if (details.empty()) return;
  console.print("\nUnderstood of the designs\n");
  for (const DetailedHeading& heading : details) {
    if (heading.objects.empty()) continue;
    console.print("\n" + std::string(heading.title) + "\n");
    for (const ObjectDetail& object : heading.objects)
      console.print("  " + object.name + ": " + heading.described(object) + "\n");
    const Understood sum = sumOf(heading.objects);
    if (sum.properties > 0 || sum.controls > 0)
      console.print("  together: " + describedDesign({{}, {}, sum, 0}) + "\n");
  }
}

}  // namespace

ExitStatus listSource(const Environment& environment, const ListOptions& options) {
  OpenedSource opened(environment, CodePage(CodePage::kUtf8), options.source);
  const std::string version =
      toText(opened.main().state.mdbCurr.Properties()("AccessVersion").value());
  const std::vector<Heading> found = headings(opened.main());
  std::vector<DetailedHeading> details;
  if (options.detail) details = detailedHeadings(opened.path());
  const auto print = options.json ? printForProgram : printForPerson;
  print(environment.console, opened.path(), version, found, details);
  return ExitStatus::kDone;
}

}  // namespace tarrowin
