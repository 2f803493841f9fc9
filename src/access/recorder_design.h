// The parts of a recording that take opening an object in design view: forms, reports, modules.
#pragma once

#include <string>
#include <unordered_set>
#include <vector>

#include <nlohmann/json_fwd.hpp>

#include "access/recorded_object.h"

namespace tarrowin {

// Opens each object hidden, reads it, and closes it without saving. Texts of modules go through a
// temporary file, as Access exports them.
class DesignRecorder {
 public:
  DesignRecorder(const RecordedObject& application, const RecordedObject& database);

  nlohmann::ordered_json forms();
  nlohmann::ordered_json reports();
  nlohmann::ordered_json modules();

  // The names of what the container holds: "Forms", "Reports", "Modules", "Scripts".
  std::vector<std::string> documentNames(std::string_view container) const;
  // One entry; with an "openError" alone for an object that cannot be opened.
  nlohmann::ordered_json form(const std::string& name);
  nlohmann::ordered_json report(const std::string& name);
  nlohmann::ordered_json module(const std::string& name);

  // The SQL texts met so far that forms, reports and lists take their records from, each once.
  const std::vector<std::string>& recordSources() const { return recordSources_; }

 private:
  struct Kind;
  static const Kind kFormKind, kReportKind;
  nlohmann::ordered_json openedDesign(const Kind& kind, const std::string& name);
  nlohmann::ordered_json design(const Kind& kind, const std::string& name);
  nlohmann::ordered_json sections(const RecordedObject& design, int count) const;
  nlohmann::ordered_json groupLevels(const RecordedObject& design) const;
  nlohmann::ordered_json control(const RecordedObject& control);
  nlohmann::ordered_json openedModule(const std::string& name);
  void noteRecordSource(const nlohmann::ordered_json& properties, const char* property);
  bool isTableOrQuery(const std::string& name) const;
  // What DoCmd.OutputTo writes for the module.
  std::string exportModule(const std::string& moduleName) const;

  RecordedObject application_, database_;
  std::vector<std::string> recordSources_;
  std::unordered_set<std::string> known_;
};

}  // namespace tarrowin
