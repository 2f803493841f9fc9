// libFuzzer target: any bytes as the text export of a macro, and as its design in a database file;
// what can be read is written as a module. The first byte chooses.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "access/macro/macro_blob.h"
#include "access/macro/macro_module.h"
#include "access/macro/macro_text.h"
#include "access/mdb/mdb_error.h"

namespace {

using namespace tarrowin;

std::vector<MacroAction> rowsOf(std::uint8_t choice, std::span<const std::uint8_t> bytes) {
  const CodePage western;
  try {
    return choice % 2 == 0 ? readMacroText(bytes, western) : readMacroBlob(bytes, western, western);
  } catch (const MacroTextError&) {
  } catch (const mdb::Error&) {
  }
  return {};
}

// Visual Basic takes no longer line and no control character.
void checkLines(std::string_view module) {
  constexpr std::size_t kMaximumLine = 1023;
  while (!module.empty()) {
    const std::size_t end = module.find("\r\n");
    if (end == std::string_view::npos || end > kMaximumLine) std::abort();
    for (const char character : module.substr(0, end))
      if (static_cast<unsigned char>(character) < ' ') std::abort();
    module.remove_prefix(end + 2);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const auto rows = rowsOf(data[0], std::span(data, size).subspan(1));
  checkLines(macroModuleText("Macro", rows));
  return 0;
}
