// JSON as the program writes it: UTF-8, keys in the order given.
#pragma once

#include <string>

#include <nlohmann/json.hpp>

namespace tarrowin {

using Json = nlohmann::ordered_json;

// One line without an end, or indented by the given number of blanks. Bytes that are no UTF-8
// become the replacement character.
inline std::string jsonText(const Json& value, int indent = -1) {
  return value.dump(indent, ' ', false, Json::error_handler_t::replace);
}

}  // namespace tarrowin
