// The marker file, and how the start goes on over errors.
#include "core/start_up.h"

#include <fstream>

#include <gtest/gtest.h>

#include "support/test_session.h"

namespace tarrowin {
namespace {

using test::TestSession;

class Windows : public StartUpWindows {
 public:
  void unloadSplash() override { order += "unload "; }
  void showNotice() override { order += "notice "; }
  void showMainWindow() override {
    order += "main ";
    if (failure) throw VbError::standard(failure, "");
  }
  std::string order;
  std::int32_t failure = 0;
};

class StartUp : public testing::Test {
 protected:
  Marker marker() { return {session.files, session.folder() + "/tnmsg.srg"}; }
  void writeMarker(const std::string& text) { std::ofstream(marker().path) << text; }

  TestSession session;
  Windows windows;
};

TEST_F(StartUp, ZeroMeansNoNotice) {
  writeMarker(" 0 \r\n");
  TarrowinOpen(session.main, marker(), windows);
  EXPECT_EQ(windows.order, "main unload ");
  EXPECT_EQ(session.main.window.mousePointer, 0);
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(StartUp, AnyOtherLineShowsTheNotice) {
  for (const char* const line : {"1\r\n", "", "x\r\n", "00x\r\n"}) {
    windows.order.clear();
    writeMarker(line);
    TarrowinOpen(session.main, marker(), windows);
    EXPECT_EQ(windows.order, "unload notice ") << line;
  }
}

TEST_F(StartUp, AMissingMarkerIsMadeWithAOne) {
  TarrowinOpen(session.main, marker(), windows);
  EXPECT_EQ(windows.order, "unload notice ");
  EXPECT_EQ(test::fileContent(marker().path), "1\r\n");
}

TEST_F(StartUp, ForgottenNoticeIsAZero) {
  forgetNotice(marker());
  EXPECT_EQ(test::fileContent(marker().path), "0\r\n");
}

TEST_F(StartUp, AnUnexpectedErrorHasItsBoxAndTheStartGoesOn) {
  writeMarker("0\r\n");
  windows.failure = 7;
  TarrowinOpen(session.main, marker(), windows);
  const test::Box box = session.onlyBox();
  EXPECT_EQ(box.style, 16);
  EXPECT_EQ(box.title, "Access to Visual Basic Tarrowin");
  EXPECT_EQ(box.text, "TarrowinOpen() - Error #7\r\n" + VbError::standard(7, "").description());
  EXPECT_EQ(windows.order, "main unload ");
}

// 438, 2501 and 35613 point to a missing library: the references are told, and no error box comes.
TEST_F(StartUp, MissingLibrariesLeadToTheReferences) {
  writeMarker("0\r\n");
  for (const std::int32_t number : {438, 2501, 35613}) {
    windows.order.clear();
    windows.failure = number;
    session.clearBoxes();
    TarrowinOpen(session.main, marker(), windows);
    EXPECT_EQ(windows.order, "main unload ");
    const test::Box box = session.onlyBox();
    EXPECT_EQ(box.style, 64) << number;
    EXPECT_TRUE(box.text.starts_with("To ensure that the Tarrowin displays correctly")) << number;
  }
}

TEST_F(StartUp, TheOpenDialogComesUpAtOnceInTheGivenFolder) {
  Form_Load(session.main, "/usr/share/tarrowin/");
  ASSERT_EQ(session.user.dialogs.size(), 1u);
  EXPECT_EQ(session.user.dialogs[0].initDir, "/usr/share/tarrowin/");
  EXPECT_EQ(session.user.dialogs[0].dialogTitle, "Open a Microsoft Access Database");
  EXPECT_EQ(session.main.window.mousePointer, 0);
}

}  // namespace
}  // namespace tarrowin
