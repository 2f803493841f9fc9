// OLE objects built by hand: embedded, linked, damaged, none.
#include "access/design_blob/ole_data.h"

#include <gtest/gtest.h>

#include "mdb/file_builder.h"
#include "vba/stream_builder.h"

namespace tarrowin {
namespace {

using mdb::join;
using mdb::le32;

constexpr std::int32_t kLinked = 0, kEmbedded = 1, kNone = 3;

const std::string kOle =
    "\x01"
    "Ole";

Bytes oleData(const Bytes& file) {
  return join({le32(static_cast<std::uint32_t>(file.size())), file, le32(0)});
}

Bytes objectWithFlags(std::uint32_t flags) {
  return oleData(vba::compoundFile({{"Contents", false, 0, Bytes(10)},
                                    {kOle, false, 0, join({le32(0x02000001), le32(flags)})}}));
}

TEST(OleData, NoneIsNoObject) { EXPECT_EQ(oleTypeOf({}), kNone); }

TEST(OleData, FlagOfTheOleStreamTellsALink) {
  EXPECT_EQ(oleTypeOf(objectWithFlags(1)), kLinked);
  EXPECT_EQ(oleTypeOf(objectWithFlags(0x1001)), kLinked);
  EXPECT_EQ(oleTypeOf(objectWithFlags(0)), kEmbedded);
  EXPECT_EQ(oleTypeOf(objectWithFlags(0x1000)), kEmbedded);
}

TEST(OleData, ObjectWithoutAnOleStreamIsEmbedded) {
  EXPECT_EQ(oleTypeOf(oleData(vba::compoundFile({{"Contents", false, 0, Bytes(10)}}))), kEmbedded);
}

TEST(OleData, OleStreamOfAPartDoesNotCount) {
  const Bytes file = vba::compoundFile(
      {{"Part", true, 0, {}}, {kOle, false, 1, join({le32(0x02000001), le32(1)})}});
  EXPECT_EQ(oleTypeOf(oleData(file)), kEmbedded);
}

TEST(OleData, DamagedObjectIsEmbedded) {
  EXPECT_EQ(oleTypeOf(Bytes{1}), kEmbedded);
  EXPECT_EQ(oleTypeOf(le32(1000)), kEmbedded);
  EXPECT_EQ(oleTypeOf(oleData(Bytes(600))), kEmbedded);
  const Bytes whole = objectWithFlags(1);
  for (std::size_t size = 1; size < whole.size() - 4; ++size)
    EXPECT_EQ(oleTypeOf(std::span(whole).first(size)), kEmbedded);
}

}  // namespace
}  // namespace tarrowin
