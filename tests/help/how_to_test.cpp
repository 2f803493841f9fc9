// The How to tab: its seven pages, the pager, and the labels after a change of the tab.
#include "help/how_to.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/main_window.h"
#include "help/how_to_pages.h"

namespace tarrowin::test {
namespace {

std::vector<std::string> captions(const MainWindow& window) {
  std::vector<std::string> all;
  for (const Label& label : window.lblInfo) all.push_back(label.caption);
  return all;
}

TEST(HowTo, EachPageHasItsTitleAndItsNumber) {
  const std::vector<std::string> titles = {"Overview",
                                           "Converting Queries",
                                           "Converting Forms",
                                           "Converting Reports",
                                           "Converting Macros",
                                           "Converting Modules",
                                           "Creating Visual Basic Projects"};
  ASSERT_EQ(titles.size(), static_cast<std::size_t>(kHowToPages));
  for (int page = 0; page < kHowToPages; ++page) {
    MainWindow window;
    showHowToPage(window, page);
    EXPECT_EQ(window.lblTitle.caption, titles[static_cast<std::size_t>(page)]);
    EXPECT_EQ(window.lblCurrentPage.caption, std::to_string(page));
    EXPECT_EQ(window.lblLastPage.caption, "6");
  }
}

TEST(HowTo, StepsAreNumberedFromOneWithoutAGap) {
  for (int page = 0; page < kHowToPages; ++page) {
    MainWindow window;
    showHowToPage(window, page);
    ASSERT_FALSE(window.lblInfo[0].caption.empty());
    bool ended = false;
    for (std::size_t i = 0; i < window.lblInfo.size(); ++i) {
      const Label& label = window.lblInfo[i];
      EXPECT_EQ(label.visible, !label.caption.empty());
      if (label.caption.empty()) {
        ended = true;
        continue;
      }
      EXPECT_FALSE(ended) << "page " << page << " has a gap before step " << i + 1;
      EXPECT_EQ(label.caption.find(std::to_string(i + 1) + ". "), 0u) << label.caption;
    }
  }
}

TEST(HowTo, AShorterPageLeavesNothingOfALongerOneBefore) {
  MainWindow window;
  showHowToPage(window, 3);
  ASSERT_FALSE(window.lblInfo[6].caption.empty());
  showHowToPage(window, 4);
  EXPECT_EQ(window.lblInfo[6].caption, "");
  EXPECT_FALSE(window.lblInfo[6].visible);
}

TEST(HowTo, PrevLeadsNowhereFromTheFirstPageAndNextFromTheLast) {
  MainWindow window;
  showHowToPage(window, 0);
  EXPECT_FALSE(window.cmdPrev.enabled);
  EXPECT_TRUE(window.cmdNext.enabled);
  cmdPrev_Click(window);
  EXPECT_EQ(window.lblCurrentPage.caption, "0");

  showHowToPage(window, 6);
  EXPECT_TRUE(window.cmdPrev.enabled);
  EXPECT_FALSE(window.cmdNext.enabled);
  cmdNext_Click(window);
  EXPECT_EQ(window.lblCurrentPage.caption, "6");
}

TEST(HowTo, NextAndPrevTurnOnePageAtATime) {
  MainWindow window;
  showHowToPage(window, 0);
  std::string seen;
  while (window.cmdNext.enabled) {
    cmdNext_Click(window);
    seen += window.lblCurrentPage.caption;
  }
  while (window.cmdPrev.enabled) {
    cmdPrev_Click(window);
    seen += window.lblCurrentPage.caption;
  }
  EXPECT_EQ(seen, "123456543210");
  EXPECT_EQ(window.lblTitle.caption, "Overview");
}

TEST(HowTo, NextBeforeAnyPageWasShownTurnsToTheSecond) {
  MainWindow window;
  cmdNext_Click(window);
  EXPECT_EQ(window.lblTitle.caption, "Converting Queries");
  EXPECT_EQ(window.lblCurrentPage.caption, "1");
}

TEST(HowTo, TheWindowsOwnTitleStandsOverTheFirstPageUntilOneIsTurned) {
  MainWindow window;
  refreshHowTo(window, true);
  EXPECT_EQ(window.lblTitle.caption, "Using the Tarrowin");
  EXPECT_EQ(captions(window)[0].rfind("1. Click Open Access Database", 0), 0u);
  EXPECT_EQ(window.lblCurrentPage.caption, "0");
  EXPECT_FALSE(window.cmdPrev.enabled);
  EXPECT_TRUE(window.cmdNext.enabled);

  cmdNext_Click(window);
  cmdPrev_Click(window);
  EXPECT_EQ(window.lblTitle.caption, "Overview");
  refreshHowTo(window, true);
  EXPECT_EQ(window.lblTitle.caption, "Overview");
}

TEST(HowTo, AnotherTabClearsTheStepsFromTheSecondOnAndTheWayBackSetsThem) {
  MainWindow window;
  showHowToPage(window, 5);
  const std::vector<std::string> steps = captions(window);
  refreshHowTo(window, false);
  EXPECT_EQ(window.lblInfo[0].caption, steps[0]);
  for (std::size_t i = 1; i < window.lblInfo.size(); ++i) {
    EXPECT_EQ(window.lblInfo[i].caption, "");
    EXPECT_FALSE(window.lblInfo[i].visible);
  }
  refreshHowTo(window, true);
  EXPECT_EQ(captions(window), steps);
  EXPECT_EQ(window.lblTitle.caption, "Converting Modules");
}

TEST(HowTo, APagerThatWasSetBackMeanwhileShowsTheFirstPageAgain) {
  MainWindow window;
  showHowToPage(window, 6);
  window.lblCurrentPage.caption = "0";
  window.cmdPrev.enabled = false;
  refreshHowTo(window, true);
  EXPECT_EQ(window.lblTitle.caption, "Overview");
  EXPECT_TRUE(window.cmdNext.enabled);
}

TEST(HowTo, APageNumberOutOfRangeIsTheNearestPage) {
  MainWindow window;
  window.lblCurrentPage.caption = "99";
  refreshHowTo(window, true);
  EXPECT_EQ(window.lblCurrentPage.caption, "6");
}

TEST(HowTo, TextsAreAscii) {
  for (const HowToPage& page : howToPages()) {
    for (const std::string_view step : page.steps) {
      for (const char character : step) {
        EXPECT_TRUE(character >= ' ' && character <= '~') << step;
      }
    }
  }
}

}  // namespace
}  // namespace tarrowin::test
