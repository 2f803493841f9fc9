// Forms, reports and modules, read in design view.
#include "access/recorder_design.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include <nlohmann/json.hpp>
#include <unistd.h>

namespace tarrowin {

using Json = nlohmann::ordered_json;

namespace {

// acForm, acReport, acModule; acSaveNo; acDesign; acFormPropertySettings; acHidden.
constexpr std::int32_t kForm = 2, kReport = 3, kModule = 5, kSaveNo = 2, kDesign = 1;
constexpr std::int32_t kPropertySettings = -1, kHidden = 1;
// Reports have the five sections of a form and two for each of ten group levels.
constexpr int kFormSections = 5, kReportSections = 25, kGroupLevels = 10;
constexpr std::string_view kExportFormat = "MS-DOS Text (*.txt)";

// A directory of its own for the texts that Access writes, gone at the end.
class TemporaryDirectory {
 public:
  TemporaryDirectory() {
    std::string path = (std::filesystem::temp_directory_path() / "tarrowin-XXXXXX").string();
    if (::mkdtemp(path.data()) == nullptr) raise(kErrPathAccess);
    path_ = path;
  }
  ~TemporaryDirectory() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TemporaryDirectory(const TemporaryDirectory&) = delete;
  TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;

  std::string file(std::string_view name) const { return (path_ / name).string(); }

 private:
  std::filesystem::path path_;
};

}  // namespace

struct DesignRecorder::Kind {
  std::int32_t objectType;
  std::string_view openMethod, collection, modulePrefix;
  int sectionCount;
};

const DesignRecorder::Kind DesignRecorder::kFormKind = {kForm, "OpenForm", "Forms", "Form_",
                                                        kFormSections};
const DesignRecorder::Kind DesignRecorder::kReportKind = {kReport, "OpenReport", "Reports",
                                                          "Report_", kReportSections};

DesignRecorder::DesignRecorder(const RecordedObject& application, const RecordedObject& database)
    : application_(application), database_(database) {}

Json DesignRecorder::forms() {
  Json result = Json::array();
  for (const std::string& name : documentNames("Forms")) result.push_back(form(name));
  return result;
}

Json DesignRecorder::reports() {
  Json result = Json::array();
  for (const std::string& name : documentNames("Reports")) result.push_back(report(name));
  return result;
}

Json DesignRecorder::modules() {
  Json result = Json::array();
  for (const std::string& name : documentNames("Modules")) result.push_back(module(name));
  return result;
}

std::vector<std::string> DesignRecorder::documentNames(std::string_view container) const {
  std::vector<std::string> names;
  database_.object("Containers", Value(container))
      .forEach("Documents", [&names](const RecordedObject& document) {
        names.push_back(document.text("Name"));
      });
  return names;
}

Json DesignRecorder::form(const std::string& name) { return openedDesign(kFormKind, name); }

Json DesignRecorder::report(const std::string& name) { return openedDesign(kReportKind, name); }

Json DesignRecorder::openedDesign(const Kind& kind, const std::string& name) {
  try {
    const RecordedObject doCmd = application_.object("DoCmd");
    if (kind.objectType == kForm)
      doCmd.call(kind.openMethod, {Value(name), Value(kDesign), Value(), Value(),
                                   Value(kPropertySettings), Value(kHidden)});
    else
      doCmd.call(kind.openMethod, {Value(name), Value(kDesign)});
    Json entry = design(kind, name);
    doCmd.call("Close", {Value(kind.objectType), Value(name), Value(kSaveNo)});
    return entry;
  } catch (const VbError& error) {
    return {{"name", name}, {"openError", recordError(error)}};
  }
}

Json DesignRecorder::design(const Kind& kind, const std::string& name) {
  const RecordedObject object = application_.object(kind.collection, Value(name));
  Json entry;
  entry["name"] = name;
  entry["properties"] = recordProperties(object);
  noteRecordSource(entry["properties"], "RecordSource");
  entry["sections"] = sections(object, kind.sectionCount);
  if (kind.objectType == kReport) entry["groupLevels"] = groupLevels(object);
  Json controls = Json::array();
  object.forEach("Controls", [&](const RecordedObject& one) { controls.push_back(control(one)); });
  entry["controls"] = std::move(controls);
  entry["module"] = nullptr;
  try {
    if (toBoolean(object.get("HasModule")))
      entry["module"] = exportModule(std::string(kind.modulePrefix) + name);
  } catch (const VbError& error) {
    entry["exportError"] = recordError(error);
  }
  return entry;
}

Json DesignRecorder::sections(const RecordedObject& design, int count) const {
  Json result = Json::array();
  for (std::int32_t number = 0; number < count; ++number) {
    try {
      const RecordedObject section = design.object("Section", Value(number));
      result.push_back({{"number", number}, {"properties", recordProperties(section)}});
    } catch (const VbError&) {
      // A section that does not exist.
    }
  }
  return result;
}

Json DesignRecorder::groupLevels(const RecordedObject& design) const {
  Json result = Json::array();
  for (std::int32_t level = 0; level < kGroupLevels; ++level) {
    try {
      result.push_back(recordProperties(design.object("GroupLevel", Value(level))));
    } catch (const VbError&) {
      break;
    }
  }
  return result;
}

Json DesignRecorder::control(const RecordedObject& control) {
  Json entry;
  entry["name"] = control.text("Name");
  entry["type"] = control.number("ControlType");
  try {
    const RecordedObject parent = control.object("Parent");
    parent.get("ControlType");  // a form or report raises: then there is nothing to note
    entry["parent"] = parent.text("Name");
  } catch (const VbError&) {
  }
  entry["properties"] = recordProperties(control);
  noteRecordSource(entry["properties"], "RowSource");
  return entry;
}

void DesignRecorder::noteRecordSource(const Json& properties, const char* property) {
  const auto found = properties.find(property);
  if (found == properties.end() || !found->is_string()) return;
  const std::string source = found->get<std::string>();
  const auto type = properties.find("RowSourceType");
  if (type != properties.end() && *type != "Table/Query") return;
  if (source.find_first_not_of(" \t\r\n") == std::string::npos || isTableOrQuery(source)) return;
  if (known_.insert(source).second) recordSources_.push_back(source);
}

bool DesignRecorder::isTableOrQuery(const std::string& name) const {
  for (const std::string_view collection : {"TableDefs", "QueryDefs"}) {
    try {
      database_.object(collection, Value(name));
      return true;
    } catch (const VbError&) {
    }
  }
  return false;
}

Json DesignRecorder::module(const std::string& name) {
  try {
    application_.object("DoCmd").call("OpenModule", {Value(name)});
    Json entry = openedModule(name);
    application_.object("DoCmd").call("Close", {Value(kModule), Value(name), Value(kSaveNo)});
    return entry;
  } catch (const VbError& error) {
    return {{"name", name}, {"openError", recordError(error)}};
  }
}

Json DesignRecorder::openedModule(const std::string& name) {
  const RecordedObject module = application_.object("Modules", Value(name));
  Json entry;
  entry["name"] = name;
  entry["type"] = module.number("Type");
  try {
    entry["text"] = exportModule(name);
  } catch (const VbError& error) {
    entry["exportError"] = recordError(error);
  }
  entry["countOfLines"] = module.number("CountOfLines");
  return entry;
}

std::string DesignRecorder::exportModule(const std::string& moduleName) const {
  const TemporaryDirectory directory;
  const std::string path = directory.file("module.txt");
  application_.object("DoCmd").call(
      "OutputTo", {Value(kModule), Value(moduleName), Value(kExportFormat), Value(path)});
  std::ifstream file(path, std::ios::binary);
  if (!file) raise(kErrFileNotFound);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

}  // namespace tarrowin
