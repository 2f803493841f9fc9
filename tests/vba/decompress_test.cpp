// Compressed data made by hand: every form of chunk and copy, and every way to be damaged.
#include "access/vba/decompress.h"

#include <gtest/gtest.h>

#include "mdb/file_builder.h"
#include "vba/expect_damage.h"
#include "vba/stream_builder.h"

namespace tarrowin::vba {
namespace {

using mdb::join;
using mdb::le16;

std::string text(const Bytes& bytes) { return std::string(bytes.begin(), bytes.end()); }

std::string damageIn(const Bytes& bytes) {
  return damageOf([&] { decompress(bytes); });
}

TEST(Decompress, StartByteAloneIsAnEmptyText) { EXPECT_TRUE(decompress(Bytes{1}).empty()); }

TEST(Decompress, PlainItems) {
  EXPECT_EQ(text(decompress(compressed("Option Explicit\r\n"))), "Option Explicit\r\n");
}

// The two examples in the published description of the format.
TEST(Decompress, PublishedExampleOfOneLetter) {
  EXPECT_EQ(text(decompress(Bytes{0x01, 0x03, 0xB0, 0x02, 0x61, 0x45, 0x00})),
            std::string(73, 'a'));
}

TEST(Decompress, PublishedExampleWithCopies) {
  const Bytes data{0x01, 0x2F, 0xB0, 0x00, 0x23, 0x61, 0x61, 0x61, 0x62, 0x63, 0x64, 0x65, 0x82,
                   0x66, 0x00, 0x70, 0x61, 0x67, 0x68, 0x69, 0x6A, 0x01, 0x38, 0x08, 0x61, 0x6B,
                   0x6C, 0x00, 0x30, 0x6D, 0x6E, 0x6F, 0x70, 0x06, 0x71, 0x02, 0x70, 0x04, 0x10,
                   0x72, 0x73, 0x74, 0x75, 0x76, 0x10, 0x77, 0x78, 0x79, 0x7A, 0x00, 0x3C};
  EXPECT_EQ(text(decompress(data)), "#aaabcdefaaaaghijaaaaaklaaamnopqaaaaaaaaaaaarstuvwxyzaaa");
}

// One letter, then a copy of the letter before 4,095 times: with one byte given the distance has 4
// bits and the length 12.
TEST(Decompress, CopyThatReachesIntoItselfFillsAChunk) {
  const Bytes items = join({Bytes{0x02, 'x'}, le16(4095 - 3)});
  EXPECT_EQ(text(decompress(container({chunk(items)}))), std::string(4096, 'x'));
}

// The distance gets its fifth bit behind 16 bytes: the token 0x7800 is then 15 + 1 bytes back.
TEST(Decompress, DistanceGrowsBehindSixteenBytes) {
  const Bytes sixteen = join({Bytes{0x00}, bytesOf("abcdefgh"), Bytes{0x00}, bytesOf("ijklmnop")});
  const Bytes atSixteen = join({sixteen, Bytes{0x01}, le16(0xF000)});
  EXPECT_EQ(text(decompress(container({chunk(atSixteen)}))), "abcdefghijklmnopabc");
  const Bytes atSeventeen = join({sixteen, Bytes{0x02, 'q'}, le16(0x7800)});
  EXPECT_EQ(text(decompress(container({chunk(atSeventeen)}))), "abcdefghijklmnopqbcd");
}

TEST(Decompress, ChunkWithoutCompression) {
  Bytes plain(4096, 'y');
  EXPECT_EQ(text(decompress(container({le16(0x3FFF), plain}))), std::string(4096, 'y'));
}

TEST(Decompress, CopiesBeginAnewInEveryChunk) {
  const Bytes first = chunk(Bytes{0x00, 'a', 'b'});
  const Bytes second = chunk(join({Bytes{0x02, 'c'}, le16(0)}));
  EXPECT_EQ(text(decompress(container({first, second}))), "abcccc");
}

TEST(Decompress, FlagByteWithoutItems) {
  EXPECT_TRUE(decompress(container({chunk(Bytes{0xFF})})).empty());
}

TEST(Decompress, NothingAtAllIsDamage) { EXPECT_NE(damageIn({}), ""); }

TEST(Decompress, OtherStartByteIsDamage) {
  Bytes data = compressed("text");
  data[0] = 2;
  EXPECT_EQ(damageIn(data), "the compressed data lacks its start byte");
}

TEST(Decompress, HeadWithoutItsMarkIsDamage) {
  for (int mark : {0x0000, 0x1000, 0x2000, 0x4000, 0x7000}) {
    Bytes data = compressed("text");
    put16(data, 1, static_cast<std::uint32_t>(0x8004 | mark));
    EXPECT_EQ(damageIn(data), "the head of a compressed chunk is damaged") << mark;
  }
}

TEST(Decompress, HeadOfOneByteIsDamage) { EXPECT_NE(damageIn(Bytes{1, 0x03}), ""); }

TEST(Decompress, ChunkLongerThanTheDataIsDamage) {
  Bytes data = compressed("text");
  data.pop_back();
  EXPECT_NE(damageIn(data), "");
  put16(data, 1, 0xBFFF);
  EXPECT_NE(damageIn(data), "");
}

TEST(Decompress, PlainChunkCutShortIsDamage) {
  EXPECT_NE(damageIn(container({le16(0x3FFF), Bytes(4095, 'y')})), "");
}

TEST(Decompress, CopyAsFirstItemIsDamage) {
  EXPECT_EQ(damageIn(container({chunk(Bytes{0x01, 0x00, 0x00})})),
            "a compressed chunk begins with a copy");
}

TEST(Decompress, CopyFromBeforeTheStartIsDamage) {
  const Bytes items = join({Bytes{0x04, 'a', 'b'}, le16(0x2000)});
  EXPECT_EQ(damageIn(container({chunk(items)})), "a compressed chunk copies from before its start");
}

// The chunk before it is no source of copies.
TEST(Decompress, CopyFromTheChunkBeforeIsDamage) {
  const Bytes second = chunk(join({Bytes{0x02, 'c'}, le16(0x1000)}));
  EXPECT_EQ(damageIn(container({chunk(Bytes{0x00, 'a', 'b'}), second})),
            "a compressed chunk copies from before its start");
}

TEST(Decompress, CopyCutToOneByteIsDamage) {
  EXPECT_NE(damageIn(container({chunk(Bytes{0x02, 'a', 0x00})})), "");
}

TEST(Decompress, ChunkThatGivesTooMuchIsDamage) {
  const Bytes byCopy = join({Bytes{0x02, 'x'}, le16(4096 - 3)});
  EXPECT_EQ(damageIn(container({chunk(byCopy)})), "a compressed chunk gives more than 4,096 bytes");
  const Bytes byItem = join({Bytes{0x02, 'x'}, le16(4095 - 3), bytesOf("y")});
  EXPECT_EQ(damageIn(container({chunk(byItem)})), "a compressed chunk gives more than 4,096 bytes");
}

TEST(Decompress, MoreThanTheLimitIsDamage) {
  const Bytes full = chunk(join({Bytes{0x02, 'x'}, le16(4095 - 3)}));
  const Bytes data = container({full, full, full});
  EXPECT_EQ(decompress(data, 3 * 4096).size(), 3u * 4096);
  EXPECT_EQ(damageOf([&] { decompress(data, 3 * 4096 - 1); }), "the decompressed data is too long");
}

TEST(FindCompressedSource, BehindOtherBytes) {
  const Bytes stream = join({Bytes(100, 0xAA), compressed("Attribute VB_Name = \"M\"\r\n")});
  EXPECT_EQ(findCompressedSource(stream), 100u);
}

TEST(FindCompressedSource, TheLastOneCounts) {
  const Bytes source = compressed("Attribute VB_Name = \"M\"\r\n");
  EXPECT_EQ(findCompressedSource(join({source, source})), source.size());
}

TEST(FindCompressedSource, WordsWithoutStartByteOrHeadAreNone) {
  Bytes stream = compressed("Attribute VB_Name = \"M\"\r\n");
  stream[0] = 0;
  EXPECT_EQ(findCompressedSource(stream), std::nullopt);
  stream[0] = 1;
  stream[2] = 0x30;
  EXPECT_EQ(findCompressedSource(stream), std::nullopt);
}

TEST(FindCompressedSource, WordsAtTheVeryStartAreNone) {
  EXPECT_EQ(findCompressedSource(join({Bytes{0}, bytesOf("Attribute")})), std::nullopt);
  EXPECT_EQ(findCompressedSource({}), std::nullopt);
}

TEST(FindCompressedSource, GoesOnBeforeAFalseOne) {
  const Bytes stream =
      join({compressed("Attribute VB_Name = \"M\"\r\n"), Bytes{0}, bytesOf("Attribute")});
  EXPECT_EQ(findCompressedSource(stream), 0u);
}

}  // namespace
}  // namespace tarrowin::vba
