// Directories of projects made by hand, whole and damaged.
#include "access/vba/project_directory.h"

#include <gtest/gtest.h>

#include "mdb/file_builder.h"
#include "vba/expect_damage.h"
#include "vba/stream_builder.h"

namespace tarrowin::vba {
namespace {

using mdb::ansi;
using mdb::join;
using mdb::le16;
using mdb::le32;
using mdb::utf16;

const Bytes kTwoModules = directory(
    {moduleRecords("Main", "AAAA", 10, false), moduleRecords("Form_Orders", "BBBB", 20, true)});

TEST(ProjectDirectory, Modules) {
  const ProjectDirectory read = readProjectDirectory(kTwoModules);
  EXPECT_FALSE(read.damage);
  EXPECT_EQ(read.name, "Project");
  EXPECT_EQ(read.codePage, 1252);
  ASSERT_EQ(read.modules.size(), 2u);
  EXPECT_EQ(read.modules[0].name, "Main");
  EXPECT_EQ(read.modules[0].stream, "AAAA");
  EXPECT_EQ(read.modules[0].offset, 10u);
  EXPECT_FALSE(read.modules[0].isClass);
  EXPECT_EQ(read.modules[1].name, "Form_Orders");
  EXPECT_TRUE(read.modules[1].isClass);
}

// The record says 4.
TEST(ProjectDirectory, VersionHasTwoBytesMoreThanItSays) {
  const Bytes version = join({le16(0x09), le32(4), le32(0x12345678), le16(0x9ABC)});
  const ProjectDirectory read =
      readProjectDirectory(join({record(0x03, le16(1252)), version, kTwoModules}));
  EXPECT_FALSE(read.damage);
  EXPECT_EQ(read.modules.size(), 2u);
}

TEST(ProjectDirectory, References) {
  const std::string library = "*\\G{0}#2.0#0#C:\\stdole2.tlb#OLE";
  const Bytes libraryRecord = record(
      0x0D, join({le32(static_cast<std::uint32_t>(library.size())), ansi(library), Bytes(6)}));
  const ProjectDirectory read = readProjectDirectory(join(
      {record(0x16, ansi("stdole")), record(0x3E, utf16(u"stdole")), libraryRecord, kTwoModules}));
  ASSERT_EQ(read.references.size(), 1u);
  EXPECT_EQ(read.references[0].name, "stdole");
  EXPECT_EQ(read.references[0].library, library);
}

TEST(ProjectDirectory, LibraryThatIsLongerThanItsRecordIsDamage) {
  const ProjectDirectory read = readProjectDirectory(
      join({record(0x16, ansi("x")), record(0x0D, le32(0xFFFFFFFF)), kTwoModules}));
  EXPECT_TRUE(read.damage);
  EXPECT_TRUE(read.modules.empty());
}

TEST(ProjectDirectory, NamesInTheCodePageOfTheProject) {
  const Bytes module = join({record(0x19, ansi("\xCC\xEE\xE4")), record(0x2B, {})});
  const ProjectDirectory read =
      readProjectDirectory(join({record(0x03, le16(1251)), module, record(0x10, {})}));
  ASSERT_EQ(read.modules.size(), 1u);
  EXPECT_EQ(read.modules[0].name, "Мод");
  EXPECT_EQ(read.toUtf8("\xFF"), "я");
}

TEST(ProjectDirectory, UnknownCodePageTellsAsciiAndWideNames) {
  for (const std::uint32_t page : {932u, 12345u, 0u}) {
    const Bytes module =
        join({record(0x19, ansi("\x82\xA0")), record(0x47, utf16(u"あ")), record(0x2B, {})});
    const ProjectDirectory read =
        readProjectDirectory(join({record(0x03, le16(page)), module, record(0x10, {})}));
    EXPECT_FALSE(read.damage) << page;
    ASSERT_EQ(read.modules.size(), 1u);
    EXPECT_EQ(read.modules[0].name, "あ");
    EXPECT_EQ(read.toUtf8("Option Explicit"), "Option Explicit");
    EXPECT_EQ(damageOf([&] { read.toUtf8("\x82\xA0"); }),
              "the code page " + std::to_string(page) + " of the code is not known");
  }
}

TEST(ProjectDirectory, EmptyStreamIsDamage) { EXPECT_TRUE(readProjectDirectory({}).damage); }

TEST(ProjectDirectory, CutShortKeepsWhatIsWhole) {
  const std::size_t firstEnd =
      kTwoModules.size() - 6 - moduleRecords("Form_Orders", "BBBB", 20, true).size();
  for (std::size_t size = 0; size < kTwoModules.size() - 6; ++size) {
    const Bytes part(kTwoModules.begin(), kTwoModules.begin() + static_cast<std::ptrdiff_t>(size));
    const ProjectDirectory read = readProjectDirectory(part);
    EXPECT_TRUE(read.damage) << size;
    EXPECT_EQ(read.modules.size(), size >= firstEnd ? 1u : 0u) << size;
  }
}

TEST(ProjectDirectory, RecordLongerThanTheStreamIsDamage) {
  Bytes bytes = kTwoModules;
  put32(bytes, 8 + 2, 0xFFFFFFFF);  // the size of the second record
  const ProjectDirectory read = readProjectDirectory(bytes);
  EXPECT_TRUE(read.damage);
  EXPECT_TRUE(read.modules.empty());
}

TEST(ProjectDirectory, NumberThatIsTooShortIsDamage) {
  EXPECT_TRUE(readProjectDirectory(record(0x03, Bytes{1})).damage);
}

TEST(ProjectDirectory, EndOfAModuleThatNeverBeganIsPassedOver) {
  const ProjectDirectory read =
      readProjectDirectory(join({record(0x2B, {}), record(0x31, le32(5)), kTwoModules}));
  EXPECT_FALSE(read.damage);
  EXPECT_EQ(read.modules.size(), 2u);
}

TEST(ProjectDirectory, HugeCountOfModulesIsDamage) {
  Bytes bytes;
  const Bytes module = join({record(0x19, ansi("M")), record(0x2B, {})});
  for (int i = 0; i < 20000; ++i) bytes.insert(bytes.end(), module.begin(), module.end());
  const ProjectDirectory read = readProjectDirectory(bytes);
  EXPECT_TRUE(read.damage);
  EXPECT_EQ(read.modules.size(), 10000u);
}

}  // namespace
}  // namespace tarrowin::vba
