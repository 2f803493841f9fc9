// The Data Report file: header, heights, caption, margins, record source, and what a failed read
// leaves of it.
#include "reports/data_report.h"

#include "project/project_text.h"
#include "reports/report_session.h"

namespace tarrowin::test {
namespace {

// A Detail and a report footer of these heights; the sum counts 120 more.
ReportParts ofHeights(std::int32_t detail, std::int32_t footer = 0) {
  ReportParts parts;
  parts.sections = {reportSection(0, "Detail", {{"Height", detail}}),
                    reportSection(2, "Foot", {{"Height", footer}})};
  return parts;
}

TEST(DataReport, OfOnlyAVisibleDetail) {
  ReportSession session;
  session.openReport({});
  SetupFormNames(session.main, "Sales");
  GetAccDataReportProps(session.main);
  session.files.Close(kOutputFile);
  EXPECT_EQ(fileContent(session.out() / "Sales.dsr"), asFile(R"(
VERSION 5.00
Begin {78E93846-85FD-11D0-8487-00A0C90DC8A9} Sales
   BorderStyle   = 2
   Caption         = "Sales"
   ClientHeight    = 1120
   ClientLeft      = 60
   ClientTop       = 345
   ClientWidth     = 9000
   StartUpPosition = 3   'Windows Default
   _Version        = 393216
   ReportWidth     = 9000
   BeginProperty Font
      Name          = "Arial"
      Size          = 8
      Weight        = 400
      Underline     = 0   'False
      Italic        = 0   'False
      Strikethrough = 0   'False
   EndProperty
   GridX         = 24
   GridY         = 20
   LeftMargin    = 1620
   RightMargin   = 1620
   TopMargin     = 1620
   BottomMargin  = 1620
   Title         = "Sales"
   DataMember    = ""
   NumSections   = 1
   SectionCode0  = 4
   BeginProperty Section0
      _Version        = 393216
      Name            = "Detail"
      Object.Height   = 1000
      KeepTogether    = 0   'False
      ForcePageBreak  = 0   'False
      NumControls     = 0
   EndProperty   ' Section0
End  ' Data Report Sales
)"));
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST(DataReport, TheNameIsCleaned) {
  ReportSession session;
  ReportParts parts;
  parts.name = "2nd Quarter";
  const Lines lines = session.dataReportOf(parts);
  EXPECT_EQ(lines[1], "Begin {78E93846-85FD-11D0-8487-00A0C90DC8A9} xnd_Quarter");
  EXPECT_EQ(lines.back(), "End  ' Data Report xnd_Quarter");
}

TEST(DataReport, UnderlineHasThreeBlanksAndItalicTwo) {
  ReportSession session;
  ReportParts parts;
  parts.properties["FontUnderline"] = true;
  parts.properties["FontItalic"] = -1;
  const Lines lines = session.dataReportOf(parts);
  EXPECT_TRUE(contains(lines, "      Underline     = -1   'True"));
  EXPECT_TRUE(contains(lines, "      Italic        = -1  'True"));
}

TEST(DataReport, AWidthOfExactly15360AndBeyond) {
  const struct {
    std::int32_t width;
    std::string_view client, report;
  } kCases[] = {{11519, "11519", "11519"}, {11520, "11520", "11520"},
                {11521, "11521", "11520"}, {15359, "15359", "11520"},
                {15360, "15360", "11520"}, {15361, "15360", "11520"},
                {31680, "15360", "11520"}, {0, "0", "0"}};
  for (const auto& row : kCases) {
    SCOPED_TRACE(row.width);
    ReportSession session;
    ReportParts parts;
    parts.properties["Width"] = row.width;
    const Lines lines = session.dataReportOf(parts);
    EXPECT_TRUE(contains(lines, "   ClientWidth     = " + std::string(row.client)));
    EXPECT_TRUE(contains(lines, "   ReportWidth     = " + std::string(row.report)));
  }
}

TEST(DataReport, MarginsFillThePage) {
  const struct {
    std::int32_t width, margin;
  } kCases[] = {{20000, 360}, {12241, 360}, {12240, 360}, {12239, 0},   {12238, 0},
                {12237, 1},   {12236, 2},   {12235, 2},   {9001, 1619}, {0, 6120}};
  for (const auto& row : kCases) {
    SCOPED_TRACE(row.width);
    ReportSession session;
    ReportParts parts;
    parts.properties["Width"] = row.width;
    session.openReport(parts);
    EXPECT_EQ(GetReportMargin(session.state.mrptCurr), row.margin);
    const std::string margin = std::to_string(row.margin);
    EXPECT_EQ(
        block(session.dataReport(), "   LeftMargin    = " + margin, "   BottomMargin  = " + margin),
        (Lines{"   LeftMargin    = " + margin, "   RightMargin   = " + margin,
               "   TopMargin     = " + margin, "   BottomMargin  = " + margin}));
  }
}

TEST(DataReport, ATotalHeightOfExactly11520IsKept11521Becomes11520) {
  const struct {
    std::int32_t detail, footer;
    std::string_view height;
  } kCases[] = {{11399, 0, "11519"}, {11400, 0, "11520"},    {11401, 0, "11520"},
                {0, 0, "120"},       {5000, 6400, "11520"},  {32647, 0, "11520"},
                {32648, 0, "11520"}, {30000, 5000, "11520"}, {32767, 32767, "11520"}};
  for (const auto& row : kCases) {
    SCOPED_TRACE(std::to_string(row.detail) + " and " + std::to_string(row.footer));
    ReportSession session;
    const Lines lines = session.dataReportOf(ofHeights(row.detail, row.footer));
    EXPECT_TRUE(contains(lines, "   ClientHeight    = " + std::string(row.height)));
    EXPECT_TRUE(session.user.boxes.empty());
  }
}

TEST(DataReport, EverySectionCountsInTheHeightAlsoAHiddenOne) {
  ReportSession session;
  ReportParts parts;
  parts.sections.clear();
  for (int number = 0; number < 13; ++number) {
    parts.sections.push_back(
        reportSection(number, "S", {{"Height", 1 << (number % 10)}, {"Visible", number % 2 == 0}}));
  }
  // 1 + 2 + ... + 512, then 1 + 2 + 4 once more, and 120.
  EXPECT_TRUE(contains(session.dataReportOf(parts), "   ClientHeight    = 1150"));
}

TEST(DataReport, AHeightThatCannotBeReadCountsAsNone) {
  for (const Json& height : {errorValue(2455), errorValue(6), Json(40000), Json(nullptr)}) {
    SCOPED_TRACE(height.dump());
    ReportSession session;
    ReportParts parts = ofHeights(500);
    parts.sections[1]["properties"]["Height"] = height;
    EXPECT_TRUE(contains(session.dataReportOf(parts), "   ClientHeight    = 620"));
  }
}

TEST(DataReport, HeightsOfTheReportBeforeAreForgotten) {
  ReportSession session;
  ReportParts tall = ofHeights(3000, 2000), flat;
  tall.name = "Tall";
  flat.name = "Flat";
  session.openReports({tall.entry(), flat.entry()});
  session.take("Tall");
  session.dataReport();
  session.take("Flat");
  EXPECT_TRUE(contains(session.dataReport(), "   ClientHeight    = 1120"));
}

TEST(DataReport, TheCaptionIsCleaned) {
  const struct {
    std::string_view caption;  // UTF-8, as recorded
    std::string_view printed;  // ANSI
  } kCases[] = {
      {"  Sales of the year  ", "Sales of the year"},
      {"", ""},
      {"   ", "   "},
      {"\t", " "},
      {"A\r\nB", "A  B"},
      {"A\x01\x1f"
       "B~\x7f",
       "A  B~ "},
      {"The \"best\" ones", "The 'best' ones"},
      // Codes 145 and 146 stay, 128, 147, 148 and 159 go, from 160 on all stay.
      {"\u2018a\u2019 \u201cb\u201d \u20ac\u0178 \u00a0\u00ff",
       "\x91"
       "a\x92  b     \xa0\xff"},
      // 149 and 151 go too.
      {"x\u2022\u2014y", "x  y"},
  };
  for (const auto& row : kCases) {
    SCOPED_TRACE(std::string(row.printed));
    ReportSession session;
    ReportParts parts;
    parts.properties["Caption"] = row.caption;
    const Lines lines = session.dataReportOf(parts);
    const std::string quoted = '"' + std::string(row.printed) + '"';
    EXPECT_TRUE(contains(lines, "   Caption         = " + quoted));
    EXPECT_TRUE(contains(lines, "   Title         = " + quoted));
    EXPECT_EQ(session.state.strRptCaption, row.printed);
  }
}

TEST(DataReport, ACaptionOfNullIsEmpty) {
  ReportSession session;
  ReportParts parts;
  parts.properties["Caption"] = nullptr;
  EXPECT_TRUE(contains(session.dataReportOf(parts), "   Caption         = \"\""));
}

TEST(DataReport, TheRecordSourceIsTrimmedAndSqlTextIsCleaned) {
  const struct {
    std::string_view source, kept;
  } kCases[] = {
      {"  Orders ", "Orders"},
      {"Odd \"name\"\tof\r\nall", "Odd \"name\"\tof\r\nall"},
      {" SELECT \"A\"\r\nFROM\tT\n;", "SELECT 'A'  FROM T ;"},
      {"select * FROM\rT", "select * FROM T"},
      {"SeLeCtion \"x\"", "SeLeCtion 'x'"},
      {"TRANSFORM \"x\"", "TRANSFORM 'x'"},
      {"transf\"", "transf'"},
      {"TRANS \"x\"", "TRANS \"x\""},
      {"SELEC\"", "SELEC\""},
      {"", ""},
  };
  for (const auto& row : kCases) {
    SCOPED_TRACE(std::string(row.source));
    ReportSession session;
    ReportParts parts;
    parts.properties["RecordSource"] = row.source;
    session.dataReportOf(parts);
    EXPECT_EQ(session.state.strRecordSource, row.kept);
  }
}

TEST(DataReport, TheRecordSourceOutlivesTheReport) {
  ReportSession session;
  ReportParts bound, unreadable, unbound;
  bound.name = "Bound";
  bound.properties["RecordSource"] = "Orders";
  unreadable.name = "Unreadable";
  unreadable.properties["RecordSource"] = errorValue(2455);
  unbound.name = "Unbound";
  session.openReports({bound.entry(), unreadable.entry(), unbound.entry()});
  session.take("Bound");
  session.dataReport();
  session.take("Unreadable");
  session.dataReport();
  EXPECT_EQ(session.state.strRecordSource, "Orders");
  session.take("Unbound");
  session.dataReport();
  EXPECT_EQ(session.state.strRecordSource, "");
}

TEST(DataReport, TheDataMemberIsNotResetBetweenReports) {
  ReportSession session;
  ReportParts plain, grouped = reportOfSections({0, 3, 4, 5, 6}, 1);
  plain.name = "Plain";
  grouped.name = "Grouped";
  session.openReports({plain.entry(), grouped.entry()});
  const auto memberOf = [&](const std::string& name) {
    session.take(name);
    session.dataEnvironment();
    return starting(session.dataReport(), "   DataMember");
  };
  EXPECT_EQ(memberOf("Plain"), Lines{"   DataMember    = \"\""});
  EXPECT_EQ(memberOf("Grouped"), Lines{"   DataMember    = \"A_Grouping\""});
  EXPECT_EQ(memberOf("Plain"), Lines{"   DataMember    = \"A_Grouping\""});
}

TEST(DataReport, TheDataMemberOutlivesTheDatabase) {
  ReportSession session;
  session.openReport(reportOfSections({0, 5, 6}, 1));
  session.dataEnvironment();
  session.openReport({});
  session.dataEnvironment();
  EXPECT_TRUE(contains(session.dataReport(), "   DataMember    = \"A_Grouping\""));
}

TEST(DataReport, AtItsEndTheNamesOfCommandsAndTablesAreErased) {
  ReportSession session;
  session.database["recordsets"] = Json::parse(R"([{"source": "SELECT OrderID FROM Orders",
      "fields": [{"name": "OrderID", "type": 4, "size": 4, "sourceTable": "Orders"}]}])");
  ReportParts parts;
  parts.properties["RecordSource"] = "SELECT OrderID FROM Orders";
  session.openReport(parts);
  session.dataEnvironment();
  EXPECT_EQ(session.state.strCommandNames[0], "Command1");
  EXPECT_EQ(session.state.gstrSourceTables[0], "Orders");
  session.dataReport();
  for (const std::string& name : session.state.strCommandNames) EXPECT_EQ(name, "");
  for (const std::string& name : session.state.gstrSourceTables) EXPECT_EQ(name, "");
}

constexpr std::int32_t kSilent[] = {9, 438, 2186, 2452, 2455, 2462, 2464, 2465, 2467};
// Among them those that pass only where recordsets are opened.
constexpr std::int32_t kTold[] = {3044, 91, 92, 94, 13, 3061, 3078, 3265, 2683, -2147467259};

Lines without(Lines lines, std::string_view start) {
  std::erase_if(lines, [&](const std::string& line) { return line.starts_with(start); });
  return lines;
}

// What the header prints of a property, by the start of its line.
struct HeaderLine {
  std::string_view property, line;
};
constexpr HeaderLine kHeaderLines[] = {{"BorderStyle", "   BorderStyle   = "},
                                       {"FontName", "      Name          = "},
                                       {"FontSize", "      Size          = "},
                                       {"FontWeight", "      Weight        = "},
                                       {"FontUnderline", "      Underline     = "},
                                       {"FontItalic", "      Italic        = "},
                                       {"GridX", "   GridX         = "},
                                       {"GridY", "   GridY         = "}};

TEST(DataReportFailures, AReadThatFailsDropsJustItsLine) {
  ReportSession untouched;
  const Lines whole = untouched.dataReportOf({});
  for (const HeaderLine& row : kHeaderLines) {
    for (const std::int32_t number : kSilent) {
      SCOPED_TRACE(std::string(row.property) + " " + std::to_string(number));
      ReportSession session;
      ReportParts parts;
      parts.properties[std::string(row.property)] = errorValue(number);
      EXPECT_EQ(session.dataReportOf(parts), without(whole, row.line));
      EXPECT_TRUE(session.user.boxes.empty());
    }
  }
}

TEST(DataReportFailures, AnUnusualNumberOfTheHeaderHasItsBox) {
  ReportSession untouched;
  const Lines whole = untouched.dataReportOf({});
  for (const HeaderLine& row : kHeaderLines) {
    for (const std::int32_t number : kTold) {
      SCOPED_TRACE(std::string(row.property) + " " + std::to_string(number));
      ReportSession session;
      ReportParts parts;
      parts.properties[std::string(row.property)] = errorValue(number);
      EXPECT_EQ(session.dataReportOf(parts), without(whole, row.line));
      EXPECT_EQ(session.onlyBox(),
                (Box{16, "SetupVBReport() - Error #" + std::to_string(number) + "\r\nAs recorded.",
                     "Access to Visual Basic Tarrowin"}));
      EXPECT_FALSE(session.state.mblnBadAttachedTables);
    }
  }
}

TEST(DataReportFailures, AnOverflowOfTheHeaderMakesTheReportAsHighAsCanBe) {
  ReportSession session;
  ReportParts parts;
  parts.properties["BorderStyle"] = errorValue(6);
  const Lines lines = session.dataReportOf(parts);
  EXPECT_TRUE(starting(lines, "   BorderStyle").empty());
  EXPECT_TRUE(contains(lines, "   ClientHeight    = 32767"));
  EXPECT_EQ(session.state.lngReportHeight, 32767);
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST(DataReportFailures, AMissingWidthDropsAllThatIsMadeOfIt) {
  ReportSession session;
  ReportParts parts;
  parts.properties.erase("Width");
  const Lines lines = session.dataReportOf(parts);
  for (const std::string_view start : {"   ClientWidth", "   ReportWidth", "   LeftMargin",
                                       "   RightMargin", "   TopMargin", "   BottomMargin"}) {
    EXPECT_TRUE(starting(lines, start).empty()) << start;
  }
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST(DataReportFailures, ARecordSourceThatCannotBeReadSilently) {
  for (const std::int32_t number : kSilent) {
    SCOPED_TRACE(number);
    ReportSession session;
    ReportParts parts;
    parts.properties["RecordSource"] = errorValue(number);
    const Lines lines = session.dataReportOf(parts);
    EXPECT_EQ(lines.back(), "End  ' Data Report Sales");
    EXPECT_TRUE(session.user.boxes.empty());
  }
}

TEST(DataReportFailures, ARecordSourceOfAnUnusualNumberHasItsBox) {
  for (const std::int32_t number : kTold) {
    SCOPED_TRACE(number);
    ReportSession session;
    ReportParts parts;
    parts.properties["RecordSource"] = errorValue(number);
    const Lines lines = session.dataReportOf(parts);
    EXPECT_EQ(lines.back(), "End  ' Data Report Sales");
    EXPECT_EQ(session.onlyBox().text,
              "GetAccDataReportProps() - Error #" + std::to_string(number) + "\r\nAs recorded.");
    EXPECT_FALSE(session.state.mblnBadAttachedTables);
  }
}

TEST(DataReportFailures, ARecordSourceThatOverflows) {
  ReportSession session;
  ReportParts parts;
  parts.properties["RecordSource"] = errorValue(6);
  session.dataReportOf(parts);
  EXPECT_EQ(session.state.lngReportHeight, 32767);
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST(DataReportFailures, ASectionWithoutANameRepeatsTheNameBeforeIt) {
  for (const std::int32_t number : {438, 2683}) {
    SCOPED_TRACE(number);
    ReportSession session;
    ReportParts parts = reportOfSections({0, 3, 4, 5, 6}, 1);
    parts.sections[0]["properties"]["Name"] = errorValue(number);
    const Lines lines = session.dataReportOf(parts);
    EXPECT_EQ(sectionNames(lines),
              (Lines{"Section3", "Section5", "Section5", "Section6", "Section4"}));
    const Lines box = {"GetAccDataReportProps() - Error #2683\r\nAs recorded."};
    EXPECT_EQ(session.boxTexts(), number == 2683 ? box : Lines{});
  }
}

TEST(DataReportFailures, TheNameOfTheLastSectionOutlivesTheReport) {
  ReportSession session;
  ReportParts named, nameless;
  named.name = "Named";
  nameless.name = "Nameless";
  nameless.sections[0]["properties"].erase("Name");
  session.openReports({named.entry(), nameless.entry()});
  session.take("Named");
  session.dataReport();
  session.take("Nameless");
  EXPECT_EQ(sectionNames(session.dataReport()), Lines{"Detail"});
}

}  // namespace
}  // namespace tarrowin::test
