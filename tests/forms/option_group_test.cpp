// Option groups: the rows of the frame, its members, its two closing lines.
#include <algorithm>

#include <gtest/gtest.h>

#include "forms/container_forms.h"

namespace tarrowin::test {
namespace {

using namespace container;

const std::string kThree(3, ' ');

Json group(int left, int top) { return control("grp", 107, at(left, top)); }

Json fullGroup() {
  Json properties = at(100, 500);
  properties.update({{"SpecialEffect", 3},
                     {"BackStyle", 1},
                     {"BackColor", 255},
                     {"Enabled", true},
                     {"HelpContextID", 9},
                     {"Height", 1000},
                     {"TabIndex", 4},
                     {"Tag", "  a \"b\" "},
                     {"ToolTipText", " tip "},
                     {"Visible", false},
                     {"Width", 2000}});
  return control("grp", 107, properties);
}

const Lines kFullRows = {"   Begin VB.Frame grp",
                         "      Appearance    = 1",
                         "      BackColor     = 255",
                         "      Enabled       = -1",
                         "      HelpContextID = 9",
                         "      Height        = 1120",
                         "      Left          = 100",
                         "      TabIndex      = 4",
                         "      Tag           = \"a \"b\"\"",
                         "      ToolTipText   = \"tip\"",
                         "      Top           = 380",
                         "      Visible       = 0",
                         "      Width         = 2000"};

TEST(OptionGroup, AnOptionGroupWithNoChildren) {
  FormSession session;
  EXPECT_EQ(convertFirst(session, {form("F", {fullGroup()})}), kFullRows + Lines{"   End   'grp"});
  EXPECT_FALSE(session.main.state.blnInFrame);
  EXPECT_EQ(session.main.state.strIndent, kThree);
}

TEST(OptionGroup, EachRowFallsAloneWithItsProperty) {
  const std::pair<const char*, std::size_t> rows[] = {
      {"SpecialEffect", 1}, {"BackColor", 2}, {"Enabled", 3}, {"HelpContextID", 4},
      {"Height", 5},        {"TabIndex", 7},  {"Tag", 8},     {"ToolTipText", 9},
      {"Visible", 11},      {"Width", 12}};
  for (const auto& [property, row] : rows) {
    Json odd = fullGroup();
    odd["properties"].erase(property);
    Lines expected = kFullRows;
    expected.erase(expected.begin() + static_cast<std::ptrdiff_t>(row));
    FormSession session;
    EXPECT_EQ(convertFirst(session, {form("F", {odd})}), expected + Lines{"   End   'grp"})
        << property;
    EXPECT_TRUE(session.user.boxes.empty()) << property;
  }
}

TEST(OptionGroup, MembersStandInTheFrame) {
  FormSession session;
  const Lines body = convertFirst(
      session, {form("F", {fullGroup(), textBox("t", 150, 700, "grp"),
                           control("box", 101, at(50, 400), "grp"), textBox("u", 7, 8)})});
  const Lines expected =
      kFullRows + textBoxLines(kThree, "t", 150, 700) +
      Lines{"      Begin VB.Shape box", "         Left        = 50", "         Top           = 400",
            "      End   'box", "   End   ' Frame grp"} +
      textBoxLines("", "u", 7, 8);
  EXPECT_EQ(body, expected);
  EXPECT_EQ(session.main.state.intGroupTop, 500);
  EXPECT_FALSE(session.main.state.blnInOptionGroup);
}

TEST(OptionGroup, ButtonsAndTheirLabelsAreMovedBelowTheCaption) {
  FormSession session;
  const Lines body =
      convertFirst(session, {form("F", {group(100, 500), control("opt", 105, at(150, 700), "grp"),
                                        control("lbl", 100, at(90, 700), "opt"),
                                        control("head", 100, at(110, 440), "grp")})});
  EXPECT_EQ(beginnings(body),
            (Lines{"VB.Frame grp", "VB.OptionButton opt", "VB.Label lbl", "VB.Label head"}));
  EXPECT_EQ(linesWith(body, "         Left  "),
            (Lines{"         Left          = 50", "         Left          = 0",
                   "         Left          = 10"}));
  EXPECT_EQ(linesWith(body, "         Top  "),
            (Lines{"         Top           = 320", "         Top           = 320",
                   "         Top           = 0"}));
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST(OptionGroup, TheTopIsNeverNegative) {
  for (const auto& [top, printed] : {std::pair(120, "0"), {119, "0"}, {0, "0"}, {121, "1"}}) {
    FormSession session;
    EXPECT_EQ(linesWith(convertFirst(session, {form("F", {group(0, top)})}), "      Top "),
              Lines{std::string("      Top           = ") + printed});
  }
}

TEST(OptionGroup, ATopBeyond16BitsLosesItsRow) {
  // 32767 in a form with nothing above; 40000 does not fit, -32700 does not fit after the move.
  for (const int top : {40000, -32700}) {
    FormSession session;
    EXPECT_EQ(convertFirst(session, {form("F", {group(0, top)})}),
              (Lines{"   Begin VB.Frame grp", "      Left          = 0", "   End   'grp"}));
    EXPECT_TRUE(session.user.boxes.empty());
  }
}

TEST(OptionGroup, TheFrameStandsBelowTheSectionsAboveIt) {
  Json entry = form("F", {control("grp", 107, at(0, 500)), textBox("t", 0, 600, "grp")});
  entry["sections"].push_back(section(1, {{"Height", 1000}}));
  FormSession session;
  EXPECT_EQ(
      convertFirst(session, {entry}),
      (Lines{"   Begin VB.Frame grp", "      Left          = 0", "      Top           = 1380"}) +
          textBoxLines(kThree, "t", 0, 600) + Lines{"   End   ' Frame grp"});
}

TEST(OptionGroup, FailuresHaveABoxAndTheNextStatementFollows) {
  Json odd = group(0, 0);
  odd["properties"]["Controls"] = {{"error", 2467}};
  FormSession session;
  EXPECT_EQ(convertFirst(session, {form("F", {odd, textBox("t", 1, 2, "grp")})}),
            (Lines{"   Begin VB.Frame grp", "      Left          = 0", "      Top           = 0",
                   "   End   ' Frame grp"}));
  EXPECT_EQ(session.onlyBox().text,
            "GetOptionGroupProps() - Error #2467\r\n" + standardErrorText(2467));
}

TEST(OptionGroup, AParentThatCannotBeReadHasABoxUnlessThatIsUsual) {
  for (const auto& [number, boxes] : {std::pair(2465, 0u), {2452, 0u}, {13, 1u}, {2467, 1u}}) {
    Json member = textBox("t", 1, 2, "grp");
    member["properties"]["Parent"] = {{"error", number}};
    FormSession session;
    const Lines body = convertFirst(session, {form("F", {group(0, 0), member})});
    EXPECT_EQ(beginnings(body), Lines{"VB.Frame grp"}) << number;
    const auto ofGroup = std::ranges::count_if(session.user.boxes, [](const Box& box) {
      return box.text.starts_with("GetOptionGroupProps() - Error #");
    });
    EXPECT_EQ(ofGroup, 2 * static_cast<std::ptrdiff_t>(boxes)) << number;  // of P and of Q
  }
}

// Access has no groups inside groups. Each prints what stands in it at any depth.
TEST(OptionGroup, WhatStandsInTwoGroupsIsPrintedByBoth) {
  FormSession session;
  const Lines body =
      convertFirst(session, {form("F", {group(0, 0), control("inner", 107, at(0, 0), "grp"),
                                        textBox("t", 0, 0, "inner")})});
  EXPECT_EQ(beginnings(body),
            (Lines{"VB.Frame grp", "VB.Frame inner", "VB.TextBox t", "VB.TextBox t"}));
}

TEST(OptionGroup, ManyGroupsInsideEachOtherEnd) {
  std::vector<Json> controls = {group(0, 0)};
  std::string outer = "grp";
  for (int i = 0; i < 40; ++i) {
    const std::string inner = "g" + std::to_string(i);
    controls.push_back(control(inner, 107, at(0, 0), outer));
    outer = inner;
  }
  FormSession session;
  const std::size_t frames = beginnings(convertFirst(session, {form("F", controls)})).size();
  // Six levels double the output, the others are printed without members.
  EXPECT_GT(frames, 41u);
  EXPECT_LT(frames, 64u * 41u);
}

}  // namespace
}  // namespace tarrowin::test
