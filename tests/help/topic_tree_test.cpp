// The menu tree: where each label leads, that nothing is dead or unreachable, and what must be
// said.
#include "help/topic_tree.h"

#include <set>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "help/about.h"
#include "help/control_topics.h"
#include "help/help_session.h"
#include "help/help_topics.h"

namespace tarrowin::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

const Topic* find(TopicId id) {
  for (const Topic& topic : helpTopics()) {
    if (topic.id == id) return &topic;
  }
  return nullptr;
}

Balloon balloonOf(TopicId id) {
  HelpSession session;
  showTopic(session.main, id);
  return session.user.balloons.at(0);
}

// The headings met when the labels of these numbers are chosen from a topic on.
std::vector<std::string> walk(TopicId from, std::deque<int> choices) {
  HelpSession session;
  session.user.choices = std::move(choices);
  showTopic(session.main, from);
  return session.headings();
}

TEST(HelpTopics, MenusHaveTheirHeadingsAndLabels) {
  const Balloon mainTopic = balloonOf(TopicId::kMain);
  EXPECT_EQ(mainTopic.heading, "Tarrowin");
  EXPECT_THAT(mainTopic.labels, ElementsAre("Using Tarrowin", "Access Objects", "Conversion Tips",
                                            "VBA Code", "About Tarrowin"));
  const Balloon usingTopic = balloonOf(TopicId::kUsing);
  EXPECT_EQ(usingTopic.heading, "Tarrowin Help");
  EXPECT_THAT(usingTopic.labels,
              ElementsAre("Tarrowin Overview", "Converting Objects", "Technical Support"));
  const Balloon objects = balloonOf(TopicId::kObjects);
  EXPECT_EQ(objects.heading, "Converting Objects");
  EXPECT_THAT(objects.labels,
              ElementsAre("Selecting Multiple Objects", "Visual Basic and Converted Objects",
                          "Conversion Tips", "ActiveX Controls", "Previous Versions of Access"));
  const Balloon converted = balloonOf(TopicId::kConvertedObjects);
  EXPECT_EQ(converted.heading, "Visual Basic and Converted Objects");
  EXPECT_THAT(converted.labels, ElementsAre("Conversion Hints"));
  const Balloon about = balloonOf(TopicId::kAbout);
  EXPECT_EQ(about.heading, "About Tarrowin");
  EXPECT_THAT(about.labels, ElementsAre("System Information"));
}

TEST(HelpTopics, TheOtherTopicsHaveTheirHeadings) {
  EXPECT_EQ(balloonOf(TopicId::kOverview).heading, "Tarrowin Overview");
  EXPECT_EQ(balloonOf(TopicId::kControls).heading, "Access Objects");
  EXPECT_EQ(balloonOf(TopicId::kConverted).heading, "Converted Controls");
  EXPECT_EQ(balloonOf(TopicId::kActiveX).heading, "ActiveX Custom Controls");
  EXPECT_EQ(balloonOf(TopicId::kEarlierVersions).heading, "Previous Versions of Access");
  EXPECT_EQ(balloonOf(TopicId::kHints).heading, "Conversion Hints");
  EXPECT_EQ(balloonOf(TopicId::kVbaCode).heading, "VBA Code");
  EXPECT_EQ(balloonOf(TopicId::kTips).heading, "Visual Basic Tips");
  EXPECT_EQ(balloonOf(TopicId::kSelection).heading, "Selecting Multiple Modules");
  EXPECT_EQ(balloonOf(TopicId::kDataRepeater).heading, "Using the DataRepeater Control");
  EXPECT_EQ(balloonOf(TopicId::kSupport).heading, "Tarrowin Support");
  EXPECT_EQ(balloonOf(TopicId::kSystemInformation).heading, "System Information");
}

TEST(HelpTopics, EachLabelOfTheMainTopicOpensItsTopic) {
  EXPECT_THAT(walk(TopicId::kMain, {1}), ElementsAre("Tarrowin", "Tarrowin Help"));
  EXPECT_THAT(walk(TopicId::kMain, {2}), ElementsAre("Tarrowin", "Access Objects"));
  EXPECT_THAT(walk(TopicId::kMain, {3}), ElementsAre("Tarrowin", "Visual Basic Tips"));
  EXPECT_THAT(walk(TopicId::kMain, {4}), ElementsAre("Tarrowin", "VBA Code"));
  EXPECT_THAT(walk(TopicId::kMain, {5}), ElementsAre("Tarrowin", "About Tarrowin"));
}

TEST(HelpTopics, EachLabelOfTheMenusBelowOpensItsTopic) {
  EXPECT_THAT(walk(TopicId::kUsing, {1}), ElementsAre("Tarrowin Help", "Tarrowin Overview"));
  EXPECT_THAT(walk(TopicId::kUsing, {2}), ElementsAre("Tarrowin Help", "Converting Objects"));
  EXPECT_THAT(walk(TopicId::kUsing, {3}), ElementsAre("Tarrowin Help", "Tarrowin Support"));
  const std::string objects = "Converting Objects";
  EXPECT_THAT(walk(TopicId::kObjects, {1}), ElementsAre(objects, "Selecting Multiple Modules"));
  EXPECT_THAT(walk(TopicId::kObjects, {2, 1}),
              ElementsAre(objects, "Visual Basic and Converted Objects", "Conversion Hints"));
  EXPECT_THAT(walk(TopicId::kObjects, {3}), ElementsAre(objects, "Visual Basic Tips"));
  EXPECT_THAT(walk(TopicId::kObjects, {4}), ElementsAre(objects, "ActiveX Custom Controls"));
  EXPECT_THAT(walk(TopicId::kObjects, {5}), ElementsAre(objects, "Previous Versions of Access"));
  for (int paragraph = 1; paragraph <= 5; ++paragraph) {
    EXPECT_THAT(walk(TopicId::kControls, {paragraph}),
                ElementsAre("Access Objects", "Converted Controls"));
  }
}

TEST(HelpTopics, AParagraphLeadsNowhere) {
  EXPECT_THAT(walk(TopicId::kHints, {2, 1}), ElementsAre("Conversion Hints"));
}

TEST(HelpTopics, ANumberWithoutALabelLeadsNowhere) {
  EXPECT_THAT(walk(TopicId::kAbout, {2}), ElementsAre("About Tarrowin"));
  EXPECT_THAT(walk(TopicId::kAbout, {6}), ElementsAre("About Tarrowin"));
  EXPECT_THAT(walk(TopicId::kAbout, {-1}), ElementsAre("About Tarrowin"));
}

TEST(HelpTopics, NothingOfTheBalloonBeforeRemains) {
  HelpSession session;
  session.user.choices = {3};  // labels, then paragraphs
  showTopic(session.main, TopicId::kMain);
  showTopic(session.main, TopicId::kOverview);  // neither
  ASSERT_EQ(session.user.balloons.at(1).labels.size(), 5u);
  EXPECT_NE(session.user.balloons.at(1).labels[0], "Using Tarrowin");
  EXPECT_TRUE(session.user.balloons.at(2).labels.empty());
}

TEST(HelpTopics, TheWayInFromTheToolbar) {
  HelpSession session;
  showMainTopic(session.main);
  showSupportTopic(session.main);
  showAboutTopic(session.main);
  EXPECT_THAT(session.headings(), ElementsAre("Tarrowin", "Tarrowin Support", "About Tarrowin"));
}

TEST(HelpTopics, NoLinkIsDeadAndNoTopicOutOfReach) {
  std::set<TopicId> ids;
  for (const Topic& topic : helpTopics()) {
    EXPECT_TRUE(ids.insert(topic.id).second) << topic.heading << " stands twice";
  }
  std::set<TopicId> reached;
  std::vector<TopicId> next = {TopicId::kMain, TopicId::kSupport, TopicId::kAbout};
  const auto follow = [&](const TopicLabels& labels) {
    for (const TopicLabel& label : labels) {
      if (!label.text.empty()) next.push_back(label.leadsTo);
    }
  };
  for (const ControlTopic& topic : controlTopics()) follow(topic.labels);
  while (!next.empty()) {
    const TopicId id = next.back();
    next.pop_back();
    const Topic* topic = find(id);
    ASSERT_NE(topic, nullptr) << "no topic of number " << static_cast<int>(id);
    if (reached.insert(id).second) follow(topic->labels);
  }
  EXPECT_EQ(reached, ids);
}

TEST(HelpTopics, EveryTopicSaysSomethingInPlainTextWithoutAddresses) {
  for (const Topic& topic : helpTopics()) {
    const Balloon balloon = balloonOf(topic.id);
    const std::string words = wordsOf(balloon);
    EXPECT_FALSE(balloon.text.empty()) << topic.heading;
    EXPECT_LE(balloon.labels.size(), 5u) << topic.heading;
    expectPlainText(words);
    EXPECT_THAT(words, Not(HasSubstr("@")));
    EXPECT_THAT(words, Not(HasSubstr("http")));
    EXPECT_THAT(words, Not(HasSubstr("www")));
  }
}

// A topic with both would never show its paragraphs, and a gap hides what stands behind it.
TEST(HelpTopics, NoLabelOrParagraphIsHidden) {
  for (const Topic& topic : helpTopics()) {
    std::size_t labels = 0, paragraphs = 0;
    for (const TopicLabel& label : topic.labels) labels += !label.text.empty();
    for (const std::string_view paragraph : topic.paragraphs) paragraphs += !paragraph.empty();
    EXPECT_EQ(balloonOf(topic.id).labels.size(), labels + paragraphs) << topic.heading;
  }
}

TEST(HelpTopics, VisualBasicTipsTellTheCodeRules) {
  const std::string words = wordsOf(balloonOf(TopicId::kTips));
  EXPECT_THAT(words, HasSubstr("CloseCurrentDatabase, NewCurrentDatabase and OpenCurrentDatabase "
                               "are commented because they have no Visual Basic equivalent"));
  EXPECT_THAT(words, HasSubstr("Set dbs = CurrentDB turns into Set dbs = OpenDatabase"));
  EXPECT_THAT(words, HasSubstr("DoCmd.OpenForm \"Orders\" turns into Orders.Show"));
  EXPECT_THAT(words, HasSubstr("a variable name in place of the quoted name the line comes out as "
                               "a comment"));
  EXPECT_THAT(words, HasSubstr("All SysCmd commands are commented"));
}

TEST(HelpTopics, VbaCodeTellsTheErrorsAfterAConversion) {
  const std::string words = wordsOf(balloonOf(TopicId::kVbaCode));
  EXPECT_THAT(words, HasSubstr("a DAO reference is added automatically to projects that need it"));
  EXPECT_THAT(words, HasSubstr("As Form_Test must be changed to As Form"));
  EXPECT_THAT(words, HasSubstr("Forms!<FormName>.Visible"));
  EXPECT_THAT(words, HasSubstr("must be written <FormName>.Visible"));
}

TEST(HelpTopics, ConversionHintsAreFour) {
  const Balloon balloon = balloonOf(TopicId::kHints);
  const std::string words = wordsOf(balloon);
  EXPECT_EQ(balloon.labels.size(), 4u);
  EXPECT_THAT(words, HasSubstr("Converted objects run in 32-bit Visual Basic 6.0 only"));
  EXPECT_THAT(words, HasSubstr("LOG file"));
  EXPECT_THAT(words, HasSubstr("has both Form_Open and Form_Load, combine them"));
}

// The message after a conversion refers to the help for this.
TEST(HelpTopics, TheLimitOfControlNamesIsExplained) {
  EXPECT_THAT(wordsOf(balloonOf(TopicId::kHints)), HasSubstr("254 control names"));
}

TEST(HelpTopics, EverySupportedActiveXClassIsListed) {
  const std::string words = wordsOf(balloonOf(TopicId::kActiveX));
  for (const char* name :
       {"Adodc", "Calendar", "Common Dialog", "DataGrid", "ImageList", "ImageCombo", "ListView",
        "Slider", "TabStrip", "ToolBar", "ProgressBar", "RichTextBox", "StatusBar", "TreeView"}) {
    EXPECT_THAT(words, HasSubstr(name));
  }
}

TEST(HelpTopics, AboutPrintsTheOneLineOfTheProduct) {
  EXPECT_EQ(AboutAppInfo().find("Tarrowin " + programVersion()), 0u);
  EXPECT_EQ(AboutAppInfo().find('\n'), std::string::npos);
  EXPECT_FALSE(programVersion().empty());
  EXPECT_EQ(balloonOf(TopicId::kAbout).text.find(AboutAppInfo() + "\r\n"), 0u);
}

TEST(HelpTopics, SystemInformationNamesWhatItPromises) {
  const std::string words = balloonOf(TopicId::kSystemInformation).text;
  EXPECT_THAT(words, HasSubstr("Version: " + programVersion() + "\r\n"));
  EXPECT_THAT(words, HasSubstr("Operating system: Linux "));
  EXPECT_THAT(words, ::testing::ContainsRegex("Memory: [1-9][0-9]* MB"));
}

}  // namespace
}  // namespace tarrowin::test
