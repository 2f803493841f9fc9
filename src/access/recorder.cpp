// The walk over an application: the database first, then what it takes DoCmd to see.
#include "access/recorder.h"

#include <nlohmann/json.hpp>

#include "access/recorder_dao.h"
#include "access/recorder_design.h"
#include "access/snapshot/json_tree.h"
#include "access/snapshot/snapshot_document.h"

namespace tarrowin {

nlohmann::ordered_json recordByWalking(const ObjectRef& application) {
  const RecordedObject app(application);
  const RecordedObject database = app.object("CurrentDb");
  nlohmann::ordered_json document;
  document["snapshot"] = 1;
  document["database"] = recordDatabase(database);
  document["application"] = recordApplication(app);
  document["tables"] = recordTables(database);
  document["queries"] = recordQueries(database);
  nlohmann::ordered_json relations = recordRelations(database);
  DesignRecorder designs(app, database);
  nlohmann::ordered_json forms = designs.forms();
  nlohmann::ordered_json reports = designs.reports();
  document["recordsets"] = recordRecordsets(database, designs.recordSources());
  document["relations"] = std::move(relations);
  document["forms"] = std::move(forms);
  document["reports"] = std::move(reports);
  document["macros"] = recordMacros(database);
  document["modules"] = designs.modules();
  return document;
}

nlohmann::ordered_json recordSnapshot(const ObjectRef& application) {
  if (!application) raise(kErrObjectNotSet);
  std::string text;
  try {
    text = toText(application->get("RecordedDocument"));
  } catch (const VbError& error) {
    if (error.number() != kErrNoSuchMember) throw;
    return recordByWalking(application);
  }
  try {
    return parseSnapshotDocument(text);
  } catch (const SnapshotError& error) {
    // It could be opened, so it was changed since.
    throw VbError(kErrAutomationFail, error.message());
  }
}

}  // namespace tarrowin
