// Subforms inside subforms and on tab pages, and forms that hold themselves.
#include <algorithm>

#include <gtest/gtest.h>

#include "forms/container_forms.h"

namespace tarrowin::test {
namespace {

using namespace container;

const std::string kSix(6, ' ');

TEST(SubFormNesting, ASubformInsideASubform) {
  Json inner = form("frmInner", {textBox("txtI", 5, 6)});
  inner["sections"].push_back(section(1, {{"Height", 1000}}));
  FormSession session;
  const Lines body = convertFirst(
      session, {form("frmMain", {subform("sub1", "frmOuter")}),
                form("frmOuter", {textBox("txtO", 1, 2), subform("sub2", "frmInner", 3, 4),
                                  textBox("txtP", 7, 8)}),
                inner});
  // From the nested frame on the heights are the inner form's, and all names count as known. The
  // closing line of both has the outer name.
  EXPECT_EQ(body, frameLines("", "sub1") + textBoxLines(kSix, "txtO", 1, 122) +
                      frameLines(kSix, "sub2", 3, 1124) + textBoxLines(kSix, "txtI_Dup1", 5, 1126) +
                      Lines{"      End   ' sub1"} + textBoxLines(kSix, "txtP_Dup2", 7, 1128) +
                      Lines{"      End   ' sub1"});
  const ConversionState& s = session.main.state;
  EXPECT_EQ(s.intSubDepth, 1);
  EXPECT_EQ(s.intSubCount, 2);
  EXPECT_EQ(s.intNumControls, 0 + 1 + 3);
  EXPECT_FALSE(s.blnNestedSubForm);
  EXPECT_TRUE(s.openSubForms.empty());
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST(SubFormNesting, WithAKnownClashOnlyClashingNamesAreNumbered) {
  FormSession session;
  const Lines body =
      convertFirst(session, {form("frmMain", {textBox("a", 0, 0), subform("sub1", "frmOuter")}),
                             form("frmOuter", {textBox("a", 0, 0), subform("sub2", "frmInner")}),
                             form("frmInner", {textBox("a", 0, 0), textBox("b", 0, 0)})});
  EXPECT_EQ(beginnings(body), (Lines{"VB.TextBox a", "VB.PictureBox sub1", "VB.TextBox a_Dup0",
                                     "VB.PictureBox sub2", "VB.TextBox a_Dup1", "VB.TextBox b"}));
}

TEST(SubFormNesting, ANestedSubformThatCannotBeReached) {
  FormSession session;
  EXPECT_EQ(convertFirst(session, {form("frmMain", {subform("sub1", "frmOuter")}),
                                   form("frmOuter", {subform("sub2", "frmGone")})}),
            frameLines("", "sub1") + frameLines(kSix, "sub2", 0, 120) +
                Lines({"   End   ' sub1", "      End   ' sub1"}));
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST(SubFormNesting, TheBoxOfANestedSubformNamesItsSource) {
  Json odd = subform("sub2", "Form.frmInner");
  odd["properties"]["Form"] = {{"error", 13}};
  FormSession session;
  convertFirst(session, {form("frmMain", {subform("sub1", "frmOuter")}), form("frmOuter", {odd})});
  ASSERT_FALSE(session.user.boxes.empty());
  EXPECT_EQ(session.user.boxes.front().text, "GetSubFormProps(frmInner) - Error #13 Type mismatch");
}

TEST(SubFormNesting, ANestedSheetLeavesThreeBlanks) {
  Json inner = form("frmInner");
  inner["properties"]["DefaultView"] = 2;
  FormSession session;
  const Lines body = convertFirst(
      session,
      {form("frmMain", {subform("sub1", "frmOuter")}),
       form("frmOuter", {textBox("a", 0, 0), subform("sub2", "frmInner"), textBox("b", 0, 0)}),
       inner});
  EXPECT_EQ(linesWith(body, kSix + "   Begin VB.TextBox"), Lines{kSix + "   Begin VB.TextBox a"});
  EXPECT_EQ(linesWith(body, "      Begin VB.TextBox"), Lines{"      Begin VB.TextBox b_Dup1"});
}

TEST(SubFormNesting, AThirdLevelIsReachedThroughTheSecond) {
  FormSession session;
  const Lines body = convertFirst(
      session, {form("frmMain", {subform("s1", "f1")}), form("f1", {subform("s2", "f2")}),
                form("f2", {subform("s3", "f3")}), form("f3", {textBox("t", 0, 0)})});
  EXPECT_EQ(beginnings(body), (Lines{"VB.PictureBox s1", "VB.PictureBox s2",
                                     "VB.PictureBox s3_Dup1", "VB.TextBox t_Dup2"}));
}

TEST(SubFormNesting, AFormThatHoldsItself) {
  FormSession session;
  EXPECT_EQ(convertFirst(session,
                         {form("frmMain", {subform("sub", "frmMain", 1, 2), textBox("t", 3, 4)})}),
            frameLines("", "sub", 1, 2) + Lines{"   End   ' sub"} + textBoxLines("", "t", 3, 4));
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST(SubFormNesting, AFormThatHoldsItselfThroughOthersAndByOtherControls) {
  FormSession session;
  const Lines body = convertFirst(
      session, {form("A", {subform("a1", "B")}),
                form("B", {subform("b1", "C"), subform("b2", "Form.C"), subform("b3", "b")}),
                form("C", {subform("c1", "B"), subform("c2", "A"), textBox("t", 0, 0)})});
  // C stands twice in B; in each the way back to B and to A ends in an empty frame.
  const Lines found = beginnings(body);
  ASSERT_EQ(found.size(), 10u);
  EXPECT_EQ(found[0], "VB.PictureBox a1");
  EXPECT_EQ(found[1], "VB.PictureBox b1");
  EXPECT_TRUE(found[2].starts_with("VB.PictureBox c1"));
  EXPECT_TRUE(found[3].starts_with("VB.PictureBox c2"));
  EXPECT_TRUE(found[4].starts_with("VB.TextBox t"));
  EXPECT_TRUE(found[5].starts_with("VB.PictureBox b2"));
  EXPECT_TRUE(found[9].starts_with("VB.PictureBox b3"));
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST(SubFormNesting, ADatasheetThatHoldsItselfIsASheet) {
  Json self = form("frmMain", {subform("sub", "frmMain")});
  self["properties"]["DefaultView"] = 2;
  FormSession session;
  EXPECT_EQ(beginnings(convertFirst(session, {self})),
            (Lines{"MSAdodcLib.Adodc Adodc1", "MSDataGridLib.DataGrid sub"}));
}

TEST(SubFormNesting, AFormWithoutAReadableNameThatHoldsItself) {
  Json odd = form("B", {subform("b", "Form.B"), subform("c", "B")});
  odd["properties"]["Name"] = {{"error", 2467}};
  FormSession session;
  const Lines body = convertFirst(session, {form("A", {subform("a", "b")}), odd});
  EXPECT_EQ(beginnings(body).size(), 3u);
}

std::vector<Json> chain(int length) {
  std::vector<Json> forms;
  for (int i = 0; i < length; ++i) {
    forms.push_back(form("f" + std::to_string(i), {subform("s", "f" + std::to_string(i + 1))}));
  }
  forms.push_back(form("f" + std::to_string(length), {textBox("last", 0, 0)}));
  return forms;
}

TEST(SubFormNesting, FiveHundredLevels) {
  FormSession session;
  const Lines found = beginnings(convertAmong(session, chain(500)));
  ASSERT_EQ(found.size(), 501u);
  EXPECT_TRUE(found.back().starts_with("VB.TextBox last"));
  EXPECT_EQ(session.main.state.intNumControls, 500);
}

TEST(SubFormNesting, WhatStandsDeeperThanAThousandLevelsIsAnEmptyFrame) {
  FormSession session;
  const Lines found = beginnings(convertAmong(session, chain(1200)));
  ASSERT_EQ(found.size(), 1001u);
  EXPECT_TRUE(found.back().starts_with("VB.PictureBox s"));
  EXPECT_TRUE(session.main.state.openSubForms.empty());
}

TEST(SubFormNesting, FiveHundredLevelsEachOnATabPage) {
  constexpr int kLevels = 500;
  std::vector<Json> forms;
  for (int i = 0; i < kLevels; ++i) {
    forms.push_back(
        form("f" + std::to_string(i), {control("tab", 123, at(0, 0)), page("p", "tab", "One"),
                                       subform("s", "f" + std::to_string(i + 1), 0, 0, "p")}));
  }
  forms.push_back(form("f" + std::to_string(kLevels), {textBox("last", 0, 0)}));
  FormSession session;
  const Lines found = beginnings(convertAmong(session, forms));
  ASSERT_EQ(found.size(), 2u * kLevels + 1);
  EXPECT_TRUE(found.back().starts_with("VB.TextBox last"));
  EXPECT_TRUE(session.user.boxes.empty());
}

// A form with a tab control of two pages; the second holds the subform.
Json tabForm(std::string_view name, const Json& subFormControl) {
  return form(
      name, {control("tab", 123, at(500, 600)), page("p0", "tab", "One"), page("p1", "tab", "Two"),
             textBox("t", 700, 800, "p0"), subFormControl, textBox("u", 700, 800, "p1")});
}

TEST(SubFormNesting, ASubformOnTheSecondPageOfATabControl) {
  FormSession session;
  const Lines body =
      convertFirst(session, {tabForm("frmMain", subform("sub", "frmSub", 700, 1000, "p1")),
                             form("frmSub", {textBox("a", 10, 20)})});
  EXPECT_EQ(linesWith(body, "      Tab("),
            (Lines{"      Tab(0).ControlEnabled= -1   'True", "      Tab(0).Control(0)= \"t\"",
                   "      Tab(0).Control(0).Enabled= 0", "      Tab(0).ControlCount= 1",
                   "      Tab(1).ControlEnabled= 0   'False", "      Tab(1).Control(0)= \"sub\"",
                   "      Tab(1).Control(0).Enabled= 0", "      Tab(1).Control(1)= \"u\"",
                   "      Tab(1).Control(1).Enabled= 0", "      Tab(1).ControlCount= 2"}));
  // Out of sight with its page; its controls stand inside the frame.
  const auto sub = std::ranges::find(body, "      Begin VB.PictureBox sub");
  ASSERT_NE(sub, body.end());
  EXPECT_EQ(Lines(sub, body.end()),
            frameLines("   ", "sub", 700 - 500 - 75000, 400) + textBoxLines(kSix, "a", 10, 20) +
                Lines{"      End   ' sub"} + textBoxLines(kSix, "u", 700 - 500 - 75000, 200) +
                Lines{"   End   ' Tab Control"});
  EXPECT_TRUE(session.main.state.blnSubInTab);
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST(SubFormNesting, APageListsTheSubformsInsideItsSubformFromTheSubformsOwnNumberOn) {
  FormSession session;
  const Lines body = convertFirst(
      session, {form("frmMain", {control("tab", 123, at(500, 600)), page("p0", "tab", "One"),
                                 subform("sub", "frmSub", 0, 0, "p0"), textBox("u", 0, 0, "p0")}),
                form("frmSub", {textBox("a", 0, 0), subform("in 1", "frmGone"),
                                subform("in2", "frmGone"), control("lbl", 100, at(0, 0), "in2")})});
  EXPECT_EQ(linesWith(body, "      Tab("),
            (Lines{"      Tab(0).ControlEnabled= -1   'True", "      Tab(0).Control(0)= \"sub\"",
                   "      Tab(0).Control(0).Enabled= 0", "      Tab(0).Control(0)= \"in_1\"",
                   "      Tab(0).Control(0).Enabled= 0", "      Tab(0).Control(1)= \"in2\"",
                   "      Tab(0).Control(1).Enabled= 0", "      Tab(0).Control(2)= \"lbl\"",
                   "      Tab(0).Control(2).Enabled= 0", "      Tab(0).Control(4)= \"u\"",
                   "      Tab(0).Control(4).Enabled= 0", "      Tab(0).ControlCount= 5"}));
}

TEST(SubFormNesting, ASubformOnAPageThatCannotBeReachedIsListedAlone) {
  FormSession session;
  const Lines body = convertFirst(
      session, {form("frmMain", {control("tab", 123, at(0, 0)), page("p0", "tab", "One"),
                                 subform("sub", "frmGone", 0, 0, "p0")})});
  EXPECT_EQ(linesWith(body, "      Tab(0).ControlCount"), Lines{"      Tab(0).ControlCount= 1"});
  EXPECT_EQ(linesWith(body, "   End   ' "),
            (Lines{"   End   ' frmGone", "   End   ' Tab Control"}));
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST(SubFormNesting, AFormThatHoldsItselfOnAPage) {
  FormSession session;
  const Lines body =
      convertFirst(session, {tabForm("frmMain", subform("sub", "frmMain", 700, 1000, "p1"))});
  EXPECT_EQ(linesWith(body, "      Tab(1).ControlCount"), Lines{"      Tab(1).ControlCount= 2"});
  EXPECT_EQ(linesWith(body, "      Begin VB.PictureBox"), Lines{"      Begin VB.PictureBox sub"});
}

TEST(SubFormNesting, ASubformOnAPageInsideASubform) {
  FormSession session;
  const Lines body = convertFirst(
      session, {form("frmMain", {subform("outer", "frmOuter"), subform("last", "frmInner")}),
                tabForm("frmOuter", subform("inner", "frmInner", 700, 1000, "p1")),
                form("frmInner", {textBox("a", 10, 20), subform("deep", "frmGone")})});
  EXPECT_EQ(linesWith(body, "      Tab(1).Control("),
            (Lines{"      Tab(1).Control(0)= \"inner\"", "      Tab(1).Control(0).Enabled= 0",
                   "      Tab(1).Control(0)= \"deep\"", "      Tab(1).Control(0).Enabled= 0",
                   "      Tab(1).Control(2)= \"u\"", "      Tab(1).Control(2).Enabled= 0"}));
  EXPECT_EQ(beginnings(body),
            (Lines{"VB.PictureBox outer", "TabDlg.SSTab tab", "VB.TextBox t", "VB.PictureBox inner",
                   "VB.TextBox a_Dup1", "VB.PictureBox deep_Dup1", "VB.TextBox u",
                   "VB.PictureBox last", "VB.TextBox a_Dup4", "VB.PictureBox deep_Dup4"}));
  EXPECT_TRUE(session.user.boxes.empty());
  EXPECT_FALSE(session.main.state.blnNestedSubForm);
}

TEST(SubFormNesting, ASubformBehindATabControlIsReachedPlainly) {
  FormSession session;
  const Lines body = convertFirst(
      session, {form("frmMain", {control("tab", 123, at(0, 0)), page("p0", "tab", "One"),
                                 subform("sub", "frmSub", 0, 0, "p0"), subform("plain", "frmSub")}),
                form("frmSub", {textBox("a", 10, 20)})});
  EXPECT_EQ(beginnings(body), (Lines{"TabDlg.SSTab tab", "VB.PictureBox sub", "VB.TextBox a",
                                     "VB.PictureBox plain", "VB.TextBox a_Dup1"}));
}

}  // namespace
}  // namespace tarrowin::test
