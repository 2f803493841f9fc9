// Record sources that show the rows of one table or query as they are, one for one.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tarrowin {

// The table or query that the SQL text selects columns of, and does no more: no other source, no
// condition, grouping or order, no parameters. Nothing for any other text. UTF-8.
std::optional<std::string> plainSourceOf(std::string_view sql);

}  // namespace tarrowin
