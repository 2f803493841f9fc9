// Numbered files and file statements on a real directory.
#include "shared/vb_files.h"

#include <cerrno>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "shared/expect_error.h"
#include "shared/faulty_file_system.h"
#include "shared/temporary_directory.h"

namespace tarrowin {
namespace {

using test::FaultyFileSystem;
using test::Operation;
using test::TemporaryDirectory;

class Files : public testing::Test {
 protected:
  std::vector<std::string> linesOf(const std::string& bytes) {
    directory.write("lines", bytes);
    files.Open("lines", FileMode::kInput, 9);
    std::vector<std::string> lines;
    while (!files.Eof(9)) lines.push_back(files.LineInput(9));
    EXPECT_RAISES(62, files.LineInput(9));
    files.Close(9);
    return lines;
  }

  TemporaryDirectory directory;
  FaultyFileSystem disk;
  FileSlots files{disk, CodePage(), directory.path()};
};

using Lines = std::vector<std::string>;

TEST_F(Files, PrintEndsLinesInCrLf) {
  files.Open(directory / "a.bas", FileMode::kOutput, 1);
  files.Print(1, "one");
  files.PrintWithoutLineEnd(1, "two");
  files.Print(1, "");
  files.Close(1);
  EXPECT_EQ(directory.read("a.bas"), "one\r\ntwo\r\n");
}

TEST_F(Files, OutputReplacesAndAppendGoesOn) {
  directory.write("a", "old");
  files.Open("a", FileMode::kAppend, 1);
  files.Print(1, "new");
  files.Close(1);
  EXPECT_EQ(directory.read("a"), "oldnew\r\n");
  files.Open("a", FileMode::kOutput, 1);
  files.Close(1);
  EXPECT_EQ(directory.read("a"), "");
}

TEST_F(Files, SmallFileCostsThreeCallsToTheDisk) {
  files.Open("a", FileMode::kOutput, 1);
  for (int line = 0; line < 100; ++line) files.Print(1, "some text");
  files.Close(1);
  EXPECT_EQ(disk.total(), 3);
}

TEST_F(Files, TextAroundTheBufferSize) {
  std::string expected;
  files.Open("big", FileMode::kOutput, 1);
  for (const std::size_t size :
       {FileSlots::kBufferSize - 2, FileSlots::kBufferSize - 1, FileSlots::kBufferSize,
        FileSlots::kBufferSize * 3, std::size_t{1}}) {
    const std::string text(size, static_cast<char>('a' + size % 26));
    files.Print(1, text);
    expected += text + "\r\n";
  }
  files.Close(1);
  EXPECT_EQ(directory.read("big"), expected);
}

TEST_F(Files, LineInputEndsAtCrLfAndLfAndKeepsACrAlone) {
  EXPECT_EQ(linesOf("a\r\nb\rc\nd"), (Lines{"a", "b\rc", "d"}));
}

TEST_F(Files, LastLineWithEndIsFollowedByNothing) {
  EXPECT_EQ(linesOf("a\r\n"), (Lines{"a"}));
  EXPECT_EQ(linesOf("a\r"), (Lines{"a\r"}));
  EXPECT_EQ(linesOf("a\n"), (Lines{"a"}));
}

TEST_F(Files, EmptyLinesAndEmptyFile) {
  EXPECT_EQ(linesOf("\r\n\r\n\n"), (Lines{"", "", ""}));
  EXPECT_EQ(linesOf("\n\r\n"), (Lines{"", ""}));
  EXPECT_EQ(linesOf(""), Lines{});
}

TEST_F(Files, PairSplitByTheReadBuffer) {
  const std::string first(FileSlots::kBufferSize - 1, 'x');
  EXPECT_EQ(linesOf(first + "\r\nb"), (Lines{first, "b"}));
  EXPECT_EQ(linesOf(first + "\rb\n"), (Lines{first + "\rb"}));
}

TEST_F(Files, LineLongerThanTheReadBuffer) {
  const std::string longLine(FileSlots::kBufferSize * 2 + 17, 'y');
  EXPECT_EQ(linesOf("a\r\n" + longLine + "\nb"), (Lines{"a", longLine, "b"}));
}

TEST_F(Files, NulAndControlBytesAreText) {
  EXPECT_EQ(linesOf(std::string("a\0b\x1A"
                                "c\r\n",
                                7)),
            (Lines{std::string("a\0b\x1A"
                               "c",
                               5)}));
}

TEST_F(Files, NumberNotOpenIs52) {
  EXPECT_RAISES(52, files.Print(1, "x"));
  EXPECT_RAISES(52, files.LineInput(1));
  EXPECT_RAISES(52, files.Eof(1));
  EXPECT_RAISES(52, files.Eof(-1));
  EXPECT_RAISES(52, files.Open("a", FileMode::kOutput, 0));
  EXPECT_RAISES(52, files.Open("a", FileMode::kOutput, 512));
  EXPECT_EQ(disk.total(), 0);
}

TEST_F(Files, WrongModeIs54) {
  directory.write("in", "x");
  files.Open("in", FileMode::kInput, 1);
  files.Open("out", FileMode::kOutput, 2);
  EXPECT_RAISES(54, files.Print(1, "x"));
  EXPECT_RAISES(54, files.PrintWithoutLineEnd(1, "x"));
  EXPECT_RAISES(54, files.LineInput(2));
}

TEST_F(Files, EofOfOutputIsTrue) {
  files.Open("out", FileMode::kOutput, 1);
  files.Open("more", FileMode::kAppend, 2);
  EXPECT_TRUE(files.Eof(1));
  EXPECT_TRUE(files.Eof(2));
}

TEST_F(Files, NumberInUseIs55) {
  files.Open("a", FileMode::kOutput, 1);
  EXPECT_RAISES(55, files.Open("b", FileMode::kOutput, 1));
  EXPECT_EQ(files.Dir("b"), "");
}

TEST_F(Files, SameFileTwiceIs55UnlessBothRead) {
  directory.write("a", "x");
  files.Open("a", FileMode::kInput, 1);
  files.Open("a", FileMode::kInput, 2);
  EXPECT_RAISES(55, files.Open("a", FileMode::kOutput, 3));
  EXPECT_RAISES(55, files.Open("./a", FileMode::kAppend, 3));
  EXPECT_EQ(directory.read("a"), "x");
  files.CloseAll();
  files.Open("a", FileMode::kOutput, 1);
  EXPECT_RAISES(55, files.Open(directory / "/a", FileMode::kInput, 2));
}

TEST_F(Files, CloseOfANumberNotOpenIsSilent) {
  files.Close(1);
  files.Close(0);
  files.Close(9999);
  EXPECT_FALSE(files.IsOpen(9999));
}

TEST_F(Files, CloseFreesTheNumber) {
  files.Open("a", FileMode::kOutput, 1);
  EXPECT_TRUE(files.IsOpen(1));
  files.Close(1);
  EXPECT_FALSE(files.IsOpen(1));
  files.Open("b", FileMode::kOutput, 511);
  EXPECT_TRUE(files.IsOpen(511));
}

TEST_F(Files, DestructorWritesWhatWaits) {
  {
    FileSlots other(disk, CodePage(), directory.path());
    other.Open("left open", FileMode::kOutput, 1);
    other.Print(1, "text");
  }
  EXPECT_EQ(directory.read("left open"), "text\r\n");
}

TEST_F(Files, OpenFailuresOfPaths) {
  directory.write("file", "x");
  EXPECT_RAISES(53, files.Open("missing", FileMode::kInput, 1));
  EXPECT_RAISES(76, files.Open("no/missing", FileMode::kInput, 1));
  EXPECT_RAISES(76, files.Open("no/missing", FileMode::kOutput, 1));
  EXPECT_RAISES(76, files.Open("no/missing", FileMode::kAppend, 1));
  EXPECT_RAISES(76, files.Open("file/below", FileMode::kOutput, 1));
  EXPECT_RAISES(75, files.Open(directory.path(), FileMode::kOutput, 1));
  EXPECT_RAISES(75, files.Open(directory.path(), FileMode::kInput, 1));
  EXPECT_RAISES(75, files.Open("", FileMode::kOutput, 1));
  EXPECT_RAISES(52, files.Open(std::string("a\0b", 3), FileMode::kOutput, 1));
  EXPECT_RAISES(52, files.Open(std::string(300, 'n'), FileMode::kOutput, 1));
  EXPECT_FALSE(files.IsOpen(1));
}

TEST_F(Files, ReadOnlyFileIs75ForOutput) {
  if (geteuid() == 0) GTEST_SKIP() << "the administrator may write to everything";
  directory.write("locked", "x");
  chmod((directory / "locked").c_str(), 0444);
  EXPECT_RAISES(75, files.Open("locked", FileMode::kOutput, 1));
}

TEST_F(Files, FullDeviceIs61) {
  if (access("/dev/full", W_OK) != 0) GTEST_SKIP() << "no device that is always full";
  files.Open("/dev/full", FileMode::kAppend, 1);
  files.Print(1, "x");
  EXPECT_RAISES(61, files.Close(1));
  EXPECT_FALSE(files.IsOpen(1));
}

TEST_F(Files, DirGivesTheBareNameOfAFile) {
  directory.write("Orders.mdb", "x");
  EXPECT_EQ(files.Dir("Orders.mdb"), "Orders.mdb");
  EXPECT_EQ(files.Dir(directory / "Orders.mdb"), "Orders.mdb");
  EXPECT_EQ(files.Dir("missing"), "");
  EXPECT_EQ(files.Dir("no/missing"), "");
  EXPECT_EQ(files.Dir("Orders.mdb/x"), "");
  EXPECT_EQ(files.Dir(directory.path()), "");
  EXPECT_EQ(files.Dir(""), "");
}

TEST_F(Files, DirIsOneCall) {
  files.Dir("missing");
  EXPECT_EQ(disk.total(), 1);
}

TEST_F(Files, KillRemovesAFile) {
  directory.write("a", "x");
  files.Kill("a");
  EXPECT_EQ(files.Dir("a"), "");
}

TEST_F(Files, KillFailures) {
  directory.write("a", "x");
  EXPECT_RAISES(53, files.Kill("missing"));
  EXPECT_RAISES(53, files.Kill("no/missing"));
  EXPECT_RAISES(53, files.Kill(directory.path()));
  EXPECT_RAISES(53, files.Kill(""));
  files.Open("a", FileMode::kInput, 1);
  EXPECT_RAISES(55, files.Kill("a"));
  files.Close(1);
  EXPECT_EQ(directory.read("a"), "x");
}

TEST_F(Files, KillOfAReadOnlyFileIs75) {
  directory.write("locked", "x");
  chmod((directory / "locked").c_str(), 0444);
  EXPECT_RAISES(75, files.Kill("locked"));
  EXPECT_EQ(directory.read("locked"), "x");
}

TEST_F(Files, MkDirOneLevelOnly) {
  files.MkDir("new");
  EXPECT_EQ(files.GetAttr("new"), 16);
  EXPECT_RAISES(76, files.MkDir("x/y"));
  EXPECT_EQ(files.Dir("x"), "");
}

TEST_F(Files, MkDirFailures) {
  directory.write("file", "x");
  EXPECT_RAISES(75, files.MkDir("file"));
  EXPECT_RAISES(75, files.MkDir(directory.path()));
  EXPECT_RAISES(76, files.MkDir("file/below"));
  EXPECT_RAISES(75, files.MkDir(""));
}

TEST_F(Files, EntriesOfAFolderByName) {
  directory.write("b.txt", "");
  directory.write("M\xc3\xa4rz", "");
  files.MkDir("a");
  ASSERT_EQ(::symlink(".", (directory / "loop").c_str()), 0);
  const std::vector<FileSystem::Entry> entries = files.Entries(directory.path());
  ASSERT_EQ(entries.size(), 4u);
  EXPECT_EQ(entries[0].name, "M\xe4rz");
  EXPECT_EQ(entries[1].name, "a");
  EXPECT_TRUE(entries[1].directory);
  EXPECT_EQ(entries[2].name, "b.txt");
  EXPECT_FALSE(entries[2].directory);
  EXPECT_EQ(entries[3].name, "loop");
  EXPECT_FALSE(entries[3].directory);
  EXPECT_TRUE(files.Entries("missing").empty());
  EXPECT_TRUE(files.Entries("b.txt").empty());
  disk.failOn(Operation::kList, disk.count(Operation::kList) + 1, EACCES);
  EXPECT_RAISES(75, files.Entries(directory.path()));
}

TEST_F(Files, GetAttrOfFilesAndDirectories) {
  directory.write("file", "x");
  EXPECT_EQ(files.GetAttr("file"), 0);
  EXPECT_EQ(files.GetAttr(directory.path()), 16);
  EXPECT_EQ(files.GetAttr(directory.path() + "/"), 16);
  chmod((directory / "file").c_str(), 0444);
  EXPECT_EQ(files.GetAttr("file"), 1);
}

TEST_F(Files, GetAttrOfWhatIsAbsentIs53AtAnyLevel) {
  directory.write("file", "x");
  EXPECT_RAISES(53, files.GetAttr("missing"));
  EXPECT_RAISES(53, files.GetAttr("a/b/c"));
  EXPECT_RAISES(53, files.GetAttr("file/below"));
  EXPECT_RAISES(53, files.GetAttr(""));
}

TEST_F(Files, CurrentDirectoryIsVirtual) {
  const auto before = std::filesystem::current_path();
  EXPECT_EQ(files.CurDir(), directory.path());
  files.MkDir("sub");
  files.ChDir("sub");
  EXPECT_EQ(files.CurDir(), directory / "sub");
  files.Open("a", FileMode::kOutput, 1);
  files.Close(1);
  EXPECT_TRUE(std::filesystem::exists(directory / "sub/a"));
  files.ChDir("..");
  EXPECT_EQ(files.CurDir(), directory.path());
  files.ChDir(directory.path() + "/sub/");
  EXPECT_EQ(files.CurDir(), directory / "sub");
  files.ChDir("/");
  EXPECT_EQ(files.CurDir(), "/");
  EXPECT_EQ(std::filesystem::current_path(), before);
}

TEST_F(Files, ChDirToNoDirectoryIs76) {
  directory.write("file", "x");
  EXPECT_RAISES(76, files.ChDir("missing"));
  EXPECT_RAISES(76, files.ChDir("file"));
  EXPECT_EQ(files.CurDir(), directory.path());
}

TEST_F(Files, PathsAreUtf8OnDiskAndTextsAreNot) {
  files.Open("caf\xE9.bas", FileMode::kOutput, 1);
  files.Print(1, "caf\xE9");
  files.Close(1);
  EXPECT_EQ(directory.read("caf\u00E9.bas"), "caf\xE9\r\n");
  EXPECT_EQ(files.Dir("caf\xE9.bas"), "caf\xE9.bas");
  files.Kill("caf\xE9.bas");
  EXPECT_FALSE(std::filesystem::exists(directory / "caf\u00E9.bas"));
}

}  // namespace
}  // namespace tarrowin
