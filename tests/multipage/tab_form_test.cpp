// A form of several pages made one form with a tab control: on which page each control lands and at
// which Top, what takes the place of what cannot stand on a page, and what the user is told.
#include "multipage/tab_form.h"

#include "multipage/paged_session.h"

namespace tarrowin::test {
namespace {

class TabForm : public testing::Test {
 protected:
  void build(bool blnShowResult = false) { CreateNewFormInTab(main, "Paged", blnShowResult); }
  // The controls of the new form behind its tab control and pages.
  Lines built(const std::vector<Json>& controls) {
    session.openPaged(controls);
    build();
    EXPECT_TRUE(session.user.boxes.empty()) << testing::PrintToString(session.user.boxes);
    return contents();
  }
  Lines contents() {
    Lines all = session.controlsOf("Form1");
    if (all.size() < 3) return {"no tab control"};
    EXPECT_EQ(all[0], "TabCtl0 0");
    EXPECT_EQ(all[1].substr(0, 6), "Page1 ");
    EXPECT_EQ(all[2].substr(0, 6), "Page2 ");
    all.erase(all.begin(), all.begin() + 3);
    return all;
  }
  // A box in the middle of each page of a form with that many breaks, 3000 twips apart.
  static std::vector<Json> pages(int breaks) {
    std::vector<Json> controls;
    for (int i = 0; i <= breaks; ++i) {
      controls.push_back(box("txt" + std::to_string(i), i * 3000 + 1000));
      if (i < breaks) controls.push_back(pageBreak((i + 1) * 3000));
    }
    return controls;
  }

  PagedSession session;
  MainObject& main = session.main;
};

TEST_F(TabForm, TwoPagesStandOnTwoTabPages300TwipsLower) {
  EXPECT_EQ(built(pages(1)), (Lines{"txt0 1300 in Page1", "txt1 1300 in Page2"}));
  EXPECT_EQ(session.storedForms(), (Lines{"Paged", "Form1"}));
}

TEST_F(TabForm, OfThreePagesTheMiddleOneStandsOnPage1TooAndTheLastIsLost) {
  EXPECT_EQ(built(pages(2)), (Lines{"txt0 1300 in Page1", "txt1 1300 in Page1"}));
}

TEST_F(TabForm, OfThreePagesTheLastGoesToPage3WhereThereIsOne) {
  session.openPaged(pages(2));
  WatchedAccess watch(main);
  build();
  EXPECT_EQ(watch.called("CreateControl("),
            (Lines{R"(CreateControl("Form1", 123, 0))",
                   R"(CreateControl("Form1", 109, 0, "Page1", , 100, 1300, 2000, 250))",
                   R"(CreateControl("Form1", 109, 0, "Page1", , 100, 1300, 2000, 250))",
                   R"(CreateControl("Form1", 109, 0, "Page3", , 100, 1300, 2000, 250))"}));
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(TabForm, OfFourPagesTheThirdStandsOnPage2) {
  session.openPaged(pages(3));
  WatchedAccess watch(main);
  build();
  EXPECT_EQ(watch.called("CreateControl("),
            (Lines{R"(CreateControl("Form1", 123, 0))",
                   R"(CreateControl("Form1", 109, 0, "Page1", , 100, 1300, 2000, 250))",
                   R"(CreateControl("Form1", 109, 0, "Page1", , 100, 1300, 2000, 250))",
                   R"(CreateControl("Form1", 109, 0, "Page2", , 100, 1300, 2000, 250))",
                   R"(CreateControl("Form1", 109, 0, "Page4", , 100, 1300, 2000, 250))"}));
  EXPECT_EQ(contents(), (Lines{"txt0 1300 in Page1", "txt1 1300 in Page1", "txt2 1300 in Page2"}));
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(TabForm, OfFivePagesTheFourthGoesToPage3) {
  session.openPaged(pages(4));
  WatchedAccess watch(main);
  build();
  Lines parents;
  for (const std::string& call : watch.called("CreateControl(\"Form1\", 109"))
    parents.push_back(call.substr(call.find("\"Page"), 7));
  EXPECT_EQ(parents, (Lines{"\"Page1\"", "\"Page1\"", "\"Page2\"", "\"Page3\"", "\"Page5\""}));
  EXPECT_EQ(contents(), (Lines{"txt0 1300 in Page1", "txt1 1300 in Page1", "txt2 1300 in Page2"}));
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(TabForm, ThePageIsThatOfTheTop300TwipsLower) {
  EXPECT_EQ(built({box("txtA", 699), box("txtB", 700), pageBreak(1000)}),
            (Lines{"txtA 999 in Page1", "txtB 0 in Page2"}));
}

TEST_F(TabForm, ALabelOfPage2KeepsTheTopOfTheSourceForm) {
  EXPECT_EQ(built({pageBreak(1000), label("lblA", 1100), box("txtA", 1100)}),
            (Lines{"lblA 1100 in Page2", "txtA 400 in Page2"}));
}

TEST_F(TabForm, ALabelKeepsItsTopOnTheOtherPagesToo) {
  EXPECT_EQ(built({label("lblA", 50), label("lblB", 1500), pageBreak(1000), pageBreak(3000)}),
            (Lines{"lblA 50 in Page1", "lblB 1500 in Page1"}));
}

TEST_F(TabForm, HeadersAndFootersStayInTheirSectionsAtTheirOwnTop) {
  EXPECT_EQ(built({box("hdrA", 100, 1), pageBreak(600), box("hdrB", 300, 1), box("ftrA", 50, 2),
                   box("txtA", 50), label("hdrC", 20, 1)}),
            (Lines{"hdrA 100 section 1", "ftrA 50 section 2", "txtA 350 in Page1",
                   "hdrC 20 section 1", "hdrB 300 section 1"}));
}

TEST_F(TabForm, AControlOfAHeaderIsMade300TwipsLowerAndThenPutBack) {
  session.openPaged({box("hdrA", 100, 1), pageBreak(600)});
  WatchedAccess watch(main);
  build();
  EXPECT_EQ(watch.called("CreateControl(\"Form1\", 109"),
            (Lines{R"(CreateControl("Form1", 109, 1, "Paged", , 100, 400, 2000, 250))"}));
  EXPECT_EQ(contents(), (Lines{"hdrA 100 section 1"}));
}

TEST_F(TabForm, ALabelOfATextBoxBelongsToThePage) {
  Json attached = label("lblA", 100);
  attached["parent"] = "txtA";
  EXPECT_EQ(built({box("txtA", 100), attached, pageBreak(1000)}),
            (Lines{"txtA 400 in Page1", "lblA 100 in Page1"}));
}

TEST_F(TabForm, TheTabControlStandsAtTop0WithItsDefaultSize) {
  session.openPaged(pages(1));
  build();
  const LateBound tab = session.controlOf("Form1", "TabCtl0");
  EXPECT_EQ(tab.number("Top"), 0);
  EXPECT_EQ(tab.number("Left"), 0);
  EXPECT_EQ(tab.number("Width"), 4320);
  EXPECT_EQ(tab.number("Height"), 2880);
  EXPECT_EQ(tab.number("ControlType"), 123);
  EXPECT_EQ(LateBound(toObject(tab.get("Pages"))).number("Count"), 2);
}

TEST_F(TabForm, ATabControlThatAccessPutsElsewhereGoesToTop0) {
  Json database = PagedSession::databaseOf({pagedForm(pages(1))});
  database["templates"]["controls"]["123"] = {
      {"Name", "TabCtl0"}, {"Top", 60}, {"Left", 30}, {"Width", 3000}, {"Height", 2000}};
  session.openDatabase(database);
  build();
  const LateBound tab = session.controlOf("Form1", "TabCtl0");
  EXPECT_EQ(tab.number("Top"), 0);
  EXPECT_EQ(tab.number("Left"), 30);
  EXPECT_EQ(tab.number("Width"), 3000);
}

TEST_F(TabForm, WithoutAPageOfItsNameAControlIsNotMade) {
  session.openPaged(pages(1));
  WatchedAccess watch(main);
  watch.fail("\"Page2\"", 2467);
  build();
  EXPECT_TRUE(session.user.boxes.empty());
  EXPECT_EQ(contents(), (Lines{"txt0 1300 in Page1"}));
}

TEST_F(TabForm, PageBreaksOutOfOrder) {
  EXPECT_EQ(built({pageBreak(2000), pageBreak(1000), box("txtA", 200), box("txtB", 1200)}),
            (Lines{"txtA 500 in Page1", "txtB 1500 in Page1"}));
}

TEST_F(TabForm, APageBreakAtTop0LeavesPage1Empty) {
  EXPECT_EQ(built({pageBreak(0), box("txtA", 0)}), (Lines{"txtA 300 in Page2"}));
}

TEST_F(TabForm, AFormWithoutAPageBreakGivesAnEmptyTabControl) {
  EXPECT_EQ(built({box("txtA", 0)}), Lines{});
}

TEST_F(TabForm, TheMessageNamesTheOneForm) {
  session.openForms({form("Form1"), pagedForm(pages(2))});
  build(true);
  EXPECT_EQ(session.onlyBox(), (Box{64, "Successfully created a new Tabbed Form named Form2.",
                                    "Access to Visual Basic Tarrowin"}));
}

TEST_F(TabForm, SectionsOf12000TwipsAreCutOnce) {
  Json paged = pagedForm(pages(1));
  paged["sections"] = {sectionOf(1, 1000), sectionOf(0, 10000), sectionOf(2, 1000)};
  session.openForms({paged});
  WatchedAccess watch(main);
  build();
  EXPECT_EQ(watch.logged(".Height = "),
            (Lines{R"(CreateForm(, "Paged").Section(0).Height = 9520)"}));
  EXPECT_EQ(session.heightOf("Form1", 0), 9520);
  EXPECT_EQ(session.heightOf("Form1", 1), 1000);
}

TEST_F(TabForm, TheNewFormHasAModuleByTheVersion) {
  for (const char* version : {"2.5", "3.0", "3.51", "4.0"}) {
    const bool isAbove3 = std::stod(version) > 3.0;
    PagedSession own;
    Json database = PagedSession::databaseOf({pagedForm(pages(1))});
    database["database"]["version"] = version;
    own.openDatabase(database);
    WatchedAccess watch(own.main);
    CreateNewFormInTab(own.main, "Paged", false);
    EXPECT_EQ(watch.logged("HasModule").size(), isAbove3 ? 1u : 0u);
    EXPECT_EQ(toBoolean(own.formOf("Form1").get("HasModule")), isAbove3);
  }
}

TEST_F(TabForm, AccessIsAskedInThisOrder) {
  session.openPaged(pages(1));
  WatchedAccess watch(main);
  build();
  Lines operations;
  for (const std::string& entry : watch.log)
    if (entry.find("Properties(") == std::string::npos) operations.push_back(entry);
  const std::string open = R"(DoCmd.OpenForm("Paged", 3, , , -1, 1))";
  EXPECT_EQ(operations, (Lines{R"(DoCmd.Close(2, "Paged", 0))", open, R"(SendKeys("{F5}", False))",
                               R"(CreateForm(, "Paged"))", R"(CreateControl("Form1", 123, 0))",
                               R"(CreateForm(, "Paged").HasModule = True)",
                               R"(CreateControl("Form1", 123, 0).Top = 0)", open,
                               R"(CreateControl("Form1", 109, 0, "Page1", , 100, 1300, 2000, 250))",
                               R"(CreateControl("Form1", 109, 0, "Page2", , 100, 1300, 2000, 250))",
                               R"(DoCmd.Close(2, "Form1", 1))", "RefreshDatabaseWindow()"}));
}

TEST_F(TabForm, ThePointerIsAnHourglassUntilItIsDone) {
  session.openPaged(pages(1));
  WatchedAccess watch(main);
  std::vector<int> pointers;
  watch.before = [&](const std::string&) { pointers.push_back(main.window.mousePointer); };
  build();
  ASSERT_FALSE(pointers.empty());
  for (const int pointer : pointers) ASSERT_EQ(pointer, 11);
  EXPECT_EQ(main.window.mousePointer, 0);
}

TEST_F(TabForm, CustomControlsAndObjectFramesTakeDataAndTheTopOnThePage) {
  for (const int type : {119, 114}) {
    PagedSession own;
    own.openPaged({pageBreak(1000), control("oleA", type,
                                            {{"Left", 40},
                                             {"Top", 1500},
                                             {"Width", 900},
                                             {"Height", 800},
                                             {"Section", 0},
                                             {"Tag", "tagged"},
                                             {"OleData", {{"bytes", "AQID"}}}})});
    CreateNewFormInTab(own.main, "Paged", false);
    EXPECT_TRUE(own.user.boxes.empty()) << testing::PrintToString(own.user.boxes);
    const Collection<LateBound> controls(toObject(own.formOf("Form1").get("Controls")));
    ASSERT_EQ(controls.Count(), 4);
    const LateBound made = controls(3);
    EXPECT_EQ(made.get("OleData"), Value(Bytes{1, 2, 3}));
    EXPECT_EQ(made.number("Top"), 800);
    EXPECT_EQ(made.number("Left"), 40);
    EXPECT_EQ(made.text("Tag"), "");
    EXPECT_EQ(LateBound(toObject(made.get("Parent"))).text("Name"), "Page2");
  }
}

// What cannot stand on a page.

constexpr std::string_view kRefusal = "CreateNewFormInTab() - Error #2151 Property Name = ";

TEST_F(TabForm, WhatCannotStandOnAPageBecomesARectangleAtItsPlace) {
  session.openPaged({box("txtA", 100, 0, {{"Tag", "tagged"}}), pageBreak(1000)});
  WatchedAccess watch(main);
  watch.fail(R"(CreateControl("Form1", 109)", 2151, "Not there.");
  build();
  EXPECT_EQ(watch.called("CreateControl("),
            (Lines{R"(CreateControl("Form1", 123, 0))",
                   R"(CreateControl("Form1", 109, 0, "Page1", , 100, 400, 2000, 250))",
                   R"(CreateControl("Form1", 101, 0, "Page1", , 100, 400, 2000, 250))"}));
  // The number is none of those that pass, so it is told.
  const Box told = session.onlyBox();
  EXPECT_EQ(told.style, 16);
  EXPECT_EQ(told.title, "Create New Form");
  EXPECT_TRUE(told.text.starts_with(kRefusal)) << told.text;
  EXPECT_TRUE(told.text.ends_with("\r\nNot there.")) << told.text;
  EXPECT_EQ(contents(), (Lines{"txtA 400 in Page1"}));
  EXPECT_EQ(session.controlOf("Form1", "txtA").number("ControlType"), 101);
  EXPECT_EQ(session.controlOf("Form1", "txtA").text("Tag"), "tagged");
}

TEST_F(TabForm, InAHeaderTheRectangleStandsInTheSection) {
  session.openPaged({box("hdrA", 100, 1), pageBreak(1000)});
  WatchedAccess watch(main);
  watch.fail(R"(CreateControl("Form1", 109)", 2151);
  build();
  EXPECT_EQ(watch.called("CreateControl(\"Form1\", 101"),
            (Lines{R"(CreateControl("Form1", 101, 1, "Paged", , 100, 400, 2000, 250))"}));
}

TEST_F(TabForm, TheNextControlIsMadeAsItIs) {
  session.openPaged(
      {control("cmdA", 104, placed("cmdA", 104, 100)), box("txtA", 200), pageBreak(1000)});
  WatchedAccess watch(main);
  watch.fail(R"(CreateControl("Form1", 104)", 2151);
  build();
  EXPECT_EQ(watch.called("CreateControl(\"Form1\", 1").size(), 4u);
  EXPECT_EQ(session.controlOf("Form1", "txtA").number("ControlType"), 109);
  EXPECT_EQ(contents(), (Lines{"cmdA 400 in Page1", "txtA 500 in Page1"}));
}

TEST_F(TabForm, ATabControlOfTheSourceFormBecomesARectangle) {
  session.openPaged({control("tabA", 123, at(50, 100)), pageBreak(3000)});
  build();
  EXPECT_TRUE(session.onlyBox().text.starts_with(kRefusal));
  const Collection<LateBound> controls(toObject(session.formOf("Form1").get("Controls")));
  ASSERT_EQ(controls.Count(), 4);
  EXPECT_EQ(controls(3).number("ControlType"), 101);
  EXPECT_EQ(controls(3).number("Top"), 400);
}

TEST_F(TabForm, ARectangleThatCannotBeMadeEitherIsLeftOut) {
  session.openPaged({box("txtA", 100), pageBreak(1000), box("txtB", 1100)});
  WatchedAccess watch(main);
  watch.fail(R"("Page1")", 2151);
  build();
  EXPECT_EQ(session.user.boxes.size(), 2u);
  EXPECT_EQ(contents().back(), "txtB 400 in Page2");
  EXPECT_EQ(watch.called(R"(CreateControl("Form1", 101, 0, "Page1")").size(), 1u);
}

TEST_F(TabForm, AnotherNumberMakesNoRectangle) {
  session.openPaged({box("txtA", 100), pageBreak(1000)});
  WatchedAccess watch(main);
  watch.fail(R"(CreateControl("Form1", 109)", 2150, "Not there.");
  build();
  EXPECT_TRUE(watch.called("CreateControl(\"Form1\", 101").empty());
  ASSERT_EQ(session.user.boxes.size(), 1u);
  EXPECT_TRUE(session.user.boxes[0].text.starts_with(
      "CreateNewFormInTab() - Error #2150 Property Name = "));
  EXPECT_EQ(contents(), Lines{});
}

TEST_F(TabForm, TheLastErrorIsKeptFromOneControlToTheNext) {
  // A write of the last property that raises the number makes a rectangle of the next control as
  // well, since the number is only cleared where it is met.
  session.openPaged({box("txtA", 100, 0, {{"Tag", "trouble"}}), box("txtB", 200), pageBreak(1000)});
  WatchedAccess watch(main);
  watch.fail("= \"trouble\"", 2151);
  build();
  EXPECT_EQ(watch.called("CreateControl(\"Form1\", 1"),
            (Lines{R"(CreateControl("Form1", 123, 0))",
                   R"(CreateControl("Form1", 109, 0, "Page1", , 100, 400, 2000, 250))",
                   R"(CreateControl("Form1", 109, 0, "Page1", , 100, 500, 2000, 250))",
                   R"(CreateControl("Form1", 101, 0, "Page1", , 100, 500, 2000, 250))"}));
}

}  // namespace
}  // namespace tarrowin::test
