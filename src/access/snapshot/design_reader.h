// Reads the forms and reports of a recording.
#pragma once

#include "access/model/database_model.h"
#include "access/snapshot/snapshot_values.h"

namespace tarrowin {

// One entry of "forms" or "reports". Throws SnapshotError, also for a control whose parent does not
// exist, is not the only one of its name, or stands inside the control itself.
DesignModel readDesign(JsonValue entry, const SnapshotValues& values, const CaseFolding& folding);

}  // namespace tarrowin
