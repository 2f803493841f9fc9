// Failures of the disk, injected one operation after the other into the same work.
#include <cerrno>

#include <gtest/gtest.h>

#include "shared/expect_error.h"
#include "shared/faulty_file_system.h"
#include "shared/temporary_directory.h"
#include "shared/vb_files.h"

namespace tarrowin {
namespace {

using test::FaultyFileSystem;
using test::Operation;
using test::raisedNumber;
using test::TemporaryDirectory;

struct Disk {
  TemporaryDirectory directory;
  FaultyFileSystem system;
  FileSlots files{system, CodePage(), directory.path()};
};

TEST(FileFailure, OpenGivesTheNumberOfItsReason) {
  const std::pair<int, std::int32_t> cases[] = {
      {ENOSPC, 61}, {EDQUOT, 61},  {EMFILE, 67}, {ENFILE, 67},       {EACCES, 75}, {EPERM, 75},
      {EROFS, 75},  {EISDIR, 75},  {EIO, 57},    {ENXIO, 71},        {ENODEV, 71}, {ENOMEDIUM, 71},
      {EBUSY, 70},  {ETXTBSY, 70}, {ENOENT, 76}, {ENAMETOOLONG, 52},
  };
  for (const auto& [error, number] : cases) {
    Disk disk;
    disk.system.failOn(Operation::kOpen, 1, error);
    EXPECT_RAISES(number, disk.files.Open("a", FileMode::kOutput, 1)) << error;
    EXPECT_FALSE(disk.files.IsOpen(1));
    disk.files.Open("a", FileMode::kOutput, 1);  // the number is free for another try
    EXPECT_TRUE(disk.files.IsOpen(1));
  }
}

TEST(FileFailure, DiskFullAtCloseIsRaisedAndFreesTheNumber) {
  Disk disk;
  disk.files.Open("a", FileMode::kOutput, 1);
  disk.files.Print(1, "text");
  disk.system.failOn(Operation::kWrite, 1, ENOSPC);
  EXPECT_RAISES(61, disk.files.Close(1));
  EXPECT_FALSE(disk.files.IsOpen(1));
  EXPECT_EQ(disk.system.count(Operation::kClose), 1);
  disk.files.Close(1);
}

TEST(FileFailure, CloseItselfMayFail) {
  Disk disk;
  disk.files.Open("a", FileMode::kOutput, 1);
  disk.files.Print(1, "text");
  disk.system.failOn(Operation::kClose, 1, EIO);
  EXPECT_RAISES(57, disk.files.Close(1));
  EXPECT_FALSE(disk.files.IsOpen(1));
}

TEST(FileFailure, FailedPrintAddsNothingAndTheBufferGoesOutLater) {
  Disk disk;
  const std::string block(FileSlots::kBufferSize - 2, 'a');
  disk.files.Open("a", FileMode::kOutput, 1);
  disk.files.Print(1, block);  // fills the buffer
  disk.system.failOn(Operation::kWrite, 1, ENOSPC, true);
  EXPECT_RAISES(61, disk.files.Print(1, "lost"));
  EXPECT_RAISES(61, disk.files.Print(1, block));
  disk.system.heal();
  disk.files.Print(1, "kept");
  disk.files.Close(1);
  EXPECT_EQ(disk.directory.read("a"), block + "\r\nkept\r\n");
}

TEST(FileFailure, TextLargerThanTheBufferRaisesAtOnce) {
  Disk disk;
  disk.files.Open("a", FileMode::kOutput, 1);
  disk.system.failOn(Operation::kWrite, 1, ENOSPC);
  EXPECT_RAISES(61, disk.files.Print(1, std::string(FileSlots::kBufferSize + 1, 'x')));
}

TEST(FileFailure, ReadErrorIsRaisedAndCanBeRetried) {
  Disk disk;
  disk.directory.write("a", "one\r\ntwo");
  disk.files.Open("a", FileMode::kInput, 1);
  disk.system.failOn(Operation::kRead, 1, EIO);
  EXPECT_RAISES(57, disk.files.LineInput(1));
  EXPECT_EQ(disk.files.LineInput(1), "one");
}

TEST(FileFailure, CloseAllClosesTheRestAndRaisesTheFirst) {
  Disk disk;
  for (int number = 1; number <= 3; ++number) {
    disk.files.Open("f" + std::to_string(number), FileMode::kOutput, number);
    disk.files.Print(number, "text");
  }
  disk.system.failOn(Operation::kWrite, 2, ENOSPC);
  EXPECT_RAISES(61, disk.files.CloseAll());
  for (int number = 1; number <= 3; ++number) EXPECT_FALSE(disk.files.IsOpen(number));
  EXPECT_EQ(disk.directory.read("f1"), "text\r\n");
  EXPECT_EQ(disk.directory.read("f3"), "text\r\n");
}

TEST(FileFailure, KillMkDirGetAttrAndDir) {
  Disk disk;
  disk.directory.write("a", "x");
  disk.system.failOn(Operation::kRemove, 1, EACCES);
  EXPECT_RAISES(75, disk.files.Kill("a"));
  disk.system.failOn(Operation::kRemove, 2, ENOENT);  // removed by somebody else in between
  EXPECT_RAISES(53, disk.files.Kill("a"));
  disk.system.failOn(Operation::kMakeDirectory, 1, ENOSPC);
  EXPECT_RAISES(61, disk.files.MkDir("d"));
  disk.system.failOn(Operation::kMakeDirectory, 2, EACCES);
  EXPECT_RAISES(75, disk.files.MkDir("d"));
  disk.system.failOn(Operation::kStatus, disk.system.count(Operation::kStatus) + 1, ENXIO);
  EXPECT_RAISES(71, disk.files.GetAttr("a"));
  disk.system.failOn(Operation::kStatus, disk.system.count(Operation::kStatus) + 1, EIO);
  EXPECT_RAISES(57, disk.files.Dir("a"));
}

// Replaces one file and writes another of several buffers, as a conversion does.
void convert(FileSlots& files) {
  if (!files.Dir("a").empty()) files.Kill("a");
  files.Open("a", FileMode::kAppend, 1);
  for (int line = 0; line < 3000; ++line) files.Print(1, std::string(60, 'l'));
  files.Close(1);
}

// Lets the first, the second and each later operation of a kind fail until the work gets through;
// gives the number of failures seen. None may pass unnoticed.
int failEachOperation(Operation operation, bool andAllLater) {
  for (int n = 1;; ++n) {
    Disk disk;
    disk.directory.write("a", "old");
    disk.system.failOn(operation, n, EIO, andAllLater);
    const std::int32_t number = raisedNumber([&] { convert(disk.files); });
    if (disk.system.count(operation) < n) {
      EXPECT_EQ(number, 0);
      EXPECT_EQ(disk.directory.read("a").size(), std::size_t{3000} * 62);
      return n - 1;
    }
    EXPECT_EQ(number, 57) << "operation " << n << " failed unnoticed";
  }
}

TEST(FileFailure, EveryOperationOfAConversionOnce) {
  EXPECT_EQ(failEachOperation(Operation::kStatus, false), 2);
  EXPECT_EQ(failEachOperation(Operation::kRemove, false), 1);
  EXPECT_EQ(failEachOperation(Operation::kOpen, false), 1);
  EXPECT_EQ(failEachOperation(Operation::kWrite, false), 3);
  EXPECT_EQ(failEachOperation(Operation::kClose, false), 1);
}

TEST(FileFailure, EveryOperationOfAConversionAndAllLater) {
  EXPECT_EQ(failEachOperation(Operation::kStatus, true), 2);
  EXPECT_EQ(failEachOperation(Operation::kRemove, true), 1);
  EXPECT_EQ(failEachOperation(Operation::kOpen, true), 1);
  EXPECT_EQ(failEachOperation(Operation::kWrite, true), 3);
  EXPECT_EQ(failEachOperation(Operation::kClose, true), 1);
}

}  // namespace
}  // namespace tarrowin
