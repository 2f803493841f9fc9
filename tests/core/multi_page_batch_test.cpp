// ConvertForms with forms of several pages: which road it takes, and the sentences of its closing
// box.
#include "core/form_batch.h"
#include "multipage/paged_session.h"

namespace tarrowin::test {
namespace {

constexpr std::string_view kTitle = "Access to Visual Basic Tarrowin";
constexpr std::string_view kTime = "Conversion completed in: 00:00 seconds.";
constexpr std::string_view kReopenForm =
    "To convert this Form to Visual Basic, close and then re-open the database again.\r\n\r\n";
constexpr std::string_view kReopenForms =
    "To convert these Forms to Visual Basic, close and then re-open the database again.\r\n\r\n";

enum class Mode { kTabForm, kSingleForms };

Json namedPages(std::string_view name) {
  Json entry = pagedForm(twoPages());
  entry["name"] = name;
  return entry;
}

class MultiPageBatch : public testing::Test {
 protected:
  void convert(const std::vector<std::string>& names, Mode mode) {
    main.window.optMultiPage = mode == Mode::kTabForm ? 0 : 1;
    session.select(ObjectList::kForms, names);
    ConvertForms(main, false);
  }
  // The text of the closing box.
  std::string summary() {
    EXPECT_FALSE(session.user.boxes.empty());
    return session.user.boxes.empty() ? "" : session.user.boxes.back().text;
  }
  std::string directory() const { return session.out().string() + "/"; }
  std::string text(std::string_view sentence, std::string_view end) {
    return std::string(sentence) + "\r\n" + std::string(end) + std::string(kTime);
  }

  PagedSession session;
  MainObject& main = session.main;
};

TEST_F(MultiPageBatch, OneFormToATabForm) {
  session.openForms({namedPages("Paged")});
  convert({"Paged"}, Mode::kTabForm);
  ASSERT_EQ(session.user.boxes.size(), 2u);
  EXPECT_EQ(session.user.boxes[0],
            (Box{64, "Successfully created a new Tabbed Form named Form1.", std::string(kTitle)}));
  EXPECT_EQ(session.user.boxes[1],
            (Box{64, text("One Multi-page Form was converted to a Tab Form.", kReopenForm),
                 std::string(kTitle)}));
  EXPECT_EQ(session.storedForms(), (Lines{"Paged", "Form1"}));
  EXPECT_TRUE(fileNames(session.out()).empty());
}

TEST_F(MultiPageBatch, OneFormToSingleForms) {
  session.openForms({namedPages("Paged")});
  convert({"Paged"}, Mode::kSingleForms);
  ASSERT_EQ(session.user.boxes.size(), 2u);
  EXPECT_EQ(
      session.user.boxes[0],
      (Box{64, "Successfully created 2 new Forms named Form1 and Form2.", std::string(kTitle)}));
  EXPECT_EQ(session.user.boxes[1].text,
            text("One Multi-page Form was converted to single Forms.", kReopenForms));
  EXPECT_EQ(session.storedForms(), (Lines{"Paged", "Form1", "Form2"}));
  EXPECT_TRUE(fileNames(session.out()).empty());
}

TEST_F(MultiPageBatch, SeveralFormsToTabForms) {
  session.openForms({namedPages("A"), namedPages("B")});
  convert({"A", "B"}, Mode::kTabForm);
  EXPECT_EQ(session.onlyBox().text,
            text(" 2 Multi-page Forms were converted to Tab Form.", kReopenForms));
  EXPECT_EQ(session.storedForms(), (Lines{"A", "B", "Form1", "Form2"}));
}

TEST_F(MultiPageBatch, SeveralFormsToSingleForms) {
  session.openForms({namedPages("A"), namedPages("B"), namedPages("C")});
  convert({"A", "B", "C"}, Mode::kSingleForms);
  EXPECT_EQ(session.onlyBox().text,
            text(" 3 Multi-page Forms were converted to single Forms.", kReopenForms));
  EXPECT_EQ(session.storedForms().size(), 9u);
}

TEST_F(MultiPageBatch, TheNewNamesAreToldOnlyWhenASingleFormIsSelected) {
  session.openForms({namedPages("Paged"), form("Plain")});
  convert({"Paged", "Plain"}, Mode::kSingleForms);
  EXPECT_EQ(session.user.boxes.size(), 1u);
  session.clearBoxes();
  convert({"Paged", "Plain"}, Mode::kTabForm);
  EXPECT_EQ(session.user.boxes.size(), 1u);
  session.clearBoxes();
  convert({"Paged"}, Mode::kSingleForms);
  EXPECT_EQ(session.user.boxes.size(), 2u);
}

TEST_F(MultiPageBatch, ConvertAllOfAListOfOneFormTellsTheNewNames) {
  session.openForms({namedPages("Paged")});
  main.window.optMultiPage = 1;
  ConvertForms(main, true);
  ASSERT_EQ(session.user.boxes.size(), 2u);
  EXPECT_EQ(session.user.boxes[0].text, "Successfully created 2 new Forms named Form1 and Form2.");
}

TEST_F(MultiPageBatch, AMultiPageFormCountsNeitherAsConvertedNorAsFailed) {
  session.openForms({namedPages("Paged"), form("Plain")});
  convert({"Paged", "Plain"}, Mode::kTabForm);
  EXPECT_EQ(session.onlyBox().text,
            "Successfully converted Access Form: Plain to Visual Basic Form: "
            "Plain.frm.\r\n\r\nConverted Form is saved in directory: " +
                directory() + "\r\n\r\n" +
                text("One Multi-page Form was converted to a Tab Form.", kReopenForm));
  EXPECT_EQ(fileNames(session.out()), (Lines{"Plain.frm"}));
}

TEST_F(MultiPageBatch, TheSentencesFollowTheProjectOfSeveralForms) {
  session.openForms({form("A"), namedPages("Paged"), form("B"), namedPages("Other")});
  convert({"A", "Paged", "B", "Other"}, Mode::kSingleForms);
  EXPECT_EQ(session.onlyBox().text,
            "Successfully converted 2 Access Forms to Visual Basic Forms. \r\n\r\nA Visual Basic "
            "Project file: Orders.vbp is saved in directory: " +
                directory() + "\r\n\r\n" +
                text(" 2 Multi-page Forms were converted to single Forms.", kReopenForms));
  EXPECT_EQ(fileNames(session.out()), (Lines{"A.frm", "B.frm", "Orders.vbp"}));
}

TEST_F(MultiPageBatch, OfTheSummaryTheNameIsTheLastSelectedOne) {
  session.openForms({form("Plain"), namedPages("Paged")});
  convert({"Plain", "Paged"}, Mode::kTabForm);
  EXPECT_TRUE(session.onlyBox().text.starts_with(
      "Successfully converted Access Form: Paged to Visual Basic Form: Plain.frm.\r\n\r\n"));
}

TEST_F(MultiPageBatch, AloneItGetsNoProject) {
  session.openForms({namedPages("A"), namedPages("B")});
  convert({"A", "B"}, Mode::kTabForm);
  EXPECT_TRUE(fileNames(session.out()).empty());
  EXPECT_TRUE(main.state.mstrVbForms.entries().empty());
  EXPECT_FALSE(main.state.gblnProjectNeeded);
}

TEST_F(MultiPageBatch, ARefusedFormIsNotLookedAt) {
  Json refused = namedPages("Refused");
  refused["openError"] = 2601;
  session.openForms({refused});
  convert({"Refused"}, Mode::kTabForm);
  ASSERT_EQ(session.user.boxes.size(), 2u);
  EXPECT_EQ(session.user.boxes[0].text, "You don't have permission to open Form Refused.");
  EXPECT_EQ(session.user.boxes[1].text,
            "Unable to convert Access Forms to Visual Basic Forms.\r\n\r\n");
  EXPECT_EQ(session.storedForms(), (Lines{"Refused"}));
}

TEST_F(MultiPageBatch, ARefusedFormBesideAMultiPageOneStaysUnmentioned) {
  Json refused = form("Refused");
  refused["openError"] = 2601;
  session.openForms({refused, namedPages("Paged")});
  convert({"Refused", "Paged"}, Mode::kTabForm);
  ASSERT_EQ(session.user.boxes.size(), 2u);
  EXPECT_EQ(summary(), text("One Multi-page Form was converted to a Tab Form.", kReopenForm));
}

TEST_F(MultiPageBatch, TheNewFormsAreConvertedOnceTheDatabaseIsOpenedAnew) {
  session.openForms({namedPages("Paged")});
  convert({"Paged"}, Mode::kSingleForms);
  EXPECT_EQ(main.window.list(ObjectList::kForms).size(), 1u);
  session.reopen();
  ASSERT_EQ(main.window.list(ObjectList::kForms).size(), 3u);
  convert({"Form1", "Form2"}, Mode::kSingleForms);
  EXPECT_EQ(fileNames(session.out()), (Lines{"Form1.frm", "Form2.frm", "Orders.vbp"}));
  EXPECT_TRUE(session.onlyBox().text.starts_with(
      "Successfully converted 2 Access Forms to Visual Basic Forms. "));
}

TEST_F(MultiPageBatch, ATabFormMakesAProjectDueOnceItIsConverted) {
  session.openForms({namedPages("Paged")});
  convert({"Paged"}, Mode::kTabForm);
  session.reopen();
  convert({"Form1"}, Mode::kTabForm);
  EXPECT_EQ(fileNames(session.out()), (Lines{"Form1.frm", "Form1.vbp"}));
}

TEST_F(MultiPageBatch, ATabControlsPagesAreNoPageBreaks) {
  session.openForms(
      {form("Tabbed", {control("tab", 123, at(0, 0)), control("Page1", 124, at(0, 0), "tab")})});
  convert({"Tabbed"}, Mode::kSingleForms);
  EXPECT_EQ(session.storedForms(), (Lines{"Tabbed"}));
  EXPECT_EQ(fileNames(session.out()), (Lines{"Tabbed.frm", "Tabbed.vbp"}));
}

TEST_F(MultiPageBatch, AContinuousFormWithPageBreaksIsRestructured) {
  Json paged = namedPages("Paged");
  paged["properties"]["DefaultView"] = 1;
  session.openForms({paged});
  main.window.optContinuous = 1;
  convert({"Paged"}, Mode::kTabForm);
  EXPECT_TRUE(fileNames(session.out()).empty());
  EXPECT_EQ(session.storedForms(), (Lines{"Paged", "Form1"}));
  EXPECT_EQ(summary(), text("One Multi-page Form was converted to a Tab Form.", kReopenForm));
}

TEST_F(MultiPageBatch, AFailedRestructuringIsStillTold) {
  session.openForms({namedPages("Paged")});
  WatchedAccess watch(main);
  watch.fail("CreateForm(", 2601, "Refused.");
  convert({"Paged"}, Mode::kSingleForms);
  ASSERT_GE(session.user.boxes.size(), 2u);
  EXPECT_EQ(session.user.boxes[0].text,
            "CreateNewForm() - Error #2601 Property Name = \r\nRefused.");
  EXPECT_EQ(summary(), text("One Multi-page Form was converted to single Forms.", kReopenForms));
}

TEST_F(MultiPageBatch, TheFormIsOpenedInDesignViewBeforeItIsLookedAt) {
  session.openForms({namedPages("Paged")});
  WatchedAccess watch(main);
  convert({"Paged"}, Mode::kTabForm);
  ASSERT_GE(watch.log.size(), 4u);
  EXPECT_EQ(watch.log[0], R"(DoCmd.OpenForm("Paged", 1, , , -1, 1))");
  EXPECT_EQ(watch.log[1], R"(DoCmd.Close(2, "Paged", 0))");
  EXPECT_EQ(watch.log[2], R"(DoCmd.OpenForm("Paged", 3, , , -1, 1))");
  EXPECT_EQ(watch.log[3], R"(SendKeys("{F5}", False))");
}

}  // namespace
}  // namespace tarrowin::test
