// Looks into the compound file of an OLE object.
// See ole_data.h.
#include "access/design_blob/ole_data.h"

#include <cstddef>
#include <string_view>

#include "access/mdb/byte_view.h"
#include "access/mdb/mdb_error.h"
#include "access/vba/compound_file.h"

namespace tarrowin {

namespace {

constexpr std::int32_t kLinked = 0, kEmbedded = 1, kNoObject = 3;

// The stream of OLE itself: a version, then flags, of which bit 0 stands for a link.
constexpr std::string_view kOleStream =
    "\x01"
    "Ole";
constexpr std::size_t kFlagsAt = 4;
constexpr std::uint32_t kLinkFlag = 1;

bool isLinked(std::span<const std::uint8_t> oleData) {
  const mdb::ByteView view(oleData, {"OLE object"});
  const auto file = view.sub(sizeof(std::uint32_t), view.u32(0)).bytes();
  const vba::CompoundFile object(Bytes(file.begin(), file.end()));
  for (const vba::CompoundFile::Entry& entry : object.entries()) {
    if (entry.folder || entry.parent != vba::CompoundFile::kNone || entry.name != kOleStream)
      continue;
    const Bytes stream = object.read(entry);
    return (mdb::ByteView(stream, {"OLE stream"}).u32(kFlagsAt) & kLinkFlag) != 0;
  }
  return false;
}

}  // namespace

std::int32_t oleTypeOf(std::span<const std::uint8_t> oleData) {
  if (oleData.empty()) return kNoObject;
  try {
    return isLinked(oleData) ? kLinked : kEmbedded;
  } catch (const mdb::Error&) {
    return kEmbedded;  // there is an object, whatever is wrong with it
  }
}

}  // namespace tarrowin
