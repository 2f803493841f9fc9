// A head of eight bytes, then entries: u8 length of the name, name, u32 length, bytes.
// See module_container.h.
#include "access/vba/module_container.h"

#include <string>

#include "access/mdb/byte_view.h"
#include "access/mdb/damage.h"
#include "access/vba/wide_text.h"

namespace tarrowin::vba {
namespace {

constexpr std::uint32_t kSignature = 0x00041269;
constexpr std::size_t kHeadSize = 8;

}  // namespace

Bytes readContainerEntry(const Bytes& container, std::string_view name) {
  const mdb::ByteView view(container, {"module container"});
  if (view.u32(0) != kSignature) mdb::raiseDamaged("the module container lacks its signature");
  std::size_t at = kHeadSize;
  while (at < view.size()) {
    const std::size_t nameSize = view.u8(at);
    const mdb::ByteView nameBytes = view.sub(at + 1, nameSize);
    at += 1 + nameSize;
    const std::size_t size = view.u32(at);
    const mdb::ByteView bytes = view.sub(at + 4, size);
    at += 4 + size;
    // The name ends in a zero.
    const std::size_t letters = nameSize < 2 ? 0 : nameSize - 2;
    if (wideText(nameBytes.sub(0, letters).bytes()) == name) {
      return Bytes(bytes.bytes().begin(), bytes.bytes().end());
    }
  }
  mdb::raiseDamaged("the module container has no entry \"" + std::string(name) + "\"");
}

}  // namespace tarrowin::vba
