// Compound files made by hand, whole and damaged.
#include "access/vba/compound_file.h"

#include <map>

#include <gtest/gtest.h>

#include "vba/expect_damage.h"
#include "vba/stream_builder.h"

namespace tarrowin::vba {
namespace {

// Where things stand in the file below: the head, the sector table, three sectors of directory.
constexpr std::size_t kTable = 512;
constexpr std::size_t kDirectory = 2 * 512;
constexpr std::size_t kDirectoryStart = 0x30, kTableSectors = 0x2C, kMoreTableSectors = 0x44;
constexpr std::size_t kEntry = 128, kType = 0x42, kRight = 0x48, kChild = 0x4C, kStart = 0x74,
                      kSize = 0x78;
// Entries by number.
constexpr std::size_t kVba = 1, kDir = 2, kLarge = 4;

Bytes largeStream() {
  Bytes bytes(5000);
  for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<std::uint8_t>(i * 7);
  return bytes;
}

Bytes sample() {
  return compoundFile({{"VBA", true, 0, {}},
                       {"dir", false, kVba, Bytes(100, 0x11)},
                       {"Empty", false, kVba, {}},
                       {"Large", false, 0, largeStream()},
                       {"\x03"
                        "DirData",
                        false, 0, Bytes(64, 0x22)},
                       {"Inner", true, kVba, {}},
                       {"dir", false, 6, Bytes(1, 0x33)}});
}

std::size_t entryAt(std::size_t number) { return kDirectory + number * kEntry; }

std::map<std::string, Bytes> streamsByPath(const CompoundFile& file) {
  std::map<std::string, Bytes> result;
  std::vector<std::string> paths;
  for (const CompoundFile::Entry& entry : file.entries()) {
    paths.push_back((entry.parent == CompoundFile::kNone ? "" : paths.at(entry.parent) + "/") +
                    entry.name);
    if (!entry.folder) result[paths.back()] = file.read(entry);
  }
  return result;
}

std::string openingDamage(Bytes bytes) {
  return damageOf([&] { CompoundFile file(std::move(bytes)); });
}

std::string readingDamage(Bytes bytes, std::string_view name) {
  const CompoundFile file(std::move(bytes));
  for (const CompoundFile::Entry& entry : file.entries()) {
    if (entry.name == name) return damageOf([&] { file.read(entry); });
  }
  return "no such stream";
}

TEST(CompoundFile, FoldersAndStreams) {
  const std::map<std::string, Bytes> expected{{"VBA/dir", Bytes(100, 0x11)},
                                              {"VBA/Empty", {}},
                                              {"Large", largeStream()},
                                              {"\x03"
                                               "DirData",
                                               Bytes(64, 0x22)},
                                              {"VBA/Inner/dir", Bytes(1, 0x33)}};
  EXPECT_EQ(streamsByPath(CompoundFile(sample())), expected);
}

TEST(CompoundFile, EmptyRoot) { EXPECT_TRUE(CompoundFile(compoundFile({})).entries().empty()); }

TEST(CompoundFile, LastSectorCutToWhatIsUsedOfIt) {
  Bytes bytes = sample();
  bytes.resize(bytes.size() - (5120 - 5000));
  EXPECT_EQ(streamsByPath(CompoundFile(bytes)).at("Large"), largeStream());
}

// With more than 109 sectors of table their numbers go on in a sector of their own.
TEST(CompoundFile, SectorTableThatTheHeadCannotHold) {
  Bytes bytes = sample();
  const auto more = static_cast<std::uint32_t>(bytes.size() / 512 - 1);
  bytes.resize(bytes.size() + 512 * 2);
  // All 110 are the same sector but the last, which is a table of free sectors.
  put32(bytes, kTableSectors, 2);
  EXPECT_NE(openingDamage(bytes), "");  // the second number in the head is no sector
  Bytes large(512 * 200);
  std::copy(bytes.begin(), bytes.end(), large.begin());
  put32(large, kTableSectors, 110);
  for (std::size_t i = 1; i < 109; ++i) put32(large, 0x4C + 4 * i, more + 1);
  put32(large, kMoreTableSectors, more);
  put32(large, (more + 1) * 512, more + 1);
  EXPECT_EQ(streamsByPath(CompoundFile(large)).at("Large"), largeStream());
  // The sector of numbers is missing.
  put32(large, kMoreTableSectors, 0xFFFFFFFE);
  EXPECT_NE(openingDamage(large), "");
}

TEST(CompoundFile, NoFileAtAllIsDamage) {
  EXPECT_NE(openingDamage({}), "");
  EXPECT_NE(openingDamage(Bytes(600, 0)), "");
}

TEST(CompoundFile, HeadCutShortIsDamage) {
  Bytes bytes = sample();
  bytes.resize(100);
  EXPECT_NE(openingDamage(bytes), "");
}

TEST(CompoundFile, UnknownSectorSizeIsDamage) {
  Bytes bytes = sample();
  put16(bytes, 0x1E, 40);
  EXPECT_EQ(openingDamage(bytes), "the compound file has sectors of an unknown size");
}

TEST(CompoundFile, HugeCountOfTableSectorsIsDamage) {
  Bytes bytes = sample();
  put32(bytes, kTableSectors, 0xFFFFFFFF);
  EXPECT_EQ(openingDamage(bytes), "the sector table of the compound file is longer than the file");
}

TEST(CompoundFile, DirectoryCutShortIsDamage) {
  Bytes bytes = sample();
  put32(bytes, kTable + 4, 0xFFFFFFFE);  // its first sector is the last: three entries
  EXPECT_EQ(openingDamage(bytes), "the directory of the compound file is cut short");
  put32(bytes, kDirectoryStart, 0x00FFFFFF);
  EXPECT_EQ(openingDamage(bytes), "a sector chain leads out of its table");
}

TEST(CompoundFile, DirectoryWithoutRootIsDamage) {
  Bytes bytes = sample();
  bytes[entryAt(0) + kType] = 2;
  EXPECT_EQ(openingDamage(bytes), "the directory of the compound file has no root");
}

TEST(CompoundFile, CircleAmongBrothersIsDamage) {
  Bytes bytes = sample();
  put32(bytes, entryAt(kLarge) + kRight, kVba);
  EXPECT_EQ(openingDamage(bytes), "the directory of the compound file leads in a circle");
}

TEST(CompoundFile, FolderInsideItselfIsDamage) {
  Bytes bytes = sample();
  put32(bytes, entryAt(kVba) + kChild, kVba);
  EXPECT_EQ(openingDamage(bytes), "the directory of the compound file leads in a circle");
}

TEST(CompoundFile, NameThatIsTooLongIsDamage) {
  Bytes bytes = sample();
  put16(bytes, entryAt(kDir) + 0x40, 200);
  EXPECT_EQ(openingDamage(bytes), "a name in the compound file is too long");
}

TEST(CompoundFile, CyclicChainOfTheDirectoryIsDamage) {
  Bytes bytes = sample();
  put32(bytes, kTable + 4, 1);
  EXPECT_EQ(openingDamage(bytes), "a sector chain leads in a circle");
}

TEST(CompoundFile, StartOutsideTheTableIsDamageOfOneStream) {
  Bytes bytes = sample();
  put32(bytes, entryAt(kLarge) + kStart, 5000);
  EXPECT_EQ(readingDamage(bytes, "Large"), "a sector chain leads out of its table");
  EXPECT_EQ(CompoundFile(bytes).entries().size(), 7u);
}

TEST(CompoundFile, SectorBehindTheEndIsDamageOfOneStream) {
  Bytes bytes = sample();
  put32(bytes, entryAt(kLarge) + kStart, 100);  // in the table, free, not in the file
  EXPECT_NE(readingDamage(bytes, "Large"), "");
}

TEST(CompoundFile, StreamShorterThanStatedIsDamageOfOneStream) {
  Bytes bytes = sample();
  put32(bytes, entryAt(kLarge) + kSize, 0x7FFFFFFF);
  EXPECT_EQ(readingDamage(bytes, "Large"), "the stream \"Large\" is shorter than stated");
  put32(bytes, entryAt(kDir) + kSize, 4000);
  EXPECT_EQ(readingDamage(bytes, "dir"), "the stream \"dir\" is shorter than stated");
}

TEST(CompoundFile, MiniSectorOutsideTheMiniStreamIsDamageOfOneStream) {
  Bytes bytes = sample();
  put32(bytes, entryAt(kDir) + kStart, 127);
  EXPECT_NE(readingDamage(bytes, "dir"), "");
}

TEST(CompoundFile, CyclicChainOfAStreamIsDamage) {
  Bytes bytes = sample();
  // The large stream's last ten sectors; its second points back at its first.
  const std::size_t first = bytes.size() / 512 - 1 - 10;
  put32(bytes, kTable + 4 * (first + 1), static_cast<std::uint32_t>(first));
  put32(bytes, entryAt(kLarge) + kSize, 0x7FFFFFFF);
  EXPECT_EQ(readingDamage(bytes, "Large"), "a sector chain leads in a circle");
}

}  // namespace
}  // namespace tarrowin::vba
