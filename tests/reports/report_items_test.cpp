// The items of a section: what each control becomes there, its lines, and what a failed read
// leaves of them.
#include "reports/report_items.h"

#include "project/project_text.h"
#include "reports/report_session.h"

namespace tarrowin::test {
namespace {

// A session whose report has a section of every number, and the items of one of them.
class ReportItems : public testing::Test {
 protected:
  static ReportParts withControls(const std::vector<Json>& controls) {
    ReportParts parts = reportOfSections({0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12});
    parts.controls = controls;
    return parts;
  }
  Lines print(int sectionNumber, int count) {
    session.files.Open(session.state.mstrOutputDir + "items", FileMode::kOutput, kOutputFile);
    PrintReportSectionControls(session.main, sectionNumber, count);
    session.files.Close(kOutputFile);
    return linesOf(fileContent(session.out() / "items"));
  }
  // The items of a section that holds all these controls.
  Lines itemsOf(int sectionNumber, const std::vector<Json>& controls) {
    session.openReport(withControls(controls));
    return print(sectionNumber, static_cast<int>(controls.size()));
  }
  Lines itemOf(int sectionNumber, const Json& entry) { return itemsOf(sectionNumber, {entry}); }

  ReportSession session;
  ConversionState& state = session.state;
};

// The number behind "ItemType0 = ".
int itemType(const Lines& lines) {
  const Lines found = starting(lines, "      ItemType0 = ");
  return found.size() == 1 ? std::stoi(found[0].substr(18)) : -1;
}

std::string_view const kFontLines = R"(
         BeginProperty Font
            Name          = "Arial"
            Size          = 8
            Charset       = 0
            Weight        = 400
            Underline     = 0   'False
            Italic        = 0   'False
            Strikethrough = 0   'False
         EndProperty
)";

TEST_F(ReportItems, ALabel) {
  EXPECT_EQ(
      itemOf(3, item("lbl Title", kLabelControl, 3, {{"Caption", "Title"}})), linesOf(asFile(R"(
      ItemType0 = 3
      BeginProperty Item0
         _Version        = 393216
         Name            = "lbl_Title"
         Object.Left     = 60
         Object.Top      = 30
         Object.Width    = 2000
         Object.Height   = 240
)") + asFile(kFontLines) + asFile(R"(
         Object.Caption  = "Title"
         Alignment       = 1
      EndProperty   ' Item0
)")));
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(ReportItems, ATextBox) {
  state.strRecordSource = "Orders";
  EXPECT_EQ(itemOf(0, textBox("Freight", 0, "Freight")), linesOf(asFile(R"(
      ItemType0 = 4
      BeginProperty Item0
         _Version        = 393216
         Name            = "Freight"
         Object.Left     = 60
         Object.Top      = 30
         Object.Width    = 2000
         Object.Height   = 240
)") + asFile(kFontLines) + asFile(R"(
         DataField       = "Freight"
         BeginProperty DataFormat
            Type             = 0
            Format           = ""
            HaveTrueFalseNull= 0
            FirstDayOfWeek   = 0
            FirstWeekOfYear  = 0
            LCID             = 1024
         EndProperty   ' DataFormat
         DataMember  = "Orders"
      EndProperty   ' Item0
)")));
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(ReportItems, AFunction) {
  state.strRecordSource = "Orders";
  EXPECT_EQ(itemOf(2, textBox("Total", 2, "=Sum([Freight])*2", {{"Format", "Currency"}})),
            linesOf(asFile(R"(
      ItemType0 = 13
      BeginProperty Item0
         _Version        = 393216
         Name            = "Total"
         Object.Left     = 60
         Object.Top      = 30
         Object.Width    = 2000
         Object.Height   = 240
)") + asFile(kFontLines) +
                    asFile(R"(
         DataField       = "Freight"
         BeginProperty DataFormat
            Type             = 0
            Format           = "Currency"
            HaveTrueFalseNull= 0
            FirstDayOfWeek   = 0
            FirstWeekOfYear  = 0
            LCID             = 1033
         EndProperty   ' DataFormat
         FunctionType   = 0
         DataMember  = "Orders"
      EndProperty   ' Item0
)")));
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(ReportItems, ALineHasNoObjectHeightLineAndNoFontBlock) {
  EXPECT_EQ(itemOf(0, item("lin", kLineControl, 0)), linesOf(asFile(R"(
      ItemType0 = 5
      BeginProperty Item0
         _Version        = 393216
         Name            = "lin"
         Object.Left     = 60
         Object.Top      = 30
         Object.Width    = 2000
      EndProperty   ' Item0
)")));
}

TEST_F(ReportItems, ShapesAndImagesHaveSizeAndPositionOnly) {
  const struct {
    int control;
    std::string_view type;
  } kCases[] = {{kRectangleControl, "6"},
                {kImageControl, "7"},
                {104, "6"},
                {106, "6"},
                {111, "6"},
                {112, "6"},
                {114, "6"},
                {122, "6"},
                {118, "6"},
                {999, "6"}};
  for (const auto& row : kCases) {
    SCOPED_TRACE(row.control);
    EXPECT_EQ(itemOf(1, item("box", row.control, 1, {{"Caption", "x"}, {"ControlSource", "y"}})),
              linesOf("      ItemType0 = " + std::string(row.type) + asFile(R"(

      BeginProperty Item0
         _Version        = 393216
         Name            = "box"
         Object.Left     = 60
         Object.Top      = 30
         Object.Width    = 2000
         Object.Height   = 240
      EndProperty   ' Item0
)")));
  }
}

TEST_F(ReportItems, ATextBoxBoundToAFieldInAPageHeaderBecomesAShape) {
  EXPECT_EQ(itemOf(3, textBox("Freight", 3, "Freight")), linesOf(asFile(R"(
      ItemType0 = 6
      BeginProperty Item0
         _Version        = 393216
         Name            = "Freight"
         Object.Left     = 60
         Object.Top      = 30
         Object.Width    = 2000
         Object.Height   = 240
      EndProperty   ' Item0
)")));
}

TEST_F(ReportItems, ATextBoxOfTheDateInThePageHeaderBecomesALabel) {
  EXPECT_EQ(itemOf(3, textBox("Printed", 3, "=Date()", {{"TextAlign", 3}})), linesOf(asFile(R"(
      ItemType0 = 3
      BeginProperty Item0
         _Version        = 393216
         Name            = "Printed"
         Object.Left     = 60
         Object.Top      = 30
         Object.Width    = 2000
         Object.Height   = 240
)") + asFile(kFontLines) + asFile(R"(
         Object.Caption  = "%D"
         Alignment       = 3
      EndProperty   ' Item0
)")));
}

TEST_F(ReportItems, WordsOfASourceThatIsNotAllowed) {
  const struct {
    std::string_view source, caption;  // without a caption it is a shape
  } kCases[] = {{"=Date()", "%D"},
                {"=Now()", "%t"},
                {"=\"Page \" & [Page] & \" of \" & [Pages]", "%p"},
                {"=[Page]", "%p"},
                {"=Format(Now(),\"d\") & Date()", "%D"},
                {"=[Page] & Now()", "%t"},
                {"=Date", ""},
                {"=date()", ""},
                {"=now()", ""},
                {"=[page]", ""},
                {"=Sum([Freight])", ""},
                {"PageNo", "%p"},
                {"KnownSince", ""},
                {"Nowhere", "%t"},
                {"Freight", ""},
                {"", ""}};
  for (const int place : {1, 3, 4}) {
    for (const auto& row : kCases) {
      SCOPED_TRACE(std::to_string(place) + " " + std::string(row.source));
      const Lines lines = itemOf(place, textBox("x", place, row.source));
      EXPECT_EQ(itemType(lines), row.caption.empty() ? 6 : 3);
      EXPECT_EQ(starting(lines, "         Object.Caption"),
                row.caption.empty()
                    ? Lines{}
                    : Lines{"         Object.Caption  = \"" + std::string(row.caption) + "\""});
      EXPECT_EQ(starting(lines, "         Alignment").size(), row.caption.empty() ? 0u : 1u);
      EXPECT_EQ(starting(lines, "         BeginProperty Font").size(),
                row.caption.empty() ? 0u : 1u);
      EXPECT_EQ(starting(lines, "         Object.Height").size(), 1u);
      EXPECT_TRUE(starting(lines, "         DataField").empty());
      EXPECT_TRUE(session.user.boxes.empty());
    }
  }
}

TEST_F(ReportItems, AFunctionInTheDetailOrTheFirstGroupHeaderIsNotAllowed) {
  for (const int place : {0, 5}) {
    EXPECT_EQ(itemType(itemOf(place, textBox("x", place, "=Sum([Freight])"))), 6);
    EXPECT_EQ(itemType(itemOf(place, textBox("x", place, "=Now()"))), 3);
  }
}

// Which items each section takes, by its number.
TEST_F(ReportItems, EveryItemInEverySection) {
  struct Row {
    int control;
    std::string_view source;
    int type;
    std::string_view sections;  // those that take it: x; the others make a shape of it
  };
  constexpr Row kRows[] = {{kLabelControl, "", 3, "xxxxxxxxxxxxx"},
                           {kTextBoxControl, "Freight", 4, "x....xxxxxxxx"},
                           {kTextBoxControl, "=Sum([Freight])", 13, "..x...xxxxxxx"},
                           {kLineControl, "", 5, "xxxxxxxxxxxxx"},
                           {kRectangleControl, "", 6, "xxxxxxxxxxxxx"},
                           {kImageControl, "", 7, "xxxxxxxxxxxxx"},
                           {111, "Freight", 6, "xxxxxxxxxxxxx"},
                           {111, "=Date()", 6, "xxxxxxxxxxxxx"},
                           {106, "Freight", 6, "xxxxxxxxxxxxx"}};
  for (int place = 0; place < 13; ++place) {
    for (const Row& row : kRows) {
      SCOPED_TRACE(std::to_string(place) + " " + std::to_string(row.control) + " " +
                   std::string(row.source));
      const Lines lines =
          itemOf(place, item("x", row.control, place,
                             {{"ControlSource", row.source}, {"Format", ""}, {"Caption", "c"}}));
      const bool taken = row.sections[static_cast<std::size_t>(place)] == 'x';
      const int type = taken ? row.type : 6;
      const bool isBound = type == 4 || type == 13;
      EXPECT_EQ(itemType(lines), type);
      EXPECT_EQ(starting(lines, "         Object.Height").size(), type == 5 ? 0u : 1u);
      EXPECT_EQ(starting(lines, "         BeginProperty Font").size(),
                type == 3 || isBound ? 1u : 0u);
      EXPECT_EQ(starting(lines, "         Object.Caption").size(), type == 3 ? 1u : 0u);
      EXPECT_EQ(starting(lines, "         Alignment").size(), type == 3 ? 1u : 0u);
      EXPECT_EQ(starting(lines, "         DataField").size(), isBound ? 1u : 0u);
      EXPECT_EQ(starting(lines, "         BeginProperty DataFormat").size(), isBound ? 1u : 0u);
      EXPECT_EQ(starting(lines, "         FunctionType").size(), type == 13 ? 1u : 0u);
      EXPECT_EQ(starting(lines, "         DataMember").size(), place == 5 && isBound ? 1u : 0u);
      EXPECT_EQ(lines.back(), "      EndProperty   ' Item0");
      EXPECT_TRUE(session.user.boxes.empty());
    }
  }
}

TEST_F(ReportItems, UnderlineAndItalicHaveTwoBlanks) {
  const Lines lines =
      itemOf(0, item("l", kLabelControl, 0,
                     {{"Caption", ""}, {"FontUnderline", true}, {"FontItalic", true}}));
  EXPECT_TRUE(contains(lines, "            Underline     = -1  'True"));
  EXPECT_TRUE(contains(lines, "            Italic        = -1  'True"));
}

TEST_F(ReportItems, ACaptionIsCleaned) {
  const struct {
    std::string_view caption, printed;
  } kCases[] = {{"The \"best\"", "The 'best'"},
                {"Two\r\nlines", "Two  lines"},
                {"Tab\tand\nfeed", "Tab and feed"},
                {"\u2018a\u2019 \u201cb\u201d",
                 "\x91"
                 "a\x92  b "},
                {"  kept blanks ", "  kept blanks "},
                {"", ""}};
  for (const auto& row : kCases) {
    EXPECT_TRUE(contains(itemOf(0, item("l", kLabelControl, 0, {{"Caption", row.caption}})),
                         "         Object.Caption  = \"" + std::string(row.printed) + "\""));
  }
}

TEST_F(ReportItems, ALabelWithoutACaptionLacksTheLine) {
  const Lines lines = itemOf(0, item("l", kLabelControl, 0));
  EXPECT_TRUE(starting(lines, "         Object.Caption").empty());
  EXPECT_EQ(starting(lines, "         Alignment").size(), 1u);
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(ReportItems, FormatsAndTheirLocale) {
  const struct {
    Json format;
    std::string_view printed, locale;
  } kCases[] = {{"", "", "1024"},
                {nullptr, "", "1024"},
                {"Currency", "Currency", "1033"},
                {"=Fmt()", "", "1033"},
                {" ", " ", "1033"}};
  for (const auto& row : kCases) {
    SCOPED_TRACE(row.format.dump());
    const Lines lines = itemOf(0, textBox("x", 0, "x", {{"Format", row.format}}));
    EXPECT_TRUE(
        contains(lines, "            Format           = \"" + std::string(row.printed) + "\""));
    EXPECT_TRUE(contains(lines, "            LCID             = " + std::string(row.locale)));
  }
}

// FunctionType of the sources of one section, and the boxes.
constexpr std::string_view kMismatch = "PrintReportSectionControls() - Error #13\r\nType mismatch";

TEST_F(ReportItems, EveryWordOfAFunction) {
  const struct {
    std::string_view source;
    int number;  // -1: a box, and the number of the item before
  } kCases[] = {{"=Sum([F])", 0},       {"=Ave([F])", 1},     {"=Average([F])", 1},
                {"=Min([F])", 2},       {"=Max([F])", -1},    {"=Count([F])", 4},
                {"=StDev([F])", 6},     {"=StDevP([F])", 6},  {"=Avg([F])", 7},
                {"=Var([F])", 7},       {"=[F]", 7},          {"=sum([F])", 7},
                {"=COUNT([F])", 7},     {"=Sum([Count])", 0}, {"=Count([Sum])", 0},
                {"=Min([Average])", 1}, {"=Max([Min])", 2},   {"=Count([Max])", -1},
                {"=StDev([Count])", 4}, {"=DSum([F])", 0},    {"=Minute([F])", 2}};
  for (const auto& row : kCases) {
    SCOPED_TRACE(std::string(row.source));
    const Lines lines = itemOf(2, textBox("x", 2, row.source));
    const int number = row.number < 0 ? 0 : row.number;
    EXPECT_EQ(starting(lines, "         FunctionType"),
              Lines{"         FunctionType   = " + std::to_string(number)});
    EXPECT_EQ(session.boxTexts(), row.number < 0 ? Lines{std::string(kMismatch)} : Lines{});
  }
}

TEST_F(ReportItems, MaxPrintsTheNumberOfTheFunctionBeforeItInTheSection) {
  const Lines lines =
      itemsOf(2, {textBox("a", 2, "=Max([A])"), textBox("b", 2, "=Count([A])"),
                  item("l", kLabelControl, 2, {{"Caption", ""}}), textBox("c", 2, "=Max([A])"),
                  textBox("d", 2, "=[A]"), textBox("e", 2, "=Max([A])")});
  EXPECT_EQ(starting(lines, "         FunctionType"),
            (Lines{"         FunctionType   = 0", "         FunctionType   = 4",
                   "         FunctionType   = 4", "         FunctionType   = 7",
                   "         FunctionType   = 7"}));
  EXPECT_EQ(session.boxTexts(), Lines(3, std::string(kMismatch)));
}

TEST_F(ReportItems, TheNumberOfAFunctionDoesNotReachTheNextSection) {
  session.openReport(withControls({textBox("a", 6, "=Count([A])"), textBox("b", 2, "=Max([A])")}));
  print(6, 1);
  EXPECT_TRUE(contains(print(2, 1), "         FunctionType   = 0"));
}

constexpr std::string_view kInvalidCall =
    "PrintReportSectionControls() - Error #5\r\nInvalid procedure call or argument";

TEST_F(ReportItems, ACountWithoutBracketsShowsAMessageAndHasTheFieldOfTheItemBefore) {
  const Lines lines = itemsOf(6, {textBox("n", 6, "=Count(*)"), textBox("s", 6, "=Sum([Freight])"),
                                  textBox("m", 6, "=Count(*)"), textBox("Ship Name", 6, "Other"),
                                  textBox("o", 6, "=Count(*)")});
  EXPECT_EQ(starting(lines, "         DataField"),
            (Lines{"         DataField       = \"\"", "         DataField       = \"Freight\"",
                   "         DataField       = \"Freight\"", "         DataField       = \"Other\"",
                   "         DataField       = \"Ship_Name\""}));
  EXPECT_EQ(session.boxTexts(), Lines(3, std::string(kInvalidCall)));
  EXPECT_EQ(session.user.boxes[0].style, 16);
}

TEST_F(ReportItems, AFieldIsWhatStandsBetweenTheFirstBrackets) {
  const struct {
    std::string_view source, field;
  } kCases[] = {{"=Sum([Freight])", "Freight"},
                {"=[A]+[B]", "A"},
                {"=Sum([Unit Price]*2)", "Unit Price"},
                {"=[]", ""},
                {"=[[A]]", "[A"}};
  for (const auto& row : kCases) {
    EXPECT_TRUE(contains(itemOf(2, textBox("x", 2, row.source)),
                         "         DataField       = \"" + std::string(row.field) + "\""));
    EXPECT_TRUE(session.user.boxes.empty());
  }
}

TEST_F(ReportItems, BracketsThatDoNotCloseCannotBeCut) {
  for (const std::string_view source : {"=[A", "=]A["}) {
    SCOPED_TRACE(std::string(source));
    EXPECT_TRUE(contains(itemOf(2, textBox("x", 2, source)), "         DataField       = \"\""));
    EXPECT_EQ(session.onlyBox().text, kInvalidCall);
  }
}

TEST_F(ReportItems, TheSourceOfAnItemIsPrintedAsItStands) {
  EXPECT_TRUE(contains(itemOf(0, textBox("x", 0, "Unit \"Price\" ")),
                       "         DataField       = \"Unit \"Price\" \""));
  EXPECT_TRUE(contains(itemOf(0, textBox("x", 0, nullptr)), "         DataField       = \"\""));
}

TEST_F(ReportItems, ATextBoxWithoutASourceIsATextBox) {
  Json entry = textBox("x", 0, "");
  entry["properties"].erase("ControlSource");
  EXPECT_EQ(itemType(itemOf(0, entry)), 4);
  entry["properties"]["Section"] = 3;
  EXPECT_EQ(itemType(itemOf(3, entry)), 6);
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(ReportItems, ItemsAreNumberedInTheOrderOfTheSection) {
  const Lines lines = itemsOf(0, {item("a", kLineControl, 0), item("b", kRectangleControl, 0)});
  EXPECT_EQ(starting(lines, "      ItemType"),
            (Lines{"      ItemType0 = 5", "      ItemType1 = 6"}));
  EXPECT_EQ(starting(lines, "      EndProperty   ' Item"),
            (Lines{"      EndProperty   ' Item0", "      EndProperty   ' Item1"}));
}

TEST_F(ReportItems, PastTheEndOfTheSectionTheReportsOwnControlsAreTaken) {
  session.openReport(withControls(
      {item("a", kLineControl, 3), item("b", kRectangleControl, 3), item("c", kImageControl, 0)}));
  const Lines lines = print(0, 2);
  EXPECT_EQ(starting(lines, "         Name            = "),
            (Lines{"         Name            = \"c\"", "         Name            = \"b\""}));
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(ReportItems, NoControlsPrintNothing) {
  session.openReport(withControls({item("a", kLineControl, 0)}));
  EXPECT_TRUE(print(0, 0).empty());
}

// What the lines of a bound text box in the Detail are read from.
struct ItemLine {
  std::string_view property, line;
};
constexpr ItemLine kItemLines[] = {{"Top", "         Object.Top "},
                                   {"Width", "         Object.Width "},
                                   {"Height", "         Object.Height "},
                                   {"FontName", "            Name "},
                                   {"FontSize", "            Size "},
                                   {"FontWeight", "            Weight "},
                                   {"FontUnderline", "            Underline "},
                                   {"FontItalic", "            Italic "},
                                   {"TextAlign", "         Alignment "},
                                   {"Caption", "         Object.Caption "}};
constexpr std::int32_t kSilent[] = {9,    91,   92,   438,  2186, 2452, 2455,
                                    2462, 2464, 2465, 2467, 3061, 3078, 3265};
constexpr std::int32_t kTold[] = {5, 13, 94, 2683, 3112};

class ReportItemFailures : public ReportItems {
 protected:
  Json label() const { return item("lbl", kLabelControl, 0, {{"Caption", "A"}}); }
  static Lines without(const Lines& lines, std::string_view start) {
    Lines rest;
    for (const std::string& line : lines)
      if (!line.starts_with(start)) rest.push_back(line);
    return rest;
  }
};

TEST_F(ReportItemFailures, AReadThatFailsDropsJustItsLine) {
  const Lines whole = itemOf(0, label());
  for (const ItemLine& row : kItemLines) {
    for (const std::int32_t number : kSilent) {
      SCOPED_TRACE(std::string(row.property) + " " + std::to_string(number));
      Json entry = label();
      entry["properties"][std::string(row.property)] = errorValue(number);
      EXPECT_EQ(itemOf(0, entry), without(whole, row.line));
      EXPECT_TRUE(session.user.boxes.empty());
      EXPECT_FALSE(state.mblnBadAttachedTables);
    }
  }
}

TEST_F(ReportItemFailures, AnUnusualNumberHasItsBox) {
  const Lines whole = itemOf(0, label());
  for (const ItemLine& row : kItemLines) {
    for (const std::int32_t number : kTold) {
      SCOPED_TRACE(std::string(row.property) + " " + std::to_string(number));
      Json entry = label();
      entry["properties"][std::string(row.property)] = errorValue(number);
      EXPECT_EQ(itemOf(0, entry), without(whole, row.line));
      EXPECT_EQ(session.onlyBox(), (Box{16,
                                        "PrintReportSectionControls() - Error #" +
                                            std::to_string(number) + "\r\nAs recorded.",
                                        "Access to Visual Basic Tarrowin"}));
    }
  }
}

TEST_F(ReportItemFailures, AnOverflowMakesTheReportAsHighAsCanBe) {
  Json entry = label();
  entry["properties"]["Top"] = errorValue(6);
  const Lines lines = itemOf(0, entry);
  EXPECT_TRUE(starting(lines, "         Object.Top").empty());
  EXPECT_EQ(state.lngReportHeight, 32767);
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(ReportItemFailures, AnInvalidPathIsRemembered) {
  Json entry = label();
  entry["properties"]["Width"] = errorValue(3044);
  const Lines lines = itemOf(0, entry);
  EXPECT_TRUE(starting(lines, "         Object.Width").empty());
  EXPECT_TRUE(state.mblnBadAttachedTables);
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(ReportItemFailures, ALeftEdgeThatCannotBeReadIs0) {
  Json entry = label();
  entry["properties"]["Left"] = errorValue(2455);
  EXPECT_TRUE(contains(itemOf(0, entry), "         Object.Left     = 0"));
  EXPECT_TRUE(session.user.boxes.empty());
  entry["properties"]["Left"] = errorValue(2683);
  EXPECT_TRUE(contains(itemOf(0, entry), "         Object.Left     = 0"));
  EXPECT_TRUE(session.onlyBox().text.starts_with("GetControlLeft("));
}

}  // namespace
}  // namespace tarrowin::test
