// The two fields of a box that shows one column of a table and stores another.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/main_object.h"

namespace tarrowin {

// "bound field,list field": of the table, the names of the field number bound and of the one behind
// it, counted from 1. Nothing stands behind the comma for the last field, and the text is empty for
// a number that the table lacks. The source is a table's name, or a text with the name behind
// "FROM" in upper case. Raises what DAO raises, 3265 for a source that is no table.
std::string GetRowSourceFields(MainObject& main, std::string_view source, std::int32_t bound);

}  // namespace tarrowin
