// Tab controls: their rows, the list of pages, the controls on them.
#include <algorithm>

#include <gtest/gtest.h>

#include "forms/container_forms.h"

namespace tarrowin::test {
namespace {

using namespace container;

const std::string kThree(3, ' ');

Json tab() { return control("tab", 123, at(500, 600)); }

Json fullTab() {
  Json properties = at(500, 600);
  properties.update({{"Enabled", true},
                     {"FontName", "Arial"},
                     {"FontItalic", false},
                     {"FontSize", 8},
                     {"FontUnderline", true},
                     {"FontWeight", 400},
                     {"Height", 2000},
                     {"HelpContextID", 3},
                     {"TabIndex", 1},
                     {"TabStop", true},
                     {"Tag", " a \"b\""},
                     {"Visible", true},
                     {"Width", 4000},
                     {"TabFixedHeight", 250},
                     {"TabFixedWidth", 700},
                     {"Style", 0}});
  return control("tab", 123, properties);
}

const Lines kFullRows = {"   Begin TabDlg.SSTab tab",
                         "      Enabled       = -1",
                         "      BeginProperty Font",
                         "         Name       = \"Arial\"",
                         "         Italic     = 0   'False",
                         "         Size       = 8",
                         "         Underline  = -1  'True",
                         "         Weight     = 400",
                         "      EndProperty",
                         "      Height        = 2000",
                         "      HelpContextID = 3",
                         "      Left          = 500",
                         "      Style         = 1",
                         "      TabIndex      = 1",
                         "      TabStop       = -1",
                         "      Tag           = \" a 'b'\"",
                         "      Top           = 600",
                         "      Visible       = -1",
                         "      Width         = 4000",
                         "      TabHeight     = 250",
                         "      TabMaxWidth   = 0",
                         "      Tabs          = 0",
                         "      TabsPerRow    = 0"};
const Lines kEnd = {"   End   ' Tab Control"};

// From the list of pages on.
Lines fromPages(const Lines& body) {
  return {std::ranges::find_if(body,
                               [](const std::string& line) {
                                 return line.starts_with("      Tab(") ||
                                        line.starts_with("      TabCaption(");
                               }),
          body.end()};
}

TEST(TabControl, TheRowsOfATabControl) {
  FormSession session;
  EXPECT_EQ(convertFirst(session, {form("F", {fullTab()})}), kFullRows + kEnd);
  EXPECT_EQ(session.main.state.intTabWidth, 4000);
  EXPECT_FALSE(session.main.state.blnInTab);
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST(TabControl, EachRowFallsAloneWithItsProperty) {
  const std::pair<const char*, std::size_t> rows[] = {
      {"Enabled", 1},         {"Height", 9}, {"HelpContextID", 10}, {"TabIndex", 13},
      {"TabStop", 14},        {"Tag", 15},   {"Visible", 17},       {"Width", 18},
      {"TabFixedHeight", 19}, {"Style", 20}};
  for (const auto& [property, row] : rows) {
    Json odd = fullTab();
    odd["properties"].erase(property);
    Lines expected = kFullRows;
    expected.erase(expected.begin() + static_cast<std::ptrdiff_t>(row));
    FormSession session;
    EXPECT_EQ(convertFirst(session, {form("F", {odd})}), expected + kEnd) << property;
  }
}

TEST(TabControl, AWidthBeyond16BitsLosesItsRow) {
  Json wide = fullTab();
  wide["properties"]["Width"] = 32768;
  FormSession session;
  EXPECT_TRUE(linesWith(convertFirst(session, {form("F", {wide})}), "      Width ").empty());
  EXPECT_EQ(session.main.state.intTabWidth, 0);
}

TEST(TabControl, AStyleBelowZeroHasAWidestTab) {
  Json odd = fullTab();
  odd["properties"]["Style"] = -1;
  FormSession session;
  EXPECT_EQ(linesWith(convertFirst(session, {form("F", {odd})}), "      TabMaxWidth "),
            Lines{"      TabMaxWidth   = 700"});
}

TEST(TabControl, ThreePagesOfWhichTheSecondIsEmpty) {
  FormSession session;
  const Lines body =
      convertFirst(session, {form("F", {tab(), page("p0", "tab", "One"), page("p1", "tab", "Two"),
                                        page("p2", "tab", "Three"), textBox("a b", 700, 800, "p0"),
                                        textBox("c", 2000, 900, "p2"), textBox("behind", 1, 2)})});
  EXPECT_EQ(linesWith(body, "      Tabs "), Lines{"      Tabs          = 3"});
  EXPECT_EQ(fromPages(body),
            (Lines{"      TabCaption(0) = \"One\"", "      Tab(0).ControlEnabled= -1   'True",
                   "      Tab(0).Control(0)= \"a_b\"", "      Tab(0).Control(0).Enabled= 0",
                   "      Tab(0).ControlCount= 1", "      Tab(1).ControlCount= 0",
                   "      TabCaption(2) = \"Three\"", "      Tab(2).ControlEnabled= 0   'False",
                   "      Tab(2).Control(0)= \"c\"", "      Tab(2).Control(0).Enabled= 0",
                   "      Tab(2).ControlCount= 1"}) +
                textBoxLines(kThree, "a_b", 200, 200) + textBoxLines(kThree, "c", -73500, 300) +
                kEnd + textBoxLines("", "behind", 1, 2));
  const ConversionState& s = session.main.state;
  EXPECT_EQ(s.intPageTopOffset, 300);
  EXPECT_EQ(s.intPageLeftOffset, 40);
  EXPECT_EQ(s.intTabPageNum, 3);
}

TEST(TabControl, AnEmptyFirstPageIsAPageAllTheSame) {
  FormSession session;
  const Lines body = convertFirst(
      session,
      {form("F", {tab(), page("p0", "tab"), page("p1", "tab"), textBox("c", 2000, 900, "p1")})});
  EXPECT_EQ(fromPages(body),
            (Lines{"      Tab(0).ControlCount= 0", "      TabCaption(1) = \"p1\"",
                   "      Tab(1).ControlEnabled= 0   'False", "      Tab(1).Control(0)= \"c\"",
                   "      Tab(1).Control(0).Enabled= 0", "      Tab(1).ControlCount= 1"}) +
                textBoxLines(kThree, "c", -73500, 300) + kEnd);
}

TEST(TabControl, APageWithoutACaption) {
  const std::pair<Json, Lines> cases[] = {
      {"", {"      TabCaption(0) = \"Page 1\""}},
      {nullptr, {"      TabCaption(0) = \"Page 1\""}},
      {" ", {"      TabCaption(0) = \" \""}},
      {"&Orders", {"      TabCaption(0) = \"&Orders\""}},
      {{{"error", 438}}, {}},
  };
  for (const auto& [caption, lines] : cases) {
    FormSession session;
    const Lines body = convertFirst(
        session,
        {form("F", {tab(), page("Page 1", "tab", caption), textBox("t", 0, 0, "Page 1")})});
    EXPECT_EQ(linesWith(body, "      TabCaption"), lines) << caption;
    EXPECT_TRUE(session.user.boxes.empty());
  }
}

TEST(TabControl, ALabelAttachedToATextBoxOnAPage) {
  FormSession session;
  const Lines body = convertFirst(
      session, {form("F", {tab(), page("p0", "tab", "One"), textBox("t", 1700, 800, "p0"),
                           control("lbl", 100, at(700, 800), "t")})});
  EXPECT_EQ(linesWith(body, "      Tab(0).Control(1)"),
            (Lines{"      Tab(0).Control(1)= \"lbl\"", "      Tab(0).Control(1).Enabled= 0"}));
  EXPECT_EQ(linesWith(body, "      Tab(0).ControlCount"), Lines{"      Tab(0).ControlCount= 2"});
  EXPECT_EQ(beginnings(body), (Lines{"TabDlg.SSTab tab", "VB.TextBox t", "VB.Label lbl"}));
  EXPECT_EQ(linesWith(body, "         Left "),
            (Lines{"         Left          = 1200", "         Left          = 200"}));
}

TEST(TabControl, AnOptionButtonInAGroupOnAPage) {
  FormSession session;
  const Lines body = convertFirst(
      session,
      {form("F", {tab(), page("p0", "tab", "One"), control("grp", 107, at(700, 900), "p0"),
                  control("opt", 105, at(800, 1000), "grp"), textBox("t", 900, 950, "p0")})});
  EXPECT_EQ(linesWith(body, "      Tab(0).Control"),
            (Lines{"      Tab(0).ControlEnabled= -1   'True", "      Tab(0).Control(0)= \"grp\"",
                   "      Tab(0).Control(0).Enabled= 0", "      Tab(0).Control(1)= \"t\"",
                   "      Tab(0).Control(1).Enabled= 0", "      Tab(0).ControlCount= 2"}));
  EXPECT_EQ(beginnings(body),
            (Lines{"TabDlg.SSTab tab", "VB.Frame grp", "VB.OptionButton opt", "VB.TextBox t"}));
  // The button stands in the frame at 100, 100, less the caption's room in the second.
  EXPECT_EQ(linesWith(body, "         Left "),
            (Lines{"         Left          = 200", "         Left          = 100",
                   "         Left          = 400"}));
  EXPECT_EQ(linesWith(body, "         Top "),
            (Lines{"         Top           = 180", "         Top           = 220",
                   "         Top           = 350"}));
  EXPECT_EQ(linesWith(body, "   End   ' Frame"), Lines{"   End   ' Frame grp"});
}

TEST(TabControl, TheLabelOfAButtonInAGroupIsPrintedByTheGroupAndByThePage) {
  FormSession session;
  const Lines body = convertFirst(
      session, {form("F", {tab(), page("p0", "tab", "One"), control("grp", 107, at(700, 900), "p0"),
                           control("opt", 105, at(800, 1000), "grp"),
                           control("lbl", 100, at(900, 1000), "opt")})});
  EXPECT_EQ(linesWith(body, "      Tab(0).ControlCount"), Lines{"      Tab(0).ControlCount= 1"});
  EXPECT_EQ(beginnings(body), (Lines{"TabDlg.SSTab tab", "VB.Frame grp", "VB.OptionButton opt",
                                     "VB.Label lbl", "VB.Label lbl"}));
}

TEST(TabControl, ATabControlWithoutPages) {
  FormSession session;
  EXPECT_EQ(
      convertFirst(session, {form("F", {tab()})}),
      (Lines{"   Begin TabDlg.SSTab tab", "      BeginProperty Font", "      EndProperty",
             "      Left          = 500", "      Style         = 1", "      Top           = 600",
             "      Tabs          = 0", "      TabsPerRow    = 0"}) +
          kEnd);
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST(TabControl, TwoTabControlsHavePagesOfTheirOwn) {
  FormSession session;
  const Lines body = convertFirst(
      session, {form("F", {tab(), page("p0", "tab", "A"), page("p1", "tab", "B"),
                           textBox("t", 600, 700, "p1"), control("second", 123, at(0, 0)),
                           page("q0", "second", "C"), textBox("u", 10, 20, "q0")})});
  EXPECT_EQ(linesWith(body, "         Left "),
            (Lines{"         Left          = -74900", "         Left          = 10"}));
  EXPECT_EQ(linesWith(body, "      TabCaption"),
            (Lines{"      TabCaption(1) = \"B\"", "      TabCaption(0) = \"C\""}));
}

// Converts a form whose first page raises the error when its caption is read.
Lines withCaptionError(FormSession& session, int number) {
  return convertFirst(
      session,
      {form("F", {tab(), page("p0", "tab", {{"error", number}}), textBox("t", 600, 700, "p0")})});
}

const Lines kWithoutCaption =
    Lines{"      Tab(0).ControlEnabled= -1   'True", "      Tab(0).Control(0)= \"t\"",
          "      Tab(0).Control(0).Enabled= 0", "      Tab(0).ControlCount= 1"} +
    textBoxLines(kThree, "t", 100, 100) + kEnd;

TEST(TabControl, ErrorsThatPassSilently) {
  for (const int number : {91, 92, 424, 438, 484, 2186, 2452, 2455, 2459, 2462, 2465, 7784}) {
    FormSession session;
    EXPECT_EQ(fromPages(withCaptionError(session, number)), kWithoutCaption) << number;
    EXPECT_TRUE(session.user.boxes.empty()) << number;
  }
}

TEST(TabControl, ErrorsOfAFormThatCannotBeReachedAreTriedOnceMore) {
  for (const int number : {2102, 2121, 2450, 2457, 2467, 2494}) {
    FormSession session;
    EXPECT_EQ(fromPages(withCaptionError(session, number)), kWithoutCaption) << number;
    EXPECT_TRUE(session.user.boxes.empty()) << number;
  }
}

TEST(TabControl, OtherErrorsHaveABoxWithTheNameOfTheControl) {
  for (const int number : {7, 13, 2103, 3061}) {
    FormSession session;
    EXPECT_EQ(fromPages(withCaptionError(session, number)), kWithoutCaption) << number;
    EXPECT_EQ(session.onlyBox().text, "GetTabControlProps(tab) - Error #" + std::to_string(number) +
                                          " " + standardErrorText(number, "Caption"));
  }
}

TEST(TabControl, APositionOfThePagesBeyond16BitsHasABox) {
  Json far = tab();
  far["properties"]["Top"] = -32000;
  FormSession session;
  convertFirst(session, {form("F", {far, page("p0", "tab", "One")})});
  EXPECT_EQ(session.onlyBox().text, "GetTabControlProps(tab) - Error #6 Overflow");
  EXPECT_EQ(session.main.state.intPageTopOffset, 0);
  EXPECT_EQ(session.main.state.intPageLeftOffset, 40);
}

TEST(TabControl, AControlWithoutANameIsCountedAndNotListed) {
  Json odd = textBox("odd", 600, 700, "p0");
  odd["properties"]["Name"] = {{"error", 2465}};
  FormSession session;
  const Lines body = convertFirst(
      session, {form("F", {tab(), page("p0", "tab", "One"), odd, textBox("t", 0, 0, "p0")})});
  EXPECT_EQ(linesWith(body, "      Tab(0).Control("),
            (Lines{"      Tab(0).Control(1)= \"t\"", "      Tab(0).Control(1).Enabled= 0"}));
}

TEST(TabControl, TabControlsInsideEachOtherEnd) {
  std::vector<Json> controls = {tab()};
  std::string outer = "tab";
  for (int i = 0; i < 40; ++i) {
    const std::string n = std::to_string(i);
    controls.push_back(page("p" + n, outer, "P"));
    controls.push_back(control("t" + n, 123, at(0, 0), "p" + n));
    outer = "t" + n;
  }
  FormSession session;
  const std::size_t printed = beginnings(convertFirst(session, {form("F", controls)})).size();
  EXPECT_GT(printed, 81u);
  EXPECT_LT(printed, 64u * 81u);
}

}  // namespace
}  // namespace tarrowin::test
