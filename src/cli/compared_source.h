// One side of a comparison: a database, asked object by object.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "access/model/database_model.h"
#include "access/recorder_design.h"
#include "cli/object_facts.h"
#include "cli/open_source.h"

namespace tarrowin {

class ComparedSource {
 public:
  // Opens the source. Throws CommandFailure where it cannot be used.
  ComparedSource(const Environment& environment, const std::string& source);

  const std::string& path() const { return opened_.path(); }
  // Without what Access keeps for itself: tables "MSys...", and objects whose name starts with "~".
  std::vector<std::string> names(FactKind kind);
  // An object that cannot be opened or read has the error as its only property.
  ObjectFacts facts(FactKind kind, const std::string& name);

 private:
  ObjectFacts tableFacts(const std::string& name) const;
  ObjectFacts relationFacts(const std::string& name) const;
  ObjectFacts macroFacts(const std::string& name);
  // The tree behind the source: macros are shown by no other means.
  const DatabaseModel& tree();

  OpenedSource opened_;
  RecordedObject application_, database_;
  DesignRecorder designs_;
  std::unique_ptr<DatabaseModel> tree_;
};

}  // namespace tarrowin
