// libFuzzer target: any bytes as a recording; what can be read is walked through and printed again,
// and new objects are added to its text, which must then be read with them.
// Seeds: small recordings. Run with -timeout=5.
#include <cstddef>
#include <cstdint>

#include <nlohmann/json.hpp>

#include "access/model/dao_objects.h"
#include "access/model/design_objects.h"
#include "access/model/new_control.h"
#include "access/model/new_form.h"
#include "access/recorder_dao.h"
#include "access/snapshot/object_writer.h"
#include "access/snapshot/snapshot_document.h"
#include "access/snapshot/snapshot_edit.h"
#include "access/snapshot/snapshot_reader.h"

namespace {

using namespace tarrowin;

void walkDesign(const std::shared_ptr<Session>& session, const DesignModel& design, bool isReport) {
  const RecordedObject object(makeDesign(session, std::make_shared<OpenDesign>(design, isReport)));
  recordProperties(object);
  object.forEach("Controls", [](const RecordedObject& control) {
    recordProperties(control);
    for (const char* member :
         {"Name", "Parent", "Controls", "Pages", "Form", "Report", "Section"}) {
      try {
        control.get(member);
      } catch (const VbError&) {
      }
    }
  });
  for (std::int32_t number = 0; number < 5; ++number) {
    try {
      recordProperties(object.object("Section", Value(number)));
      recordProperties(object.object("GroupLevel", Value(number)));
    } catch (const VbError&) {
    }
  }
}

// The texts of a new form like that one, with a control of each type, and of a new module.
std::string newFormEntry(Session& session, const DesignModel& form) {
  const std::shared_ptr<OpenDesign> open = createForm(session, form.name);
  for (std::int32_t type = 99; type <= 130; ++type) {
    try {
      NewControl wanted;
      wanted.type = type;
      addControl(*open, session.tree(), wanted);
    } catch (const VbError&) {
    }
  }
  return formEntry(open->design(), session.model());
}

void addObjects(std::string_view text, Session& session) {
  const DatabaseModel& database = session.model();
  const ModuleModel module{"Added", 0, std::string("x"), {}, {}, {}};
  std::string changed =
      withEntry(text, "modules", moduleEntry(module, database.codePage), SIZE_MAX);
  std::size_t forms = database.forms.size();
  if (forms > 0) {
    try {
      changed = withEntry(changed, "forms", newFormEntry(session, database.forms[0]), SIZE_MAX);
      ++forms;
    } catch (const VbError&) {
    }
  }
  const auto again = readSnapshot(changed, database.codePage);
  if (again->modules.size() != database.modules.size() + 1 || again->forms.size() != forms)
    __builtin_trap();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  try {
    auto session = std::make_shared<Session>(readSnapshot(text, CodePage()));
    snapshotText(parseSnapshotDocument(text));
    const RecordedObject database(makeDatabaseObject(session));
    recordDatabase(database);
    recordTables(database);
    recordQueries(database);
    recordRelations(database);
    for (const DesignModel& form : session->model().forms) walkDesign(session, form, false);
    for (const DesignModel& report : session->model().reports) walkDesign(session, report, true);
    addObjects(text, *session);
  } catch (const SnapshotError&) {
  }
  return 0;
}
