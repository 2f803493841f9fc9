// The summary for a person and the same data for a program.
#include "cli/list_command.h"

#include <string_view>
#include <utility>
#include <vector>

#include "cli/console.h"
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

void printForProgram(Console& console, const std::string& path, const std::string& version,
                     const std::vector<Heading>& found) {
  Json answer;
  answer["database"] = path;
  answer["version"] = version;
  for (const Heading& heading : found) answer[std::string(heading.key)] = heading.names;
  console.print(jsonText(answer, 2) + "\n");
}

void printForPerson(Console& console, const std::string& path, const std::string& version,
                    const std::vector<Heading>& found) {
  console.print(path + " (Access " + version + ")\n");
  for (const Heading& heading : found) {
    console.print("\n" + std::string(heading.title) + ": " + std::to_string(heading.names.size()) +
                  "\n");
    for (const std::string& name : heading.names) console.print("  " + name + "\n");
  }
}

}  // namespace

ExitStatus listSource(const Environment& environment, const ListOptions& options) {
  OpenedSource opened(environment, CodePage(CodePage::kUtf8), options.source);
  const std::string version =
      toText(opened.main().state.mdbCurr.Properties()("AccessVersion").value());
  const std::vector<Heading> found = headings(opened.main());
  const auto print = options.json ? printForProgram : printForPerson;
  print(environment.console, opened.path(), version, found);
  return ExitStatus::kDone;
}

}  // namespace tarrowin
