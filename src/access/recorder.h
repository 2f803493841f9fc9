// Writes down what an Access application with an open database answers: the recording that the
// program opens wherever it opens an .mdb.
#pragma once

#include <nlohmann/json_fwd.hpp>

#include "core/access_object.h"

namespace tarrowin {

// The recording (UTF-8 JSON, keys in the order of the format) of the application's current
// database. It is a walk over the late-bound interface alone, so any implementation can be
// recorded; texts are taken for UTF-8, so the host should run under CodePage::kUtf8. Errors met
// while reading become recorded errors. A database that itself came from a recording gives that
// document, unknown keys included. Raises 91 when no database is open.
nlohmann::ordered_json recordSnapshot(const ObjectRef& application);

// The same walk, also over a database that came from a recording.
nlohmann::ordered_json recordByWalking(const ObjectRef& application);

}  // namespace tarrowin
