// Database files with many forms, as Access 2002 and later keep them, for the benchmarks.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace tarrowin {

struct FormDatabase {
  std::size_t forms = 0;
  // Of each design: 19 as Access 2000 writes it, compact; 20 as Access 2002 and later do.
  std::uint16_t designVersion = 0;
};

// As many controls as a form of ordinary size has.
inline constexpr std::size_t kControlsOfEachForm = 40;

// Writes the file and returns its size in bytes.
std::size_t writeFormDatabase(const std::string& path, const FormDatabase& database);

}  // namespace tarrowin
