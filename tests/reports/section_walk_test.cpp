// The sections of the Data Report: how many, in which order, under which names, and their blocks.
#include "reports/section_walk.h"

#include <array>

#include "reports/made_report.h"
#include "reports/report_session.h"
#include "reports/section_block.h"

namespace tarrowin::test {
namespace {

// The section lines of a report: from the count to the line before the last.
Lines sectionsOf(const Lines& lines) {
  const auto first = std::find_if(lines.begin(), lines.end(), [](const std::string& line) {
    return line.starts_with("   NumSections");
  });
  return Lines(first, lines.end() - 1);
}

Lines walked(const ReportParts& parts) {
  ReportSession session;
  const Lines lines = session.dataReportOf(parts);
  EXPECT_TRUE(session.user.boxes.empty());
  EXPECT_EQ(lines.back(), "End  ' Data Report Sales");
  return sectionsOf(lines);
}

TEST(SectionWalk, AReportWithOnlyAVisibleDetail) {
  EXPECT_EQ(walked({}),
            (Lines{"   NumSections   = 1", "   SectionCode0  = 4", "   BeginProperty Section0",
                   "      _Version        = 393216", "      Name            = \"Detail\"",
                   "      Object.Height   = 1000", "      KeepTogether    = 0   'False",
                   "      ForcePageBreak  = 0   'False", "      NumControls     = 0",
                   "   EndProperty   ' Section0"}));
}

TEST(SectionWalk, Sections03456WithOneGroupLevel) {
  const Lines lines = walked(reportOfSections({0, 3, 4, 5, 6}, 1));
  EXPECT_EQ(lines[0], "   NumSections   = 5");
  EXPECT_EQ(sectionNames(lines),
            (Lines{"Section3", "Section5", "Section0", "Section6", "Section4"}));
  EXPECT_EQ(starting(lines, "   SectionCode"),
            (Lines{"   SectionCode0  = 2", "   SectionCode1  = 3", "   SectionCode2  = 4",
                   "   SectionCode3  = 5", "   SectionCode4  = 7"}));
}

TEST(SectionWalk, Sections0To6) {
  const Lines lines = walked(reportOfSections({0, 1, 2, 3, 4, 5, 6}, 1));
  EXPECT_EQ(lines[0], "   NumSections   = 7");
  EXPECT_EQ(sectionNames(lines), (Lines{"Section1", "Section3", "Section5", "Section0", "Section6",
                                        "Section4", "Section2"}));
}

TEST(SectionWalk, Sections01234AndNoGroupPrintTheDetailTwiceAndNoFooter) {
  const Lines lines = walked(reportOfSections({0, 1, 2, 3, 4}));
  EXPECT_EQ(lines[0], "   NumSections   = 5");
  EXPECT_EQ(sectionNames(lines),
            (Lines{"Section1", "Section3", "Group1Header", "Section0", "Section0"}));
  EXPECT_EQ(
      block(lines, "   SectionCode2  = 3", "   EndProperty   ' Section2"),
      (Lines{"   SectionCode2  = 3", "   BeginProperty Section2", "      _Version        = 393216",
             "      Name            = \"Group1Header\"", "      Object.Height   = 0",
             "      NumControls     = 0", "   EndProperty   ' Section2"}));
}

TEST(SectionWalk, Sections034AndNoGroupLoseThePageFooter) {
  const Lines lines = walked(reportOfSections({0, 3, 4}));
  EXPECT_EQ(lines[0], "   NumSections   = 3");
  EXPECT_EQ(sectionNames(lines), (Lines{"Section3", "Group1Header", "Section0"}));
}

TEST(SectionWalk, Sections0345678NeverReachSection8) {
  const Lines lines = walked(reportOfSections({0, 3, 4, 5, 6, 7, 8}, 2));
  EXPECT_EQ(lines[0], "   NumSections   = 7");
  EXPECT_EQ(sectionNames(lines), (Lines{"Section3", "Section5", "Section7", "Section0", "Section6",
                                        "Section4", "ReportFooter"}));
}

TEST(SectionWalk, AnEvenCountPrintsNumSectionsOneHigher) {
  const Lines lines = walked(reportOfSections({0, 3, 4, 5, 6, 2}, 1));
  EXPECT_EQ(lines[0], "   NumSections   = 7");
  EXPECT_EQ(starting(lines, "   EndProperty   ' Section").size(), 7u);
}

TEST(SectionWalk, ASectionThatExistsButIsHiddenTakesOnePlace) {
  ReportParts parts = reportOfSections({0, 1, 2, 3, 4});
  parts.sections[3]["properties"]["Visible"] = false;
  const Lines lines = walked(parts);
  EXPECT_EQ(lines[0], "   NumSections   = 5");
  EXPECT_EQ(starting(lines, "   SectionCode"),
            (Lines{"   SectionCode0  = 1", "   SectionCode2  = 3", "   SectionCode3  = 4",
                   "   SectionCode4  = 4"}));
  EXPECT_EQ(sectionNames(lines), (Lines{"Section1", "Group1Header", "Section0", "Section0"}));
}

TEST(SectionWalk, FourGroupLevelsPrintTheirCodes) {
  const Lines lines = walked(reportOfSections({0, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}, 4));
  EXPECT_EQ(lines[0], "   NumSections   = 11");
  EXPECT_EQ(sectionNames(lines),
            (Lines{"Section3", "Section5", "Section7", "Section9", "Section11", "Section0",
                   "Section10", "Section8", "Section6", "Section4", "ReportFooter"}));
  EXPECT_EQ(starting(lines, "   SectionCode"),
            (Lines{"   SectionCode0  = 2", "   SectionCode1  = 3", "   SectionCode2  = 3",
                   "   SectionCode3  = 0", "   SectionCode4  = 0", "   SectionCode5  = 4",
                   "   SectionCode6  = 0", "   SectionCode7  = 5", "   SectionCode8  = 5",
                   "   SectionCode9  = 7", "   SectionCode10  = 8"}));
}

TEST(SectionWalk, AllThirteenSectionsEndInTheReportFooterSixTimes) {
  const Lines names =
      sectionNames(walked(reportOfSections({0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}, 4)));
  EXPECT_EQ(names, (Lines{"Section1", "Section3", "Section5", "Section7", "Section9", "Section11",
                          "Section0", "Section2", "Section2", "Section2", "Section2", "Section2",
                          "Section2"}));
}

TEST(SectionWalk, OfFiveTheGroupLevelsChooseTheFooterBehindTheDetail) {
  const std::string_view kBehind[] = {"Section0", "Group1Footer", "Group2Footer", "Group3Footer",
                                      "Group4Footer"};
  for (int levels = 0; levels <= 4; ++levels) {
    SCOPED_TRACE(levels);
    EXPECT_EQ(sectionNames(walked(reportOfSections({0, 1, 2, 3, 4}, levels)))[4], kBehind[levels]);
  }
  EXPECT_EQ(sectionNames(walked(reportOfSections({0, 1, 2, 3, 4}, 5)))[4], "Section0");
}

TEST(SectionWalk, AReportWithoutAnySectionPrintsAnEmptyDetail) {
  EXPECT_EQ(walked(reportOfSections({})),
            (Lines{"   NumSections   = 1", "   SectionCode0  = 4", "   BeginProperty Section0",
                   "      _Version        = 393216", "      Name            = \"Detail\"",
                   "      Object.Height   = 0", "      NumControls     = 0",
                   "   EndProperty   ' Section0"}));
}

TEST(SectionWalk, NumControlsAndTheItemsAreThoseOfTheSection) {
  ReportParts parts = reportOfSections({0, 3, 4});
  parts.controls = {item("a", kLineControl, 3), item("b", kLineControl, 0),
                    item("c", kLineControl, 3)};
  const Lines lines = walked(parts);
  EXPECT_EQ(starting(lines, "      NumControls"),
            (Lines{"      NumControls     = 2", "      NumControls     = 0",
                   "      NumControls     = 1"}));
  EXPECT_EQ(starting(lines, "         Name            = "),
            (Lines{"         Name            = \"a\"", "         Name            = \"c\"",
                   "         Name            = \"b\""}));
}

TEST(SectionWalk, ASectionWhoseVisibleCannotBeReadIsPrinted) {
  for (const std::int32_t number : {438, 2455, 2683}) {
    SCOPED_TRACE(number);
    ReportSession session;
    ReportParts parts = reportOfSections({0, 1, 2, 3, 4, 5, 6}, 1);
    parts.sections[2]["properties"]["Visible"] = errorValue(number);
    const Lines lines = session.dataReportOf(parts);
    EXPECT_TRUE(contains(lines, "   NumSections   = 7"));
    EXPECT_EQ(sectionNames(lines).back(), "Section2");
    EXPECT_EQ(lines[lines.size() - 3], "      NumControls     = 0");
    EXPECT_EQ(lines[lines.size() - 2], "   EndProperty   ' Section6");
    if (number == 2683) {
      EXPECT_EQ(session.user.boxes.empty() ? "" : session.user.boxes.back().text,
                "GetAccDataReportProps() - Error #2683\r\nAs recorded.");
    } else {
      EXPECT_TRUE(session.user.boxes.empty());
    }
  }
}

TEST(SectionWalk, KindsOfSections) {
  const struct {
    std::string_view name;
    std::int32_t code;
  } kKinds[] = {{"Detail", 4},       {"ReportHeader", 1}, {"ReportFooter", 8}, {"PageHeader", 2},
                {"PageFooter", 7},   {"Group1Header", 3}, {"Group1Footer", 5}, {"Group2Header", 3},
                {"Group2Footer", 5}, {"Group3Header", 0}, {"Group3Footer", 0}, {"Group4Header", 0},
                {"Group4Footer", 0}};
  for (int number = 0; number < 13; ++number) {
    EXPECT_EQ(sectionKind(number).name, kKinds[number].name);
    EXPECT_EQ(sectionKind(number).code, kKinds[number].code);
  }
}

// The block of section 0 with these properties, as PrintReportSection alone prints it.
Lines openingBlock(const Json& properties, int sectionNumber = 0) {
  ReportSession session;
  ReportParts parts;
  parts.sections = {reportSection(0, "Detail", properties)};
  session.openReport(parts);
  session.files.Open(session.state.mstrOutputDir + "block", FileMode::kOutput, kOutputFile);
  session.state.strSectionName = "The \"Name\"";
  PrintReportSection(session.main, sectionNumber, 3);
  session.files.Close(kOutputFile);
  EXPECT_TRUE(session.user.boxes.empty());
  return linesOf(fileContent(session.out() / "block"));
}

TEST(SectionBlock, PrintsItsNameAndOptions) {
  EXPECT_EQ(
      openingBlock({{"Height", 321}, {"KeepTogether", true}, {"ForceNewPage", 1}}),
      (Lines{"   SectionCode3  = 4", "   BeginProperty Section3", "      _Version        = 393216",
             "      Name            = \"The \"Name\"\"", "      Object.Height   = 321",
             "      KeepTogether    = -1   'True", "      ForcePageBreak  = -1   'True"}));
}

TEST(SectionBlock, EveryForceNewPageButNoneIsABreak) {
  for (int force = 0; force <= 3; ++force) {
    EXPECT_EQ(
        openingBlock({{"ForceNewPage", force}}).back(),
        force == 0 ? "      ForcePageBreak  = 0   'False" : "      ForcePageBreak  = -1   'True");
  }
}

TEST(SectionBlock, OfAMissingSectionHasNoOptions) {
  EXPECT_EQ(
      openingBlock(Json::object(), 12),
      (Lines{"   SectionCode3  = 0", "   BeginProperty Section3", "      _Version        = 393216",
             "      Name            = \"The \"Name\"\"", "      Object.Height   = 0"}));
}

TEST(SectionBlock, AMissingOptionOf2455Or2462GoesOn) {
  for (const std::int32_t number : {2455, 2462}) {
    const Lines lines = openingBlock({{"KeepTogether", errorValue(number)}});
    EXPECT_EQ(lines.size(), 6u);
    EXPECT_EQ(lines.back(), "      ForcePageBreak  = 0   'False");
  }
}

TEST(SectionBlock, AnyOtherErrorLeavesTheRestUnprinted) {
  for (const std::int32_t number : {6, 9, 13, 438, 2186, 2465, 2683, 3044}) {
    SCOPED_TRACE(number);
    EXPECT_EQ(openingBlock({{"KeepTogether", errorValue(number)}}).back(),
              "      Object.Height   = 1000");
    EXPECT_EQ(openingBlock({{"ForceNewPage", errorValue(number)}}).back(),
              "      KeepTogether    = 0   'False");
    EXPECT_EQ(openingBlock({{"Height", errorValue(number)}}).back(),
              "      Name            = \"The \"Name\"\"");
  }
}

TEST(SectionBlock, ABlockLeftEarlyIsClosedAllTheSame) {
  ReportSession session;
  ReportParts parts;
  parts.sections[0]["properties"]["Height"] = errorValue(438);
  const Lines lines = sectionsOf(session.dataReportOf(parts));
  EXPECT_EQ(lines,
            (Lines{"   NumSections   = 1", "   SectionCode0  = 4", "   BeginProperty Section0",
                   "      _Version        = 393216", "      Name            = \"Detail\"",
                   "      NumControls     = 0", "   EndProperty   ' Section0"}));
}

// Every combination of sections, against the rules told once more in plain words.

enum class Presence { kMissing, kHidden, kVisible };
using Sections = std::array<Presence, 13>;

// The place behind `at`, in a report of `count` printed places whose highest visible section is
// `highest`.
int placeBehind(int at, int count, int highest, int levels) {
  switch (at) {
    case 1:  // from the report header to the page header
      return 3;
    case 3:  // and to the outermost group header
      return 5;
    case 5:
    case 7:
    case 9: {  // inward as long as a section above the next header is visible, else the Detail
      const int inward = at + 2;
      return inward < highest ? inward : 0;
    }
    case 11:
      return 0;
    case 2:  // the report footer is the end
      return 2;
    case 0:
      break;
    default:  // footers, outward
      return at - 2;
  }
  // Behind the Detail.
  if (count == 5 && levels >= 1 && levels <= 4) return 4 + 2 * levels;
  if (count == 5) return 0;
  if (count == 3) return 4;
  if (count == 7 || count == 9 || count == 11) return count - 1;
  return 2;
}

constexpr std::string_view kPlaceholders[] = {
    "Detail",       "ReportHeader", "ReportFooter", "PageHeader",   "PageFooter",
    "Group1Header", "Group1Footer", "Group2Header", "Group2Footer", "Group3Header",
    "Group3Footer", "Group4Header", "Group4Footer"};
constexpr int kCodes[] = {4, 1, 8, 2, 7, 3, 5, 3, 5, 0, 0, 0, 0};

std::string nameOf(int section) { return "Own" + std::to_string(section); }
int heightOf(int section) { return 100 + section; }

void addBlock(std::string& text, int place, int section, bool isThere) {
  const std::string i = std::to_string(place);
  const std::string name = isThere ? nameOf(section) : std::string(kPlaceholders[section]);
  text += "   SectionCode" + i + "  = " + std::to_string(kCodes[section]) + "\r\n";
  text += "   BeginProperty Section" + i + "\r\n";
  text += "      _Version        = 393216\r\n";
  text += "      Name            = \"" + name + "\"\r\n";
  text += "      Object.Height   = " + std::to_string(isThere ? heightOf(section) : 0) + "\r\n";
  if (isThere) {
    text += "      KeepTogether    = 0   'False\r\n";
    text += "      ForcePageBreak  = 0   'False\r\n";
  }
  text += "      NumControls     = 0\r\n";
  text += "   EndProperty   ' Section" + i + "\r\n";
}

// What the file must hold from the count of the sections on.
std::string expectedText(const Sections& sections, int levels) {
  int visible = 0, second = 0, highest = 0;
  for (int number = 0; number < 13; ++number) {
    if (sections[static_cast<std::size_t>(number)] != Presence::kVisible) continue;
    ++visible;
    if (visible == 2) second = number;
    highest = number;
  }
  const int count = visible % 2 == 0 ? visible + 1 : visible;
  std::string text = "   NumSections   = " + std::to_string(count) + "\r\n";
  int at = second;  // the walk starts at the second visible section; without one at the Detail
  for (int place = 0; place < count; ++place) {
    const Presence presence = sections[static_cast<std::size_t>(at)];
    if (presence != Presence::kHidden) addBlock(text, place, at, presence == Presence::kVisible);
    at = placeBehind(at, count, highest, levels);
  }
  return text + "End  ' Data Report R\r\n";
}

// One report of changing sections, written over and over into one file.
class WalkedReports {
 public:
  WalkedReports() {
    for (int number = 0; number < 13; ++number) {
      visible_[static_cast<std::size_t>(number)] = madeSection(number, true);
      hidden_[static_cast<std::size_t>(number)] = madeSection(number, false);
    }
    const auto report = std::make_shared<MadeObject>();
    for (const char* name : {"BorderStyle", "FontName", "FontSize", "FontWeight", "FontUnderline",
                             "FontItalic", "GridX", "GridY", "Width"}) {
      report->set(name, Value(1));
    }
    report->set("Caption", Value("R"));
    report->set("RecordSource", Value(""));
    report->set("Section", [this](Arguments arguments) {
      const auto number = static_cast<std::size_t>(toLong(arguments[0]));
      if (sections_[number] == Presence::kMissing) raise(2462);
      return Value(
          ObjectRef((sections_[number] == Presence::kVisible ? visible_ : hidden_)[number]));
    });
    const auto level = std::make_shared<MadeObject>();
    level->set("ControlSource", Value("Country"));
    level->set("GroupHeader", Value(true));
    level->set("GroupFooter", Value(false));
    report->set("GroupLevel", [this, level](Arguments arguments) {
      if (toLong(arguments[0]) >= levels_) raise(2464);
      return Value(ObjectRef(level));
    });
    session_.state.mrptCurr = LateBound(report);
    session_.state.mstrBaseName = "R";
  }
  ~WalkedReports() { compare(); }

  void walk(const Sections& sections, int levels) {
    if (expected_.empty()) session_.files.Open(path(), FileMode::kOutput, kOutputFile);
    sections_ = sections;
    levels_ = levels;
    GetAccDataReportProps(session_.main);
    expected_.push_back(expectedText(sections, levels));
    if (expected_.size() == 1000) compare();
  }

 private:
  static std::shared_ptr<MadeObject> madeSection(int number, bool isVisible) {
    const auto controls = std::make_shared<MadeObject>();
    controls->set("Count", Value(0));
    const auto made = std::make_shared<MadeObject>();
    made->set("Visible", Value(isVisible));
    made->set("Height", Value(heightOf(number)));
    made->set("Name", Value(nameOf(number)));
    made->set("KeepTogether", Value(false));
    made->set("ForceNewPage", Value(0));
    made->set("Controls", Value(ObjectRef(controls)));
    return made;
  }
  std::string path() const { return (session_.out() / "walked").string(); }

  // Reads the file of the walks since the last call.
  void compare() {
    if (expected_.empty()) return;
    session_.files.Close(kOutputFile);
    const std::string text = fileContent(path());
    std::size_t position = 0;
    for (const std::string& expected : expected_) {
      position = text.find("   NumSections", position);
      ASSERT_NE(position, std::string::npos) << "no file for\n" << expected;
      ASSERT_EQ(text.substr(position, expected.size()), expected);
      position += expected.size();
      ASSERT_TRUE(position == text.size() || text.substr(position).starts_with("VERSION"))
          << "more behind\n"
          << expected;
    }
    EXPECT_TRUE(session_.user.boxes.empty());
    expected_.clear();
  }

  ReportSession session_;
  std::array<std::shared_ptr<MadeObject>, 13> visible_, hidden_;
  Sections sections_{};
  int levels_ = 0;
  std::vector<std::string> expected_;
};

// Calls action with each choice of sections that exist or else are as absent says.
template <class Action>
void forEachSet(Presence absent, Action action) {
  for (unsigned set = 0; set < 1u << 13; ++set) {
    Sections sections;
    for (std::size_t number = 0; number < 13; ++number)
      sections[number] = (set >> number & 1) != 0 ? Presence::kVisible : absent;
    action(sections);
  }
}

TEST(SectionWalk, EveryCombinationOfExistingAndMissingSections) {
  WalkedReports reports;
  int set = 0;
  forEachSet(Presence::kMissing, [&](const Sections& sections) {
    // Of five places, and of five alone, the levels matter; the others have one number each.
    const auto visible = std::count(sections.begin(), sections.end(), Presence::kVisible);
    const bool ofFive = visible == 4 || visible == 5;
    for (int levels = 0; levels <= 4; ++levels)
      if (ofFive || levels == set % 5) reports.walk(sections, levels);
    ++set;
  });
}

TEST(SectionWalk, EveryCombinationOfVisibleAndHiddenSections) {
  WalkedReports reports;
  forEachSet(Presence::kHidden, [&](const Sections& sections) {
    for (int levels = 0; levels <= 4; ++levels) reports.walk(sections, levels);
  });
}

TEST(SectionWalk, EveryCombinationOfExistingMissingAndHiddenSectionsUpToTheFirstGroupLevels) {
  WalkedReports reports;
  for (int set = 0; set < 6561; ++set) {  // 3 to the power of 8
    Sections sections{};
    int rest = set;
    for (std::size_t number = 0; number < 8; ++number, rest /= 3)
      sections[number] = static_cast<Presence>(rest % 3);
    reports.walk(sections, set % 5);
  }
}

TEST(SectionWalk, CombinationsOfAllThirteenSectionsSampled) {
  WalkedReports reports;
  std::uint32_t state = 20000101;
  for (int sample = 0; sample < 8000; ++sample) {
    Sections sections;
    for (Presence& presence : sections) {
      state = state * 1664525 + 1013904223;  // a linear congruential sequence
      presence = static_cast<Presence>((state >> 16) % 3);
    }
    reports.walk(sections, sample % 5);
  }
}

TEST(SectionWalk, TheNextSectionForEveryCountAndHighestSection) {
  for (std::int16_t count = 1; count <= 13; count = static_cast<std::int16_t>(count + 2)) {
    for (std::int16_t highest = 0; highest <= 12; ++highest) {
      for (std::int16_t at = 0; at <= 12; ++at) {
        for (std::int32_t levels = 0; levels <= 9; ++levels) {
          EXPECT_EQ(nextSection(at, count, highest, [&] { return levels; }),
                    placeBehind(at, count, highest, levels))
              << at << ' ' << count << ' ' << highest << ' ' << levels;
        }
      }
    }
  }
}

TEST(SectionWalk, TheCountIsOddWhateverIsVisible) {
  for (int visible = 0; visible <= 6; ++visible) {
    ReportSession session;
    ReportParts parts = reportOfSections({0, 1, 2, 3, 4, 5});
    for (std::size_t i = static_cast<std::size_t>(visible); i < 6; ++i)
      parts.sections[i]["properties"]["Visible"] = false;
    session.openReport(parts);
    constexpr int kCounts[] = {1, 1, 3, 3, 5, 5, 7};
    EXPECT_EQ(GetNumReportSections(session.state.mrptCurr), kCounts[visible]);
  }
}

}  // namespace
}  // namespace tarrowin::test
