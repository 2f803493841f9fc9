// libFuzzer target: any bytes as a recording; what can be read is walked through and printed again.
// Seeds: small recordings. Run with -timeout=5.
#include <cstddef>
#include <cstdint>

#include <nlohmann/json.hpp>

#include "access/model/dao_objects.h"
#include "access/model/design_objects.h"
#include "access/recorder_dao.h"
#include "access/snapshot/snapshot_document.h"
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
  } catch (const SnapshotError&) {
  }
  return 0;
}
