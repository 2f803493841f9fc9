// The list of copies: order, conversions, and what stays unwritten.
#include "preview/preview_session.h"

namespace tarrowin::test {
namespace {

class PreviewCopies : public testing::Test {
 protected:
  const PreviewControl& copyOf(int type, const Json& properties) {
    return named(session.previewOf(formOf({control("ctl", type, properties)})), "ctl");
  }

  PreviewSession session;
};

// All that is copied, in another order than that of the copies.
const Json kAll = {
    {"Width", 1500},           {"Visible", true},    {"Top", 240},        {"Section", 0},
    {"ControlTipText", "Tip"}, {"Text", "typed"},    {"Tag", "tag"},      {"TabStop", false},
    {"TabIndex", 3},           {"Locked", true},     {"Left", 120},       {"Height", 270},
    {"ForeColor", 255},        {"Enabled", false},   {"BorderStyle", 1},  {"BackStyle", 0},
    {"BackColor", 16777215},   {"Caption", "&Name"}, {"SpecialEffect", 2}};

TEST_F(PreviewCopies, AreWrittenInTheirOrder) {
  // An ActiveX control, whose class may have anything.
  Json properties = kAll;
  properties["Class"] = "Some.Control";
  EXPECT_EQ(linesOf(copyOf(119, properties)),
            (Lines{"Appearance 1", "Caption \"&Name\"", "BackColor 16777215", "BackStyle 0",
                   "BorderStyle 1", "Enabled False", "ForeColor 255", "Height 270", "Left 120",
                   "Locked True", "TabIndex 3", "TabStop False", "Tag \"tag\"", "Text \"typed\"",
                   "ToolTipText \"Tip\"", "Top 240", "Visible True", "Width 1500"}));
}

TEST_F(PreviewCopies, PropertiesThatTheClassLacksStayUnwritten) {
  EXPECT_EQ(linesOf(copyOf(100, kAll)),
            (Lines{"Appearance 1", "Caption \"&Name\"", "BackColor 16777215", "BackStyle 0",
                   "BorderStyle 1", "Enabled False", "ForeColor 255", "Height 270", "Left 120",
                   "TabIndex 3", "Tag \"tag\"", "ToolTipText \"Tip\"", "Top 240", "Visible True",
                   "Width 1500"}));
  EXPECT_EQ(linesOf(copyOf(102, kAll)),
            (Lines{"BorderStyle 1", "Height 270", "Left 120", "Tag \"tag\"", "Top 240",
                   "Visible True", "Width 1500"}));
}

TEST_F(PreviewCopies, TabControlHasAListOfItsOwn) {
  EXPECT_EQ(linesOf(copyOf(123, kAll)),
            (Lines{"Enabled False", "Height 270", "Left 120", "TabIndex 3", "TabStop False",
                   "Tag \"tag\"", "Top 240", "Visible True", "Width 1500"}));
}

TEST_F(PreviewCopies, SpecialEffectZeroIsFlatAndAllElse3D) {
  EXPECT_EQ(linesOf(copyOf(109, {{"SpecialEffect", 0}})), Lines{"Appearance 0"});
  EXPECT_EQ(linesOf(copyOf(109, {{"SpecialEffect", 1}})), Lines{"Appearance 1"});
  EXPECT_EQ(linesOf(copyOf(109, {{"SpecialEffect", 5}})), Lines{"Appearance 1"});
  EXPECT_EQ(linesOf(copyOf(109, {{"SpecialEffect", nullptr}})), Lines{"Appearance 1"});
}

TEST_F(PreviewCopies, UnreadablePropertyStaysUnwrittenAndTheNextIsCopied) {
  EXPECT_EQ(linesOf(copyOf(104, {{"Caption", {{"error", 2186}}}, {"Enabled", true}})),
            Lines{"Enabled True"});
  EXPECT_EQ(linesOf(copyOf(104, Json::object())), Lines{});
}

TEST_F(PreviewCopies, NullIsAnEmptyTextAndNoNumber) {
  EXPECT_EQ(linesOf(copyOf(104, {{"Caption", nullptr},
                                 {"BackColor", nullptr},
                                 {"Enabled", nullptr},
                                 {"Left", nullptr},
                                 {"Tag", nullptr},
                                 {"ControlTipText", nullptr},
                                 {"Top", nullptr},
                                 {"Width", nullptr}})),
            (Lines{"Caption \"\"", "Tag \"\"", "ToolTipText \"\""}));
}

TEST_F(PreviewCopies, ValuesTakeTheTypeOfTheProperty) {
  EXPECT_EQ(
      linesOf(copyOf(104, {{"Caption", 5}, {"Enabled", -1}, {"Height", "300"}, {"Left", 1.5}})),
      (Lines{"Caption \"5\"", "Enabled True", "Height 300", "Left 2"}));
}

TEST_F(PreviewCopies, ValueThatIsNoNumberOrOutOfRangeStaysUnwritten) {
  EXPECT_EQ(linesOf(copyOf(104, {{"BackColor", "red"},
                                 {"Enabled", "maybe"},
                                 {"Height", -1},
                                 {"TabIndex", 1e12},
                                 {"Width", 10}})),
            Lines{"Width 10"});
  // Dashes, which only lines and shapes have.
  EXPECT_EQ(linesOf(copyOf(100, {{"BorderStyle", 2}})), Lines{});
  EXPECT_EQ(linesOf(copyOf(101, {{"BorderStyle", 2}})), Lines{"BorderStyle 2"});
}

TEST_F(PreviewCopies, NameWithBlanksHasUnderscores) {
  const PreviewSurface& surface =
      session.previewOf(formOf({placed("Ship  Date (old)", 109, 0, 0)}));
  EXPECT_EQ(namesOf(surface), Lines{"Ship__Date_(old)"});
}

class PreviewTops : public testing::Test {
 protected:
  std::string topIn(const Json& sectionNumber, const std::vector<std::pair<int, int>>& sections) {
    Json properties = {{"Top", 7}};
    if (!sectionNumber.is_null()) properties["Section"] = sectionNumber;
    return valueOf(
        named(session.previewOf(formOf({control("ctl", 109, properties)}, {}, sections)), "ctl"),
        "Top");
  }

  PreviewSession session;
  const std::vector<std::pair<int, int>> all = {{0, 3000}, {1, 100}, {2, 20000}, {3, 50}, {4, 400}};
};

TEST_F(PreviewTops, EachSectionStandsBelowThoseAboveIt) {
  EXPECT_EQ(topIn(1, all), "7");
  EXPECT_EQ(topIn(3, all), "107");
  EXPECT_EQ(topIn(0, all), "157");
  EXPECT_EQ(topIn(4, all), "3157");
  EXPECT_EQ(topIn(2, all), "3557");
}

TEST_F(PreviewTops, UnknownSectionLeavesTheTop) {
  EXPECT_EQ(topIn(5, all), "7");
  EXPECT_EQ(topIn(nullptr, all), "7");
  EXPECT_EQ(topIn(Json::object({{"error", 2462}}), all), "7");
}

TEST_F(PreviewTops, MissingSectionsAddNothing) {
  EXPECT_EQ(topIn(2, {{0, 3000}, {2, 400}}), "3007");
}

TEST_F(PreviewTops, SumBeyond32BitsStaysUnwritten) {
  const PreviewSurface& surface =
      session.previewOf(formOf({placed("ctl", 109, 1, 2147483647)}, {}, {{0, 1}, {1, 2}}));
  EXPECT_EQ(valueOf(named(surface, "ctl"), "Left"), "1");
  EXPECT_EQ(valueOf(named(surface, "ctl"), "Top"), "(unwritten)");
}

}  // namespace
}  // namespace tarrowin::test
