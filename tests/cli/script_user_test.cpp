// Which answer a box or dialog takes, and the events of the transcript.
#include "cli/script_user.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "preview/preview_surface.h"

namespace tarrowin {
namespace {

class ScriptUserTest : public testing::Test {
 protected:
  std::vector<std::string> transcript;
  ScriptUser user{CodePage(), [](const std::string& path) { return "/case/" + path; },
                  [this](const Json& event) { transcript.push_back(jsonText(event)); }};

  Answer ask(int style) { return user.messageBox(style, "Text", "Title"); }
};

TEST_F(ScriptUserTest, YesNoBoxTakesTheNextAnswer) {
  user.queueAnswers({"no", "yes"});
  EXPECT_EQ(ask(message_style::kYesNoQuestion), Answer::kNo);
  EXPECT_EQ(ask(message_style::kYesNoQuestionDefaultNo), Answer::kYes);
}

TEST_F(ScriptUserTest, EmptyQueueGivesTheDefaultButton) {
  EXPECT_EQ(ask(message_style::kYesNoQuestion), Answer::kYes);
  EXPECT_EQ(ask(message_style::kYesNoCritical), Answer::kYes);
  EXPECT_EQ(ask(message_style::kYesNoQuestionDefaultNo), Answer::kNo);
  EXPECT_EQ(ask(message_style::kInformation), Answer::kOk);
  EXPECT_EQ(ask(message_style::kCritical), Answer::kOk);
}

TEST_F(ScriptUserTest, OkBoxTakesAnAnswerOnlyWhenItIsOk) {
  user.queueAnswers({"no", "ok", "yes"});
  EXPECT_EQ(ask(message_style::kInformation), Answer::kOk);
  EXPECT_EQ(ask(message_style::kYesNoQuestion), Answer::kNo);
  EXPECT_EQ(ask(message_style::kInformation), Answer::kOk);
  EXPECT_EQ(ask(message_style::kYesNoQuestionDefaultNo), Answer::kYes);
}

TEST_F(ScriptUserTest, AnswersQueueUpBehindThoseThatWait) {
  user.queueAnswers({"no"});
  user.queueAnswers({"yes"});
  EXPECT_EQ(ask(message_style::kYesNoQuestion), Answer::kNo);
  EXPECT_EQ(ask(message_style::kYesNoQuestionDefaultNo), Answer::kYes);
}

TEST_F(ScriptUserTest, AnswerThatFitsNoQuestionLeavesTheDefaultButton) {
  user.queueAnswers({"ok"});
  EXPECT_EQ(ask(message_style::kYesNoQuestionDefaultNo), Answer::kNo);
  ASSERT_EQ(transcript.size(), 2u);
  EXPECT_EQ(transcript[0],
            R"({"event":"warning","text":"the answer \"ok\" met the question \"Text\""})");
}

TEST_F(ScriptUserTest, DialogTakesTheNextAnswerAsAPath) {
  user.queueAnswers({"a.mdb", ""});
  EXPECT_EQ(user.openFile({}), "/case/a.mdb");
  EXPECT_EQ(user.openFile({}), "");
}

TEST_F(ScriptUserTest, DialogIsCancelledByAnEmptyQueue) { EXPECT_EQ(user.openFile({}), ""); }

TEST_F(ScriptUserTest, ChosenPathGoesBeforeTheQueueOnce) {
  user.queueAnswers({"queued.mdb"});
  user.choosePath("chosen.mdb");
  EXPECT_EQ(user.openFile({}), "/case/chosen.mdb");
  EXPECT_EQ(user.openFile({}), "/case/queued.mdb");
}

TEST_F(ScriptUserTest, ChosenEmptyPathCancelsAndKeepsTheQueue) {
  user.queueAnswers({"queued.mdb"});
  user.choosePath("");
  EXPECT_EQ(user.openFile({}), "");
  EXPECT_EQ(user.openFile({}), "/case/queued.mdb");
}

TEST_F(ScriptUserTest, PathBecomesTextOfTheCodePage) {
  user.choosePath("M\xc3\xa4rz.mdb");
  EXPECT_EQ(user.openFile({}), "/case/M\xe4rz.mdb");
}

TEST_F(ScriptUserTest, MessageEventHasItsKeysInOrderAndItsTextAsItStands) {
  user.messageBox(64, "M\xe4rz\r\n\"x\"\x93", "Titel");
  ASSERT_EQ(transcript.size(), 1u);
  EXPECT_EQ(transcript[0],
            "{\"event\":\"message\",\"style\":64,\"title\":\"Titel\","
            "\"text\":\"M\xc3\xa4rz\\r\\n\\\"x\\\"\xe2\x80\x9c\",\"answer\":\"ok\"}");
}

TEST_F(ScriptUserTest, CaptionEventOnlyWhenItChanges) {
  MainWindow window;
  user.captionChanged(window);
  EXPECT_TRUE(transcript.empty());
  window.caption = "A";
  user.captionChanged(window);
  user.captionChanged(window);
  window.caption = "B";
  user.captionChanged(window);
  EXPECT_EQ(transcript, (std::vector<std::string>{R"({"event":"caption","text":"A"})",
                                                  R"({"event":"caption","text":"B"})"}));
}

TEST_F(ScriptUserTest, ListsEventNamesAllSixInTheOrderOfTheFormat) {
  MainWindow window;
  window.list(ObjectList::kQueries).push_back({"Q", "", false});
  window.list(ObjectList::kObjects).push_back({"F\xfc", "", false});
  user.listsFilled(window);
  EXPECT_EQ(transcript,
            (std::vector<std::string>{
                "{\"event\":\"lists\",\"lstQueries\":[\"Q\"],\"lstForms\":[],\"lstReports\":[],"
                "\"lstMacros\":[],\"lstModules\":[],\"lstObjects\":[\"F\xc3\xbc\"]}"}));
}

TEST_F(ScriptUserTest, PreviewEventHoldsTheWholeSurface) {
  PreviewSurface surface;
  surface.accessName = "F\xfc";
  surface.sections = {{0, 3000}};
  surface.put("Caption", "\xfc");
  PreviewControl& control = surface.controls.emplace_back();
  control.className = "VB.Frame";
  control.name = "fra";
  control.container = "tab";
  control.put("Left", 5);
  control.put("Visible", true);
  control.tabCaptions = {"One"};
  surface.mstrTabControls = {"0fra"};
  user.showPreview(surface);
  EXPECT_EQ(
      transcript,
      (std::vector<std::string>{
          "{\"event\":\"preview\",\"form\":\"F\xc3\xbc\",\"sections\":[{\"number\":0,\"height\":"
          "3000}],"
          "\"totalHeight\":3000,\"properties\":{\"Caption\":\"\xc3\xbc\"},\"controls\":[{\"class\":"
          "\"VB.Frame\",\"name\":\"fra\",\"container\":\"tab\",\"properties\":{\"Left\":5,"
          "\"Visible\":"
          "true},\"tabs\":[\"One\"]}],\"tabControls\":[\"0fra\"]}"}));
}

TEST_F(ScriptUserTest, ResetForgetsAnswersAndCaption) {
  MainWindow window;
  window.caption = "A";
  user.captionChanged(window);
  user.queueAnswers({"no"});
  user.reset();
  user.captionChanged(window);
  EXPECT_EQ(ask(message_style::kYesNoQuestion), Answer::kYes);
  ASSERT_EQ(transcript.size(), 3u);
  EXPECT_EQ(transcript[0], transcript[1]);
}

}  // namespace
}  // namespace tarrowin
