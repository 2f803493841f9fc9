// Which pages a table's rows may stand on.
#pragma once

#include <cstdint>
#include <vector>

#include "access/mdb/data_page.h"
#include "access/mdb/page_file.h"

namespace tarrowin::mdb {

// The pages that the usage map at the address names, ascending, each once. Throws Error (kDamaged)
// when the map names pages beyond the end of the file.
std::vector<std::uint32_t> readUsageMap(const PageFile& file, RowAddress address);

}  // namespace tarrowin::mdb
