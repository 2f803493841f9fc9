// libFuzzer target: any bytes as compressed data, as the directory of a project, as a container of
// Access 97, as a compound file, and as the stream of a module. The first byte chooses.
#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <utility>

#include "access/mdb/mdb_error.h"
#include "access/vba/compound_file.h"
#include "access/vba/decompress.h"
#include "access/vba/module_container.h"
#include "access/vba/module_text.h"
#include "access/vba/project_directory.h"

namespace {

using namespace tarrowin;

void readText(const Bytes& bytes) {
  const vba::ProjectDirectory directory;
  const std::string text =
      directory.page ? directory.toUtf8({reinterpret_cast<const char*>(bytes.data()), bytes.size()})
                     : std::string(bytes.begin(), bytes.end());
  vba::exportedText(text, true);
  vba::exportedText(text, false);
  vba::shownLines(text);
}

// The parts of the head that would be found by luck only are filled in.
void readCompound(Bytes bytes) {
  constexpr std::array<std::uint8_t, 8> kSignature{0xD0, 0xCF, 0x11, 0xE0, 0xA1, 0xB1, 0x1A, 0xE1};
  constexpr std::size_t kShifts = 0x1E;
  if (bytes.size() > kShifts + 4) {
    std::copy(kSignature.begin(), kSignature.end(), bytes.begin());
    bytes[kShifts] = 9;
    bytes[kShifts + 1] = 0;
    bytes[kShifts + 2] = 6;
    bytes[kShifts + 3] = 0;
  }
  const vba::CompoundFile file(std::move(bytes));
  for (const auto& entry : file.entries()) file.read(entry);
}

void read(std::uint8_t choice, const Bytes& bytes) {
  constexpr std::size_t kLimit = 1u << 20;
  switch (choice % 5) {
    case 0:
      readText(vba::decompress(bytes, kLimit));
      break;
    case 1:
      vba::readProjectDirectory(bytes);
      break;
    case 2:
      vba::readContainerEntry(bytes, "_VBA_MODULE");
      break;
    case 3:
      readCompound(bytes);
      break;
    case 4:
      if (const auto offset = vba::findCompressedSource(bytes)) {
        readText(vba::decompress(std::span(bytes).subspan(*offset), kLimit));
      }
      break;
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  try {
    read(data[0], Bytes(data + 1, data + size));
  } catch (const mdb::Error&) {
  }
  return 0;
}
