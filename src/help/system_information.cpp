// The facts, asked of the operating system each time.
#include "help/system_information.h"

#include <cstdint>
#include <string>

#include <sys/utsname.h>
#include <unistd.h>

#include "help/about.h"

namespace tarrowin {

namespace {

std::string operatingSystem() {
  utsname names{};
  if (uname(&names) != 0) return "unknown";
  return std::string(names.sysname) + " " + names.release + " (" + names.machine + ")";
}

// Physical memory in MiB.
std::string memory() {
  constexpr std::int64_t kMebibyte = 1024 * 1024;
  const std::int64_t pages = sysconf(_SC_PHYS_PAGES);
  const std::int64_t pageSize = sysconf(_SC_PAGESIZE);
  if (pages <= 0 || pageSize <= 0) return "unknown";
  return std::to_string(pages * (pageSize / 1024) / (kMebibyte / 1024)) + " MB";
}

}  // namespace

std::string systemInformation() {
  return "Program: Tarrowin\r\n"
         "Version: " +
         programVersion() +
         "\r\n"
         "Operating system: " +
         operatingSystem() +
         "\r\n"
         "Memory: " +
         memory();
}

}  // namespace tarrowin
