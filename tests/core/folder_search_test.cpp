// The walk through folders: which find counts, and what is passed over.
#include "core/folder_search.h"

#include <cerrno>

#include <gtest/gtest.h>

#include "core/library_paths.h"
#include "shared/faulty_file_system.h"
#include "support/test_session.h"

namespace tarrowin::test {
namespace {

class FolderSearch : public testing::Test {
 protected:
  FolderSearch() : FolderSearch(new FaultyFileSystem) {}

  void make(const std::string& file) {
    const std::filesystem::path path = session.out() / file;
    std::filesystem::create_directories(path.parent_path());
    writeFile(path, "");
  }
  // What was found, from the searched folder on; "-" for nothing.
  std::string find(std::string_view file) {
    std::string found = "-";
    SearchFolder(session.main, root, file, found);
    return found.starts_with(root) ? found.substr(root.size()) : found;
  }

  FaultyFileSystem* disk;
  TestSession session;
  const std::string root = session.out().string();

 private:
  explicit FolderSearch(FaultyFileSystem* made)
      : disk(made), session(std::unique_ptr<FileSystem>(made)) {}
};

TEST_F(FolderSearch, FindsTheFileInTheFolderItself) {
  make("a.dll");
  EXPECT_EQ(find("a.dll"), "/");
}

TEST_F(FolderSearch, FindsTheFileBelow) {
  make("one/x.txt");
  make("two/deep/er/a.dll");
  EXPECT_EQ(find("a.dll"), "/two/deep/er/");
}

TEST_F(FolderSearch, FindsNothing) {
  make("one/b.dll");
  EXPECT_EQ(find("a.dll"), "-");
}

TEST_F(FolderSearch, TheNameIsComparedExactly) {
  make("A.DLL");
  EXPECT_EQ(find("a.dll"), "-");
}

TEST_F(FolderSearch, AFolderOfThatNameIsNoFind) {
  make("a.dll/other");
  EXPECT_EQ(find("a.dll"), "-");
}

TEST_F(FolderSearch, AFindDoesNotStopTheWalkOverTheFoldersBesideIt) {
  make("one/a.dll");
  make("two/a.dll");
  EXPECT_EQ(find("a.dll"), "/two/");
}

TEST_F(FolderSearch, AFindStopsTheWalkOfItsOwnFolder) {
  make("one/a.dll");
  make("one/below/a.dll");
  EXPECT_EQ(find("a.dll"), "/one/");
}

TEST_F(FolderSearch, LinksToFoldersAreNotFollowed) {
  make("one/b.dll");
  std::filesystem::create_directory_symlink(root, root + "/one/loop");
  EXPECT_EQ(find("a.dll"), "-");
}

TEST_F(FolderSearch, AMissingFolderHasNothingToFind) {
  std::filesystem::remove_all(root);
  EXPECT_EQ(find("a.dll"), "-");
}

TEST_F(FolderSearch, AFolderThatCannotBeReadEndsTheSearchWithABox) {
  disk->failOn(Operation::kList, 1, EACCES);
  FindDLLPaths(session.main, kMsderun);
  EXPECT_EQ(session.onlyBox().text, "FindDLLPath() - Error #75\r\nPath/File access error");
  EXPECT_EQ(session.main.state.mstrMsderunPath, "");
}

}  // namespace
}  // namespace tarrowin::test
