// The parts of a recording that DAO and the application tell.
#pragma once

#include <string>
#include <vector>

#include <nlohmann/json_fwd.hpp>

#include "access/recorded_object.h"

namespace tarrowin {

nlohmann::ordered_json recordDatabase(const RecordedObject& database);
nlohmann::ordered_json recordApplication(const RecordedObject& application);
// Tables with their rows; the engine's own tables ("MSys...") without. Where the fields cannot be
// read, or the rows not to their end, they are left out and the error stands under "fieldsError" or
// "rowsError".
nlohmann::ordered_json recordTables(const RecordedObject& database);
nlohmann::ordered_json recordQueries(const RecordedObject& database);
nlohmann::ordered_json recordRelations(const RecordedObject& database);
nlohmann::ordered_json recordMacros(const RecordedObject& database);
// What OpenRecordset gives for each source, an error where it raises.
nlohmann::ordered_json recordRecordsets(const RecordedObject& database,
                                        const std::vector<std::string>& sources);

}  // namespace tarrowin
