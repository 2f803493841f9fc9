// What a recording must hold after a session, named part by part: the notation of
// expected_database.json, told in tests/golden/README.md.
#pragma once

#include <nlohmann/json.hpp>

namespace tarrowin::test {

// Fails the running test for every named part that the database does not hold.
void expectDatabase(const nlohmann::json& expected, const nlohmann::json& database);

}  // namespace tarrowin::test
