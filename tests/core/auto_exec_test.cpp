// A form that Access refuses to open because the command is not available: the question whether to
// stop the program, in both drivers that open forms.
#include <gtest/gtest.h>

#include "core/batch_driver.h"
#include "core/database_opening.h"
#include "support/test_session.h"

namespace tarrowin::test {
namespace {

const std::string kQuestion =
    "Unable to open Form 'Locked'. This may be due to an AutoExec macro running in the database. "
    "It "
    "is recommended that you stop the program and while holding the Shift-key down, open the "
    "database again. \r\n\r\nIf you do not stop the program, none of the Objects in the database "
    "will be converted.\r\n\r\nStop the program now?";

// Opens each selected form and does nothing with it.
class OpeningBatch : public BatchDriver {
 public:
  OpeningBatch(MainObject& main, ObjectList list) : BatchDriver(main, batchMember(list)) {}
  std::vector<std::string> opened;

 protected:
  void resetLists() override {}
  void convertSelection() override {
    for (std::size_t i = 1; i <= items().size(); ++i) {
      beginItem(i);
      selectedName_ = currentName_;
      const DoCmd command = main_.state.gappAccess.doCmd();
      if (!statement([&] { command.OpenForm(selectedName_, access_constants::acDesign); }))
        continue;
      opened.push_back(selectedName_);
      ++convertedCount_;
    }
  }
  std::string summary() override { return "summary "; }
};

class EndingUser : public RecordingUser {
 public:
  void programEnded() override { ++ends; }
  int ends = 0;
};

class AutoExecQuestion : public testing::TestWithParam<ObjectList> {
 protected:
  AutoExecQuestion() {
    Json database = emptyDatabase();
    database["forms"].push_back(
        {{"name", "Locked"}, {"properties", Json::object()}, {"openError", 2046}});
    database["forms"].push_back({{"name", "Open"}, {"properties", Json::object()}});
    writeFile(path, database.dump());
    user.chosenPath = path;
    cmdOpen_Click(main);
    main.window.txtCurDir = session.out().string();
  }
  TestSession session;
  const std::string path = session.folder() + "/orders.access.json";
  EndingUser user;
  MainObject main{user, session.files, session.main.host, session.main.Now};
  OpeningBatch batch{main, GetParam()};
};

TEST_P(AutoExecQuestion, YesEndsTheProgramWithoutASummary) {
  user.answers = {Answer::kYes};
  batch.run(true);
  ASSERT_EQ(user.boxes.size(), 1u);
  EXPECT_EQ(user.boxes[0], (Box{20, kQuestion, "Access to Visual Basic Tarrowin"}));
  EXPECT_EQ(user.ends, 1);
  EXPECT_FALSE(main.state.gappAccess);
  EXPECT_TRUE(batch.opened.empty());
  EXPECT_EQ(main.lastBatch.converted, 0);
}

TEST_P(AutoExecQuestion, NoSkipsTheFormAndGoesOn) {
  user.answers = {Answer::kNo};
  batch.run(true);
  ASSERT_EQ(user.boxes.size(), 2u);
  EXPECT_EQ(user.boxes[0].text, kQuestion);
  EXPECT_EQ(user.boxes[1].text, "summary Conversion completed in: 00:00 seconds.");
  EXPECT_EQ(user.ends, 0);
  EXPECT_TRUE(main.state.gappAccess);
  EXPECT_EQ(batch.opened, std::vector<std::string>{"Open"});
  EXPECT_EQ(main.lastBatch.selected, 2);
  EXPECT_EQ(main.lastBatch.converted, 1);
}

TEST_P(AutoExecQuestion, AccessThatFailsToCloseDoesNotKeepTheProgram) {
  Json database = Json::parse(fileContent(path));
  database["application"]["errors"] = {{"CloseCurrentDatabase", 2467}, {"Quit", 2467}};
  const std::string failing = session.folder() + "/failing.access.json";
  writeFile(failing, database.dump());
  user.chosenPath = failing;
  cmdOpen_Click(main);
  main.window.txtCurDir = session.out().string();
  ASSERT_TRUE(main.state.gappAccess);
  user.boxes.clear();
  batch.run(true);
  EXPECT_EQ(user.boxes.size(), 1u);
  EXPECT_EQ(user.ends, 1);
  EXPECT_FALSE(main.state.gappAccess);
}

INSTANTIATE_TEST_SUITE_P(Drivers, AutoExecQuestion,
                         testing::Values(ObjectList::kForms, ObjectList::kObjects));

}  // namespace
}  // namespace tarrowin::test
