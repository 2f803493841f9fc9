// Option groups, tab controls and their pages.
#include "preview/preview_session.h"

namespace tarrowin::test {
namespace {

Json onPage(std::string_view name, std::string_view page) {
  return placed(name, 109, 900, 800, 0, {}, page);
}

// A tab control of pages named Page0 and so on, captioned "One" and so on.
std::vector<Json> tabControl(const std::vector<std::string>& captions) {
  std::vector<Json> controls = {placed("tabMain", 123, 500, 600)};
  for (std::size_t i = 0; i < captions.size(); ++i)
    controls.push_back(
        control("Page" + std::to_string(i), 124, {{"Caption", captions[i]}}, "tabMain"));
  return controls;
}

class PreviewContainers : public testing::Test {
 protected:
  const PreviewSurface& show(const std::vector<Json>& controls,
                             const std::vector<std::pair<int, int>>& sections = {{0, 3000}}) {
    return session.previewOf(formOf(controls, {}, sections));
  }
  const PreviewSurface& showTabs(const std::vector<Json>& members) {
    std::vector<Json> controls = tabControl({"One", "Two", "Three"});
    controls.insert(controls.end(), members.begin(), members.end());
    return show(controls);
  }

  PreviewSession session;
};

TEST_F(PreviewContainers, MembersOfAnOptionGroupStandInItsFrameRelativeToIt) {
  const PreviewSurface& surface = show(
      {placed("fra Pay", 107, 400, 1000), placed("optCash", 105, 500, 1200, 0, {}, "fra Pay"),
       placed("lblCash", 100, 800, 1150, 0, {}, "optCash"), placed("txtBehind", 109, 500, 1200)},
      {{0, 3000}, {1, 250}});
  EXPECT_EQ(namesOf(surface), (Lines{"fra_Pay", "optCash", "lblCash", "txtBehind"}));
  const PreviewControl& frame = named(surface, "fra_Pay");
  EXPECT_EQ(frame.className, "VB.Frame");
  EXPECT_EQ(frame.container, "");
  EXPECT_EQ(valueOf(frame, "Left"), "400");
  EXPECT_EQ(valueOf(frame, "Top"), "1250");
  const PreviewControl& option = named(surface, "optCash");
  EXPECT_EQ(option.container, "fra_Pay");
  EXPECT_EQ(valueOf(option, "Left"), "100");
  EXPECT_EQ(valueOf(option, "Top"), "200");
  const PreviewControl& label = named(surface, "lblCash");
  EXPECT_EQ(label.container, "fra_Pay");
  EXPECT_EQ(valueOf(label, "Left"), "400");
  EXPECT_EQ(valueOf(label, "Top"), "150");
  EXPECT_EQ(named(surface, "txtBehind").container, "");
}

TEST_F(PreviewContainers, MemberThatComesFirstWaitsForItsGroup) {
  const PreviewSurface& surface =
      show({placed("lblCash", 100, 800, 1150, 0, {}, "optCash"),
            placed("optCash", 105, 500, 1200, 0, {}, "fraPay"), placed("fraPay", 107, 400, 1000)});
  EXPECT_EQ(namesOf(surface), (Lines{"fraPay", "lblCash", "optCash"}));
  EXPECT_EQ(named(surface, "lblCash").container, "fraPay");
}

TEST_F(PreviewContainers, GroupWithoutAPlaceLeavesItsMembersTheirs) {
  const PreviewSurface& surface =
      show({control("fraPay", 107), placed("optCash", 105, 500, 1200, 0, {}, "fraPay")});
  EXPECT_EQ(valueOf(named(surface, "optCash"), "Left"), "500");
  EXPECT_EQ(valueOf(named(surface, "optCash"), "Top"), "1200");
}

TEST_F(PreviewContainers, ThreePagesShowAsThreeTabs) {
  const PreviewSurface& surface = showTabs({});
  EXPECT_EQ(namesOf(surface), Lines{"tabMain"});
  EXPECT_EQ(surface.controls.front().className, "MSComctlLib.TabStrip");
  EXPECT_EQ(surface.controls.front().tabCaptions, (Lines{"One", "Two", "Three"}));
  EXPECT_EQ(surface.mstrTabControls, Lines{""});
}

TEST_F(PreviewContainers, PageWhoseCaptionCannotBeReadHasATabWithoutOne) {
  const PreviewSurface& surface =
      show({placed("tabMain", 123, 0, 0), control("Page0", 124, Json::object(), "tabMain"),
            control("Page1", 124, {{"Caption", "Two"}}, "tabMain")});
  EXPECT_EQ(surface.controls.front().tabCaptions, (Lines{"", "Two"}));
}

TEST_F(PreviewContainers, TabControlStandsInItsSection) {
  const PreviewSurface& surface = show({placed("tabMain", 123, 500, 600)}, {{0, 3000}, {1, 250}});
  EXPECT_EQ(valueOf(surface.controls.front(), "Top"), "850");
}

TEST_F(PreviewContainers, ControlsOfPagesAreRecordedWithTheirPage) {
  const PreviewSurface& surface =
      showTabs({onPage("txtName", "Page0"), onPage("Ship Date", "Page1"),
                placed("lblShip", 100, 0, 0, 0, {}, "Ship Date"), onPage("txtLast", "Page2"),
                placed("txtFree", 109, 0, 0)});
  EXPECT_EQ(namesOf(surface),
            (Lines{"tabMain", "txtName", "Ship_Date", "lblShip", "txtLast", "txtFree"}));
  EXPECT_EQ(surface.mstrTabControls, (Lines{"0txtName", "1Ship Date", "1lblShip", "2txtLast"}));
  // They stand on the form, where they stood on the Access form.
  EXPECT_EQ(named(surface, "Ship_Date").container, "");
  EXPECT_EQ(valueOf(named(surface, "Ship_Date"), "Left"), "900");
  EXPECT_EQ(valueOf(named(surface, "Ship_Date"), "Top"), "800");
}

TEST_F(PreviewContainers, OnlyTheFirstPageShowsAtFirst) {
  const PreviewSurface& surface = showTabs(
      {placed("txtName", 109, 0, 0, 0, {{"Visible", false}}, "Page0"), onPage("Ship Date", "Page1"),
       onPage("txtLast", "Page2"), placed("txtFree", 109, 0, 0)});
  EXPECT_EQ(visibleOf(surface), (Lines{"tabMain", "txtName", "txtFree"}));
}

TEST_F(PreviewContainers, ClickOnTheSecondTabShowsTheControlsOfPageIndex1) {
  PreviewSurface surface = showTabs({onPage("txtName", "Page0"), onPage("Ship Date", "Page1"),
                                     onPage("txtLast", "Page2"), placed("txtFree", 109, 0, 0)});
  showTab(surface, 1);
  EXPECT_EQ(visibleOf(surface), (Lines{"tabMain", "Ship_Date", "txtFree"}));
  showTab(surface, 2);
  EXPECT_EQ(visibleOf(surface), (Lines{"tabMain", "txtLast", "txtFree"}));
  showTab(surface, 0);
  EXPECT_EQ(visibleOf(surface), (Lines{"tabMain", "txtName", "txtFree"}));
  // Each property once, however often it is written.
  EXPECT_EQ(linesOf(named(surface, "Ship_Date")).size(), 5u);
}

TEST_F(PreviewContainers, PageIndexOf10IsReadByItsFirstDigit) {
  std::vector<Json> controls = tabControl(Lines(12, "P"));
  for (const int page : {0, 1, 9, 10, 11})
    controls.push_back(onPage("txt" + std::to_string(page), "Page" + std::to_string(page)));
  PreviewSurface surface = show(controls);
  EXPECT_EQ(surface.controls.front().tabCaptions.size(), 12u);
  EXPECT_EQ(surface.mstrTabControls, (Lines{"0txt0", "1txt1", "9txt9", "1txt10", "1txt11"}));
  showTab(surface, 1);
  EXPECT_EQ(visibleOf(surface), (Lines{"tabMain", "txt1", "txt10", "txt11"}));
  showTab(surface, 10);
  EXPECT_EQ(visibleOf(surface), Lines{"tabMain"});
}

TEST_F(PreviewContainers, EntryThatBeginsWithoutADigitIsLeftAlone) {
  PreviewSurface surface;
  surface.controls.emplace_back().name = "txtA";
  surface.mstrTabControls = {"xtxtA"};
  showTab(surface, 0);
  EXPECT_EQ(surface.controls.front().find("Visible"), nullptr);
}

TEST_F(PreviewContainers, GroupOnAPageStandsInTheFormAndItsMembersInIt) {
  const PreviewSurface& surface = showTabs({placed("fraPay", 107, 900, 800, 0, {}, "Page1"),
                                            placed("optCash", 105, 950, 900, 0, {}, "fraPay")});
  EXPECT_EQ(namesOf(surface), (Lines{"tabMain", "fraPay", "optCash"}));
  EXPECT_EQ(named(surface, "optCash").container, "fraPay");
  EXPECT_EQ(valueOf(named(surface, "optCash"), "Left"), "50");
  EXPECT_EQ(valueOf(named(surface, "optCash"), "Top"), "100");
  EXPECT_EQ(surface.mstrTabControls, (Lines{"1fraPay", "1optCash"}));
}

TEST_F(PreviewContainers, ControlsThatComeBeforeTheirTabControlWaitForIt) {
  const PreviewSurface& surface =
      show({onPage("txtName", "Page0"), control("Page0", 124, {{"Caption", "One"}}, "tabMain"),
            placed("tabMain", 123, 500, 600)});
  EXPECT_EQ(namesOf(surface), (Lines{"tabMain", "txtName"}));
}

TEST_F(PreviewContainers, WhatHangsOnAPageOfNoTabControlStandsOnTheForm) {
  const PreviewSurface& surface =
      show({placed("Lost", 124, 0, 0), placed("txtOnIt", 109, 500, 600, 0, {}, "Lost"),
            placed("txtFree", 109, 0, 0)});
  EXPECT_EQ(namesOf(surface), (Lines{"Lost", "txtFree", "txtOnIt"}));
  EXPECT_EQ(valueOf(named(surface, "txtOnIt"), "Left"), "500");
}

TEST_F(PreviewContainers, GroupsInCirclesEnd) {
  const PreviewSurface& surface =
      show({placed("fraA", 107, 0, 0, 0, {}, "fraB"), placed("fraB", 107, 0, 0, 0, {}, "fraA"),
            placed("txtFree", 109, 0, 0)});
  EXPECT_EQ(namesOf(surface), (Lines{"txtFree", "fraA", "fraB"}));
}

}  // namespace
}  // namespace tarrowin::test
