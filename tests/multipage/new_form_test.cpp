// A form split into one form a page: which control goes to which form, what each form gets, in
// which order Access is asked, and what the user is told.
#include "multipage/new_form.h"

#include "core/form_batch.h"
#include "core/statement.h"
#include "multipage/multi_page_form.h"
#include "multipage/paged_session.h"

namespace tarrowin::test {
namespace {

constexpr std::string_view kTitle = "Access to Visual Basic Tarrowin";

class NewForm : public testing::Test {
 protected:
  void split(bool blnShowResult = false) { CreateNewForm(main, "Paged", blnShowResult); }
  void split(const std::vector<Json>& controls) {
    session.openPaged(controls);
    split();
    EXPECT_TRUE(session.user.boxes.empty()) << testing::PrintToString(session.user.boxes);
  }

  PagedSession session;
  MainObject& main = session.main;
};

TEST_F(NewForm, OnePageBreakGivesTwoFormsAndAControlAtItsTopGoesToTheSecond) {
  split({box("txtAbove", 999), pageBreak(1000), box("txtAt", 1000), box("txtBelow", 1250)});
  EXPECT_EQ(session.storedForms(), (Lines{"Paged", "Form1", "Form2"}));
  EXPECT_EQ(session.controlsOf("Form1"), (Lines{"txtAbove 999"}));
  EXPECT_EQ(session.controlsOf("Form2"), (Lines{"txtAt 0", "txtBelow 250"}));
}

TEST_F(NewForm, AMiddlePageEndsWhereTheNextBegins) {
  split({box("txtA", 0), box("txtB", 1999), box("txtC", 2000), pageBreak(1000), pageBreak(2000)});
  EXPECT_EQ(session.controlsOf("Form1"), (Lines{"txtA 0"}));
  EXPECT_EQ(session.controlsOf("Form2"), (Lines{"txtB 999"}));
  EXPECT_EQ(session.controlsOf("Form3"), (Lines{"txtC 0"}));
}

TEST_F(NewForm, AFormWithoutAPageBreakNeverGetsThere) {
  session.openForms({form("Plain", {box("txtA", 0)})});
  main.state.gappAccess.doCmd().OpenForm("Plain", 1);
  EXPECT_FALSE(IsMultiPageForm(main.state.gappAccess, "Plain"));
  main.window.optMultiPage = 1;
  session.select(ObjectList::kForms, {"Plain"});
  ConvertForms(main, false);
  EXPECT_EQ(session.storedForms(), (Lines{"Plain"}));
  EXPECT_EQ(fileNames(session.out()), (Lines{"Plain.frm"}));
}

TEST_F(NewForm, AskedForAFormWithoutAPageBreakItMakesOneEmptyForm) {
  session.openPaged({box("txtA", 0)});
  split(true);
  EXPECT_EQ(session.onlyBox(),
            (Box{64, "Successfully created 1 new Form named Form1.", std::string(kTitle)}));
  EXPECT_EQ(session.storedForms(), (Lines{"Paged", "Form1"}));
  EXPECT_EQ(session.controlsOf("Form1"), Lines{});
}

TEST_F(NewForm, PageBreaksOutOfOrderBoundPagesInTheOrderOfTheCollection) {
  split({pageBreak(2000), pageBreak(1000), box("txtA", 500), box("txtB", 1500), box("txtC", 2500)});
  EXPECT_EQ(session.controlsOf("Form1"), (Lines{"txtA 500", "txtB 1500"}));
  EXPECT_EQ(session.controlsOf("Form2"), Lines{});
  EXPECT_EQ(session.controlsOf("Form3"), (Lines{"txtB 500", "txtC 1500"}));
}

TEST_F(NewForm, PageBreaksAtTheSameTopLeaveAnEmptyFormBetween) {
  split({pageBreak(1000), pageBreak(1000), box("txtA", 999), box("txtB", 1000)});
  EXPECT_EQ(session.controlsOf("Form1"), (Lines{"txtA 999"}));
  EXPECT_EQ(session.controlsOf("Form2"), Lines{});
  EXPECT_EQ(session.controlsOf("Form3"), (Lines{"txtB 0"}));
}

TEST_F(NewForm, APageBreakAtTop0LeavesTheFirstPageEmpty) {
  split({pageBreak(0), box("txtA", 0), box("txtB", 800)});
  EXPECT_EQ(session.storedForms(), (Lines{"Paged", "Form1", "Form2"}));
  EXPECT_EQ(session.controlsOf("Form1"), Lines{});
  EXPECT_EQ(session.controlsOf("Form2"), (Lines{"txtA 0", "txtB 800"}));
}

TEST_F(NewForm, APageBreakAtTop0BehindAnotherLooksLikeTheEnd) {
  split({pageBreak(1000), pageBreak(0), box("txtA", 500), box("txtB", 1500)});
  EXPECT_EQ(session.controlsOf("Form1"), (Lines{"txtA 500"}));
  EXPECT_EQ(session.controlsOf("Form2"), (Lines{"txtB 500"}));
  EXPECT_EQ(session.controlsOf("Form3"), (Lines{"txtA 500", "txtB 1500"}));
}

TEST_F(NewForm, APageBreakInAHeaderCountsByItsOwnTop) {
  split({pageBreak(200, 1), box("txtA", 100), box("txtB", 1500)});
  EXPECT_EQ(session.controlsOf("Form1"), (Lines{"txtA 100"}));
  EXPECT_EQ(session.controlsOf("Form2"), (Lines{"txtB 1300"}));
}

TEST_F(NewForm, AControlInAHeaderFallsOnThePageOfItsOwnTop) {
  split({pageBreak(300), box("hdrA", 100, 1), box("hdrB", 350, 1), box("ftrA", 300, 2),
         box("ftrB", 299, 2)});
  EXPECT_EQ(session.controlsOf("Form1"), (Lines{"hdrA 100 section 1", "ftrB 299 section 2"}));
  // They keep their own Top, which is not made relative to a page.
  EXPECT_EQ(session.controlsOf("Form2"), (Lines{"hdrB 350 section 1", "ftrA 300 section 2"}));
}

TEST_F(NewForm, ALabelStaysWithItsTextBox) {
  Json attached = label("lblB", 1200);
  attached["parent"] = "txtB";
  split({box("txtA", 100), pageBreak(1000), box("txtB", 1200), attached});
  EXPECT_EQ(session.controlsOf("Form2"), (Lines{"txtB 200", "lblB 200 in txtB"}));
}

TEST_F(NewForm, AControlWhoseParentIsOnAnotherPageIsNotMade) {
  Json attached = label("lblB", 1200);
  attached["parent"] = "txtA";
  split({box("txtA", 100), pageBreak(1000), box("txtB", 1100), attached, box("txtC", 1300)});
  EXPECT_EQ(session.controlsOf("Form1"), (Lines{"txtA 100"}));
  EXPECT_EQ(session.controlsOf("Form2"), (Lines{"txtB 100", "txtC 300"}));
}

TEST_F(NewForm, NumberingGoesOnFromTheNextFreeName) {
  session.openForms({form("Form1"), pagedForm(twoPages()), form("Form3")});
  split(true);
  EXPECT_EQ(session.onlyBox().text, "Successfully created 2 new Forms named Form2 and Form4.");
  EXPECT_EQ(session.storedForms(), (Lines{"Form1", "Paged", "Form3", "Form2", "Form4"}));
}

TEST_F(NewForm, TwoPagesGiveAnd) {
  session.openPaged(twoPages());
  split(true);
  EXPECT_EQ(session.onlyBox(), (Box{64, "Successfully created 2 new Forms named Form1 and Form2.",
                                    std::string(kTitle)}));
}

TEST_F(NewForm, ThreePagesGiveThroughTo) {
  session.openPaged({pageBreak(1000), pageBreak(2000)});
  split(true);
  EXPECT_EQ(session.onlyBox(),
            (Box{64, "Successfully created 3 new Forms named Form1 through to Form3.",
                 std::string(kTitle)}));
}

TEST_F(NewForm, TheMessageCountsPagesAndNotFormsThatHoldSomething) {
  session.openPaged({pageBreak(1000), pageBreak(2000), pageBreak(3000), pageBreak(4000)});
  split(true);
  EXPECT_EQ(session.onlyBox().text,
            "Successfully created 5 new Forms named Form1 through to Form5.");
}

TEST_F(NewForm, UnaskedItSaysNothing) { split(twoPages()); }

TEST_F(NewForm, TheCodeDoesNotComeAlong) {
  Json paged = pagedForm(twoPages());
  paged["properties"]["Tag"] = "of the template";
  paged["module"] = "Option Compare Database\r\nSub Secret()\r\nEnd Sub\r\n";
  session.openForms({paged});
  split();
  for (const char* name : {"Form1", "Form2"}) {
    EXPECT_EQ(session.formOf(name).text("Tag"), "of the template");
    EXPECT_EQ(session.heightOf(name, 1), 500);
  }
  const Json stored = session.stored();
  for (const Json& entry : stored["forms"])
    if (entry["name"] != "Paged") {
      EXPECT_EQ(entry.value("module", "").find("Secret"), std::string::npos) << entry;
    }
}

TEST_F(NewForm, TheSourceFormStaysAsItIs) {
  session.openPaged(twoPages());
  const Json before = session.stored()["forms"][0];
  split();
  EXPECT_EQ(session.stored()["forms"][0], before);
}

TEST_F(NewForm, TheNewFormsHaveAModuleWhereTheVersionIsAbove3) {
  split(twoPages());
  EXPECT_TRUE(toBoolean(session.formOf("Form1").get("HasModule")));
  EXPECT_TRUE(toBoolean(session.formOf("Form2").get("HasModule")));
}

TEST_F(NewForm, InADatabaseOfVersion3TheyGetNoModule) {
  Json database = PagedSession::databaseOf({pagedForm(twoPages())});
  database["database"]["version"] = "3.0";
  session.openDatabase(database);
  WatchedAccess watch(main);
  split();
  EXPECT_EQ(watch.logged("HasModule"), Lines{});
  EXPECT_FALSE(toBoolean(session.formOf("Form1").get("HasModule")));
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(NewForm, AVersionThatCannotBeReadGivesNoModule) {
  session.openPaged(twoPages());
  WatchedAccess watch(main);
  watch.fail("CurrentDb.Version", 2467);
  split();
  EXPECT_EQ(watch.logged("HasModule"), Lines{});
  EXPECT_EQ(session.storedForms().size(), 3u);
}

TEST_F(NewForm, SectionsOf12000TwipsAreCutInTheDetailTo11520) {
  Json paged = pagedForm(twoPages());
  paged["sections"] = {sectionOf(1, 700), sectionOf(3, 300), sectionOf(0, 10000), sectionOf(4, 400),
                       sectionOf(2, 600)};
  session.openForms({paged});
  split();
  for (const char* name : {"Form1", "Form2"}) {
    EXPECT_EQ(session.heightOf(name, 0), 9520);
    EXPECT_EQ(session.heightOf(name, 1), 700);
    EXPECT_EQ(session.heightOf(name, 2), 600);
    EXPECT_EQ(session.heightOf(name, 3), 300);
    EXPECT_EQ(session.heightOf(name, 4), 400);
  }
  EXPECT_EQ(session.heightOf("Paged", 0), 10000);
}

struct HeightCase {
  std::vector<Json> sections;
  std::int32_t detail;
};

TEST_F(NewForm, OnlyAHeightAbove11520IsCut) {
  const std::vector<HeightCase> cases = {
      {{sectionOf(1, 520), sectionOf(0, 11000)}, 11000},
      {{sectionOf(1, 521), sectionOf(0, 11000)}, 10999},
      {{sectionOf(0, 11520)}, 11520},
      {{sectionOf(0, 12000)}, 11520},
      {{sectionOf(0, 31000), sectionOf(2, 5000)}, 6520},
  };
  for (const HeightCase& each : cases) {
    PagedSession own;
    Json paged = pagedForm(twoPages());
    paged["sections"] = each.sections;
    own.openForms({paged});
    CreateNewForm(own.main, "Paged", false);
    EXPECT_EQ(own.heightOf("Form1", 0), each.detail);
    EXPECT_TRUE(own.user.boxes.empty()) << testing::PrintToString(own.user.boxes);
  }
}

TEST_F(NewForm, HeadersAloneAboveTheLimitLeaveTheDetailAsItIs) {
  Json paged = pagedForm(twoPages());
  paged["sections"] = {sectionOf(1, 12000), sectionOf(0, 2000)};
  session.openForms({paged});
  split();
  EXPECT_EQ(session.heightOf("Form1", 0), 2000);  // a negative height is refused with 2101
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(NewForm, AccessIsAskedInThisOrder) {
  session.openPaged(twoPages());
  WatchedAccess watch(main);
  split();
  Lines operations;
  for (const std::string& entry : watch.log)
    if (entry.find("Properties(") == std::string::npos) operations.push_back(entry);
  const std::string open = R"(DoCmd.OpenForm("Paged", 3, , , -1, 1))";
  EXPECT_EQ(operations,
            (Lines{R"(DoCmd.Close(2, "Paged", 0))", open, R"(SendKeys("{F5}", False))",
                   R"(CreateForm(, "Paged"))", R"(CreateForm(, "Paged").HasModule = True)", open,
                   R"(CreateControl("Form1", 109, 0, "Paged", , 100, 100, 2000, 250))",
                   R"(DoCmd.Close(2, "Form1", 1))", "RefreshDatabaseWindow()",
                   R"(CreateForm(, "Paged"))", R"(CreateForm(, "Paged").HasModule = True)", open,
                   R"(CreateControl("Form2", 109, 0, "Paged", , 100, 200, 2000, 250))",
                   R"(DoCmd.Close(2, "Form2", 1))", "RefreshDatabaseWindow()"}));
}

TEST_F(NewForm, ThePointerIsAnHourglassUntilItIsDone) {
  session.openPaged(twoPages());
  WatchedAccess watch(main);
  std::vector<int> pointers;
  watch.before = [&](const std::string&) { pointers.push_back(main.window.mousePointer); };
  split();
  ASSERT_FALSE(pointers.empty());
  for (const int pointer : pointers) ASSERT_EQ(pointer, 11);
  EXPECT_EQ(main.window.mousePointer, 0);
}

TEST_F(NewForm, TheFormsListShowsTheNewFormsAfterReopening) {
  session.openPaged(twoPages());
  split();
  const auto shown = [&] {
    Lines names;
    for (const ListItem& item : main.window.list(ObjectList::kForms)) names.push_back(item.text);
    return names;
  };
  EXPECT_EQ(shown(), (Lines{"Paged"}));
  session.reopen();
  EXPECT_EQ(shown(), (Lines{"Paged", "Form1", "Form2"}));
  main.state.gappAccess.doCmd().OpenForm("Form2", 1);
  EXPECT_FALSE(IsMultiPageForm(main.state.gappAccess, "Form2"));
}

TEST_F(NewForm, AFailingStatementIsToldAndTheNextOnesRun) {
  session.openPaged(twoPages());
  WatchedAccess watch(main);
  watch.fail("RefreshDatabaseWindow", 2046, "Not now.");
  split(true);
  ASSERT_EQ(session.user.boxes.size(), 3u);
  for (int i = 0; i < 2; ++i) {
    const Box& box = session.user.boxes[static_cast<std::size_t>(i)];
    EXPECT_EQ(box.style, 16);
    EXPECT_EQ(box.title, "Create New Form");
    EXPECT_TRUE(box.text.starts_with("CreateNewForm() - Error #2046 Property Name = ")) << box.text;
    EXPECT_TRUE(box.text.ends_with("\r\nNot now.")) << box.text;
  }
  EXPECT_EQ(session.user.boxes[2].text, "Successfully created 2 new Forms named Form1 and Form2.");
  EXPECT_EQ(session.controlsOf("Form2"), (Lines{"txtB 200"}));
}

TEST_F(NewForm, BeforeAnyPropertyIsInHandTheBoxNamesNone) {
  session.openPaged(twoPages());
  WatchedAccess watch(main);
  watch.fail("DoCmd.Close(2, \"Paged\"", 2501, "Cancelled.");
  split();
  EXPECT_EQ(
      session.onlyBox(),
      (Box{16, "CreateNewForm() - Error #2501 Property Name = \r\nCancelled.", "Create New Form"}));
  EXPECT_EQ(session.storedForms(), (Lines{"Paged", "Form1", "Form2"}));
}

TEST_F(NewForm, WhereNoFormCanBeMadeItEndsAllTheSame) {
  session.openPaged(twoPages());
  const std::string before = fileContent(session.folder() + "/orders.access.json");
  WatchedAccess watch(main);
  watch.fail("CreateForm(", 2601, "Refused.");
  split();
  ASSERT_FALSE(session.user.boxes.empty());
  EXPECT_EQ(
      session.user.boxes[0],
      (Box{16, "CreateNewForm() - Error #2601 Property Name = \r\nRefused.", "Create New Form"}));
  EXPECT_EQ(main.window.mousePointer, 0);
  EXPECT_EQ(fileContent(session.folder() + "/orders.access.json"), before);
}

TEST_F(NewForm, IsMultiPageFormStopsAtTheFirstPageBreak) {
  session.openPaged({box("txtA", 0), pageBreak(100), box("txtB", 200), pageBreak(300)});
  main.state.gappAccess.doCmd().OpenForm("Paged", 1);
  WatchedAccess watch(main);
  EXPECT_TRUE(IsMultiPageForm(main.state.gappAccess, "Paged"));
  int types = 0;
  for (const std::string& read : watch.reads) types += read.ends_with("ControlType");
  EXPECT_EQ(types, 2);
}

}  // namespace
}  // namespace tarrowin::test
