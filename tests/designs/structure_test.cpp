// Sections, controls and what stands in what.
#include <gtest/gtest.h>

#include "designs/stored_builder.h"

namespace tarrowin {
namespace {

constexpr std::size_t kNoParent = ControlModel::kNoParent;

std::vector<std::int32_t> sectionNumbers(const Completed& design) {
  std::vector<std::int32_t> numbers;
  for (const SectionModel& section : design.body.sections) numbers.push_back(section.number);
  return numbers;
}

TEST(DesignStructure, SectionsCarryTheirNumbers) {
  StoredDesign stored;
  stored.root =
      block("Report", {},
            {block("BreakLevel", {flag("GroupHeader")}),
             block("BreakLevel", {flag("GroupHeader"), flag("GroupFooter")}), block("FormHeader"),
             block("PageHeader"), named("BreakHeader", "outer", {}, {named("Label", "a")}),
             named("BreakHeader", "inner", {kept("BreakLevel", 1)}, {named("Label", "b")}),
             named("Section", "Détail", {}, {named("Label", "c")}),
             named("BreakFooter", "f", {kept("BreakLevel", 1)}, {named("Label", "d")}),
             block("PageFooter"), block("FormFooter", {}, {named("Label", "e")})});
  const Completed report(stored);
  EXPECT_EQ(sectionNumbers(report), (std::vector<std::int32_t>{1, 3, 5, 7, 0, 8, 4, 2}));
  EXPECT_EQ(report.body.groupLevels.size(), 2u);
  EXPECT_EQ(report.of("a", "Section"), Value(5));
  EXPECT_EQ(report.of("b", "Section"), Value(7));
  EXPECT_EQ(report.of("c", "Section"), Value(0));
  EXPECT_EQ(report.of("d", "Section"), Value(8));
  EXPECT_EQ(report.of("e", "Section"), Value(2));
  EXPECT_EQ(report.controlNames(), (std::vector<std::string>{"a", "b", "c", "d", "e"}));
}

TEST(DesignStructure, EachControlStandsBeforeThoseThatItHolds) {
  const Completed form(formWith(
      {named("Tab", "tab", {},
             {named("Page", "p1", {},
                    {named("TextBox", "text", {}, {named("Label", "label")}),
                     named("OptionGroup", "group", {}, {named("OptionButton", "option")})}),
              named("Page", "p2")}),
       named("CommandButton", "last")}));
  EXPECT_EQ(form.controlNames(), (std::vector<std::string>{"tab", "p1", "text", "label", "group",
                                                           "option", "p2", "last"}));
  std::vector<std::size_t> parents;
  for (const ControlModel& control : form.body.controls) parents.push_back(control.parent);
  EXPECT_EQ(parents, (std::vector<std::size_t>{kNoParent, 0, 1, 2, 1, 4, 0, kNoParent}));
  for (const char* name : {"tab", "p1", "text", "label", "group", "option"})
    EXPECT_EQ(form.of(name, "Section"), Value(0)) << name;
  EXPECT_EQ(form.of("p1", "PageIndex"), Value(0));
  EXPECT_EQ(form.of("p2", "PageIndex"), Value(1));
}

TEST(DesignStructure, AMemberOfAnOptionGroupHasAValueInPlaceOfASource) {
  const Completed form(formWith(
      {named("OptionGroup", "group", {},
             {named("OptionButton", "first", {kept("OptionValue", 1)}),
              named("CheckBox", "omitted"), named("ToggleButton", "toggle")}),
       named("OptionButton", "alone", {kept("ControlSource", "Paid"), kept("OptionValue", 5)})},
      {block("OptionButton", {kept("OptionValue", 3), kept("ControlSource", "x")})}));
  EXPECT_EQ(form.of("first", "OptionValue"), Value(1));
  EXPECT_EQ(form.of("omitted", "OptionValue"), Value(-1));
  EXPECT_TRUE(form.hasOf("toggle", "OptionValue"));
  EXPECT_FALSE(form.hasOf("first", "ControlSource"));
  EXPECT_FALSE(form.hasOf("omitted", "ControlSource"));
  EXPECT_EQ(form.of("alone", "ControlSource"), Value("Paid"));
  EXPECT_FALSE(form.hasOf("alone", "OptionValue"));
}

TEST(DesignStructure, AChartIsAnUnboundFrameWithAStyleOfItsOwn) {
  const Completed form(formWith(
      {named("Chart", "chart", {kept("RowSource", "Sales")}), named("UnboundObjectFrame", "frame")},
      {block("Chart", {kept("SpecialEffect", 2)})}));
  EXPECT_EQ(form.control("chart").type, 114);
  EXPECT_EQ(form.of("chart", "ControlType"), Value(114));
  EXPECT_EQ(form.of("chart", "RowSource"), Value("Sales"));
  EXPECT_EQ(form.of("chart", "SpecialEffect"), Value(2));
  EXPECT_EQ(form.control("frame").type, 114);
  EXPECT_EQ(form.of("frame", "SpecialEffect"), Value(0));
}

TEST(DesignStructure, KindsOfLaterVersionsAreKeptWithTheirNumbers) {
  const Completed form(formWith(
      {named("WebBrowser", "web", {kept("Left", 60), flag("Visible")}), named("#126", "file"),
       named("NavigationControl", "nav", {}, {named("NavigationButton", "b")})}));
  EXPECT_EQ(form.control("web").type, 128);
  EXPECT_EQ(form.of("web", "Left"), Value(60));
  EXPECT_EQ(form.of("web", "Visible"), Value(false));
  EXPECT_EQ(form.of("web", "Name"), Value("web"));
  EXPECT_EQ(form.of("web", "Section"), Value(0));
  EXPECT_FALSE(form.hasOf("web", "Width"));
  EXPECT_EQ(form.control("file").type, 126);
  EXPECT_EQ(form.control("b").parent, 2u);
}

TEST(DesignStructure, UnknownKindsAreLeftOutAndCounted) {
  const Completed form(
      formWith({named("Label", "a"), named("#199", "odd", {}, {named("Label", "inside")}),
                named("#12x", "odd"), named("Form", "form"), named("", "none")}));
  EXPECT_EQ(form.controlNames(), std::vector<std::string>{"a"});
  ASSERT_TRUE(form.body.understood);
  EXPECT_EQ(form.body.understood->controls, 6u);
  EXPECT_EQ(form.body.understood->controlsKnown, 1u);
}

TEST(DesignStructure, WhatTheReaderCountedIsKept) {
  StoredDesign stored = formWith({named("Label", "a")});
  stored.understood = {.controls = 4, .controlsKnown = 4, .properties = 90, .propertiesKnown = 80};
  const Completed form(stored);
  EXPECT_EQ(form.body.understood->controls, 4u);
  EXPECT_EQ(form.body.understood->controlsKnown, 1u);
  EXPECT_EQ(form.body.understood->properties, 90u);
  EXPECT_EQ(form.body.understood->propertiesKnown, 80u);
}

TEST(DesignStructure, DuplicateNamesStayApart) {
  const Completed form(formWith({named("TextBox", "x", {}, {named("Label", "x")}),
                                 named("TextBox", "X", {}, {named("Label", "l")})}));
  EXPECT_EQ(form.controlNames(), (std::vector<std::string>{"x", "x", "X", "l"}));
  EXPECT_EQ(form.body.controls[1].parent, 0u);
  EXPECT_EQ(form.body.controls[3].parent, 2u);
}

TEST(DesignStructure, OfTwoSectionsOfOneNumberTheFirstCountsAndNoControlIsLost) {
  StoredDesign stored = formWith({named("Label", "a")});
  stored.root.children.push_back(named("Section", "Again", {}, {named("Label", "b")}));
  const Completed form(stored);
  ASSERT_EQ(form.body.sections.size(), 1u);
  EXPECT_EQ(form.value(form.body.sections[0].properties, "Name"), Value("Detail"));
  EXPECT_EQ(form.controlNames(), (std::vector<std::string>{"a", "b"}));
}

TEST(DesignStructure, AGroupSectionOnALevelThatNoReportHas) {
  StoredDesign stored;
  stored.root = block("Report", {},
                      {named("BreakHeader", "h", {kept("BreakLevel", 10)}, {named("Label", "a")}),
                       named("BreakFooter", "f", {kept("BreakLevel", -1)}),
                       named("BreakHeader", "last", {kept("BreakLevel", 9)})});
  const Completed report(stored);
  EXPECT_EQ(sectionNumbers(report), std::vector<std::int32_t>{23});
  EXPECT_TRUE(report.body.controls.empty());
  EXPECT_EQ(report.body.understood->controls, 1u);
}

TEST(DesignStructure, NestingDeeperThanAccessNestsIsCutOff) {
  StoredBlock nest = named("Label", "deepest");
  for (int depth = 0; depth < 2000; ++depth) {
    StoredBlock outer = named("TextBox", "t");
    outer.children.push_back(std::move(nest));
    nest = std::move(outer);
  }
  const Completed form(formWith({std::move(nest)}));
  EXPECT_GE(form.body.controls.size(), 5u);
  EXPECT_LT(form.body.controls.size(), 100u);
  EXPECT_GT(form.body.understood->controls, form.body.understood->controlsKnown);
}

TEST(DesignStructure, ThousandsOfControls) {
  Blocks controls;
  for (int i = 0; i < 20000; ++i)
    controls.push_back(named("TextBox", "same", {kept("TabIndex", i)}, {named("Label", "l")}));
  const Completed form(formWith(std::move(controls)));
  ASSERT_EQ(form.body.controls.size(), 40000u);
  EXPECT_EQ(form.value(form.body.controls[39998].properties, "TabIndex"), Value(19999));
  EXPECT_EQ(form.body.controls[39999].parent, 39998u);
}

TEST(DesignStructure, ARootThatIsNoFormRaises) {
  StoredDesign stored;
  stored.root = block("Label");
  NameTable names{CaseFolding(CodePage())};
  EXPECT_THROW(completeDesign(stored, "x", names), VbError);
}

}  // namespace
}  // namespace tarrowin
