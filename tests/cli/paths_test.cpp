// Paths of scripts and arguments, made absolute.
#include "cli/paths.h"

#include <gtest/gtest.h>

#include "cli/exit_status.h"

namespace tarrowin {
namespace {

TEST(Paths, AbsolutePathShortensNothing) {
  EXPECT_EQ(absolutePath("/home", "a/../b.mdb"), "/home/a/../b.mdb");
  EXPECT_EQ(absolutePath("/home", "/b.mdb"), "/b.mdb");
}

TEST(Paths, LexicalPathGivesOneFileOneName) {
  EXPECT_EQ(lexicalPath("/case", "./a/../b.mdb"), "/case/b.mdb");
  EXPECT_EQ(lexicalPath("/case", "../b.mdb"), "/b.mdb");
  EXPECT_EQ(lexicalPath("/case", "out/"), "/case/out/");
}

TEST(Paths, LexicalPathLeavesAbsolutePathsAlone) {
  for (const char* path : {"/a/../b.mdb", "C:\\dll\\msderun.dll", "c:/dll", "\\\\server\\share"}) {
    EXPECT_EQ(lexicalPath("/case", path), path);
  }
  EXPECT_EQ(lexicalPath("/case", "C:file"), "/case/C:file");
}

TEST(Paths, PathWithACharacterThatTheCodePageLacks) {
  EXPECT_EQ(pathInCodePage(CodePage(), "/M\xc3\xa4rz"), "/M\xe4rz");
  EXPECT_THROW(pathInCodePage(CodePage(), "/\xd0\x96"), CommandFailure);
  EXPECT_EQ(pathInCodePage(CodePage(1251), "/\xd0\x96"), "/\xc6");
  // Bytes that are no UTF-8 name a file that a text cannot name.
  EXPECT_THROW(pathInCodePage(CodePage(), "/\xff"), CommandFailure);
}

}  // namespace
}  // namespace tarrowin
