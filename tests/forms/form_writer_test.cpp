// The frame of a form file: header, walk, closing line, and the errors of both.
#include "forms/form_writer.h"

#include <gmock/gmock.h>

#include "forms/form_session.h"

namespace tarrowin::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;

std::string lineWith(const std::vector<std::string>& lines, std::string_view literal) {
  std::string found;
  for (const std::string& line : lines)
    if (line.starts_with(literal)) found += (found.empty() ? "" : "|") + line;
  return found;
}

TEST(FormWriter, AFormWithNoControls) {
  FormSession session;
  EXPECT_THAT(
      session.convertOne(form("Plain Form")),
      ElementsAre("VERSION 5.00", "Begin VB.Form Plain_Form", "   Appearance    = 0",
                  "   BackColor     = 12632256", "   BorderStyle   = 2",
                  "   Caption       = \"A form\"", "   ClientHeight  = 3120",
                  "   ClientLeft    = 60", "   ClientTop     = 345", "   ClientWidth   = 9000",
                  "   Enabled       = -1", "   HelpContextID = 7", "   KeyPreview    = 0",
                  "   MaxButton     = 3", "   MinButton     = 3", "   Tag           = \"\"",
                  "End   ' Form Plain Form"));
}

TEST(FormWriter, AFormWithOnlyADetailSection) {
  FormSession session;
  session.convertOne(form("F"));
  const ConversionState& s = session.main.state;
  EXPECT_EQ(s.intHeaderHeight, 0);
  EXPECT_EQ(s.intPageHeaderHeight, 0);
  EXPECT_EQ(s.intDetailHeight, 3000);
  EXPECT_EQ(s.intPageFooterHeight, 0);
  EXPECT_EQ(s.intFooterHeight, 0);
  EXPECT_EQ(s.intClientHeight, 3120);
}

TEST(FormWriter, SectionHeightsThatAddUpToMoreThan32767) {
  Json entry = form("F");
  entry["sections"] = {section(1, {{"Height", 20000}}), section(0, {{"Height", 20000}})};
  FormSession session;
  EXPECT_EQ(lineWith(session.convertOne(entry), "   ClientHeight"), "   ClientHeight  = 11520");
}

TEST(FormWriter, ASectionHigherThan32767CountsAsNone) {
  Json entry = form("F");
  entry["sections"] = {section(1, {{"Height", 40000}}), section(0, {{"Height", 500}})};
  FormSession session;
  EXPECT_EQ(lineWith(session.convertOne(entry), "   ClientHeight"), "   ClientHeight  = 620");
  EXPECT_EQ(session.main.state.intHeaderHeight, 0);
}

TEST(FormWriter, AHighFormIsCutAndKeepsTheHeightsOfItsSections) {
  Json entry = form("F");
  entry["sections"] = Json::array({section(0, {{"Height", 12000}})});
  FormSession session;
  EXPECT_EQ(lineWith(session.convertOne(entry), "   ClientHeight"), "   ClientHeight  = 11520");
  EXPECT_EQ(session.main.state.intDetailHeight, 12000);
}

TEST(FormWriter, AForm20000TwipsWide) {
  Json entry = form("F", {control("txt", 109, at(19000, 0))});
  entry["properties"]["Width"] = 20000;
  FormSession session;
  const auto lines = session.convertOne(entry);
  EXPECT_EQ(lineWith(lines, "   ClientWidth"), "   ClientWidth   = 15360");
  EXPECT_EQ(lineWith(lines, "      Left"), "      Left          = 19000");
}

TEST(FormWriter, ACaptionOfBlanksOnly) {
  Json entry = form("F");
  entry["properties"]["Caption"] = "   ";
  FormSession session;
  EXPECT_EQ(lineWith(session.convertOne(entry), "   Caption"), "   Caption       = \"   \"");
}

TEST(FormWriter, ACaptionWithADoubleQuoteOrATab) {
  Json entry = form("F");
  entry["properties"]["Caption"] = "  The \"big\"\tform ";
  entry["properties"]["Tag"] = " a\"b ";
  FormSession session;
  const auto lines = session.convertOne(entry);
  EXPECT_EQ(lineWith(lines, "   Caption"), "   Caption       = \"The 'big' form\"");
  EXPECT_EQ(lineWith(lines, "   Tag"), "   Tag           = \" a'b \"");
}

TEST(FormWriter, AnAppearanceOfTwoOrMoreIsOne) {
  for (const auto& [effect, printed] :
       {std::pair{1, "1"}, {2, "1"}, {5, "1"}, {0, "0"}, {-1, "-1"}}) {
    Json entry = form("F");
    entry["sections"][0]["properties"]["SpecialEffect"] = effect;
    FormSession session;
    EXPECT_EQ(lineWith(session.convertOne(entry), "   Appearance"),
              std::string("   Appearance    = ") + printed);
  }
}

TEST(FormWriter, AHeaderPropertyThatCannotBeReadLosesItsLineAlone) {
  FormSession whole;
  const auto all = whole.convertOne(form("F"));
  for (const auto& [property, literal] : {std::pair{"BorderStyle", "   BorderStyle"},
                                          {"Caption", "   Caption"},
                                          {"Width", "   ClientWidth"},
                                          {"HelpContextID", "   HelpContextID"},
                                          {"KeyPreview", "   KeyPreview"},
                                          {"Tag", "   Tag"}}) {
    Json entry = form("F");
    entry["properties"].erase(property);
    FormSession session;
    std::vector<std::string> expected;
    for (const std::string& line : all)
      if (!line.starts_with(literal)) expected.push_back(line);
    ASSERT_EQ(expected.size(), all.size() - 1);
    EXPECT_EQ(session.convertOne(entry), expected) << property;
    EXPECT_EQ(session.user.boxes.size(), 1u) << property;
  }
}

TEST(FormWriter, TheFormsButtonsAreTwoLinesOfOneProperty) {
  Json entry = form("F");
  entry["properties"].erase("MinMaxButtons");
  FormSession session;
  const auto lines = session.convertOne(entry);
  EXPECT_EQ(lineWith(lines, "   MaxButton"), "");
  EXPECT_EQ(lineWith(lines, "   MinButton"), "");
}

TEST(FormWriter, AnUnusualErrorOfTheHeaderHasABox) {
  Json entry = form("F");
  entry["properties"]["KeyPreview"] = {{"error", 3000}, {"description", "Refused."}};
  FormSession session;
  session.convertOne(entry);
  ASSERT_EQ(session.user.boxes.size(), 2u);
  EXPECT_EQ(session.user.boxes[0], (Box{16, "GetAccFormProps() - Error #3000\r\nRefused.",
                                        "Access to Visual Basic Tarrowin"}));
}

TEST(FormWriter, AFirstControlInsideAGroupIsPrintedTwice) {
  FormSession session;
  const auto lines = session.convertOne(
      form("F", {control("opt", 105, at(10, 10), "grp"), control("grp", 107, at(0, 0))}));
  EXPECT_EQ(lineWith(lines, "   Begin"), "   Begin VB.OptionButton opt|   Begin VB.Frame grp");
  EXPECT_EQ(lineWith(lines, "      Begin VB."), "      Begin VB.OptionButton opt");
}

TEST(FormWriter, TheFirstControlHangsOnTheFormOrOnAControlOfIt) {
  FormSession session;
  const auto lines = session.convertOne(
      form("F", {control("lbl", 100, at(10, 10), "opt"), control("opt", 105, at(10, 10), "grp"),
                 control("grp", 107, at(0, 0))}));
  // A label of a button of a group is two controls away from the form.
  EXPECT_EQ(lineWith(lines, "   Begin VB.Label"), "");
}

TEST(FormWriter, ControlNamesAreCleaned) {
  FormSession session;
  const auto lines = session.convertOne(form("F", {control("2nd Quarter", 109, at(0, 0))}));
  EXPECT_EQ(lineWith(lines, "   Begin"), "   Begin VB.TextBox xnd_Quarter");
  EXPECT_EQ(lineWith(lines, "   End"), "   End   'xnd_Quarter");
}

TEST(FormWriter, AControlWithoutANameKeepsTheLastOnesName) {
  FormSession session;
  const auto lines = session.convertOne(
      form("F", {control("one", 109, at(0, 0)),
                 control("two", 109, {{"Name", {{"error", 2465}}}, {"Section", 0}})}));
  EXPECT_EQ(lineWith(lines, "   Begin"), "   Begin VB.TextBox one|   Begin VB.TextBox one");
}

TEST(FormWriter, AnUnusualErrorOfTheWalkNamesTheLastControl) {
  FormSession session;
  session.convertOne(form(
      "F", {control("one", 109, at(0, 0)),
            control("two", 109, {{"Parent", {{"error", 3000}, {"description", "Refused."}}}})}));
  // The names and the types of both parents.
  ASSERT_EQ(session.user.boxes.size(), 5u);
  for (int i = 0; i < 4; ++i)
    EXPECT_EQ(session.user.boxes[i].text, "CreateVBForm(one) - Error #3000 Refused.");
}

TEST(FormWriter, ControlsWhoseParentsAreCyclicOrMissing) {
  FormSession session;
  const auto lines = session.convertOne(
      form("F", {control("first", 109, at(0, 0)), control("own", 107, at(0, 0), "own"),
                 control("a", 109, at(0, 0), "b"), control("b", 100, at(0, 0), "a"),
                 control("lost", 109, at(0, 0), "nowhere")}));
  // Nobody prints what hangs on itself; what hangs on nothing stands on the form.
  EXPECT_EQ(lineWith(lines, "   Begin VB."), "   Begin VB.TextBox first|   Begin VB.TextBox lost");
  EXPECT_EQ(lines.back(), "End   ' Form F");
}

std::vector<Json> labels(int count) {
  std::vector<Json> controls;
  for (int i = 0; i < count; ++i) controls.push_back(control("l" + std::to_string(i), 100));
  return controls;
}

TEST(FormWriter, AFormWith256ControlsGetsTheNoteAndOneWith255DoesNot) {
  const std::string note =
      "NOTE: There are 255 controls in the current Form. This exceeds the Visual Basic limit of "
      "254 "
      "control names for a Form. Too many controls on a Form may cause Visual Basic to crash. "
      "Refer "
      "to the online Help for more information.\r\n\r\n";
  Json section0 = at(0, 0);
  for (const int count : {255, 256}) {
    FormSession session;
    std::vector<Json> controls = labels(count);
    for (Json& each : controls) each["properties"] = section0;
    session.convertOne(form("F", controls));
    EXPECT_EQ(session.main.state.intNumControls, count - 1);
    ASSERT_EQ(session.user.boxes.size(), 1u);
    EXPECT_EQ(session.user.boxes[0].text.find(note) != std::string::npos, count == 256);
  }
}

}  // namespace
}  // namespace tarrowin::test
