// Every row of the mapping, in both kinds of code, and the words that it is found by.
#include "codeconv/do_cmd_mapping.h"

#include <gtest/gtest.h>

#include "codeconv/rewritten.h"

namespace tarrowin::test {
namespace {

class EveryDoCmdRow : public testing::TestWithParam<RuleCase> {};

TEST_P(EveryDoCmdRow, InModulesAndInForms) { expectRewritten(GetParam()); }

// Each method bare, indented, as comment without and with a blank behind the apostrophe, and
// inside a string.
const RuleCase kCases[] = {
    // Without its blanks the line is one word.
    {"DoCmd.Beep ", {"' DoCmd.Beep "}, {"' DoCmd.Beep "}},
    {"DoCmd.Beep : x = 1", {"Beep ' DoCmd.Beep : x = 1"}, {"Beep ' DoCmd.Beep : x = 1"}},
    {"    DoCmd.Beep ' now", {"Beep '     DoCmd.Beep ' now"}, {"Beep '     DoCmd.Beep ' now"}},
    {"'DoCmd.Beep now", {"Beep ' 'DoCmd.Beep now"}, {"Beep ' 'DoCmd.Beep now"}},
    {"' DoCmd.Beep now", {"' ' DoCmd.Beep now"}, {"' ' DoCmd.Beep now"}},
    {"s = \"DoCmd.Beep \"", {"' s = \"DoCmd.Beep \""}, {"' s = \"DoCmd.Beep \""}},
    {"DoCmd.Beep", {"' DoCmd.Beep"}, {"' DoCmd.Beep"}},

    {"DoCmd.Close acForm, \"frmMain\"",
     {"UnLoad frmMain ' DoCmd.Close acForm, \"frmMain\""},
     {"UnLoad frmMain ' DoCmd.Close acForm, \"frmMain\"",
      "Unload Me 'DoCmd.Close acForm, \"frmMain\""}},
    {"    DoCmd.Close acForm, \"Order List\"",
     {"UnLoad Order_List '     DoCmd.Close acForm, \"Order List\""},
     {"UnLoad Order_List '     DoCmd.Close acForm, \"Order List\"",
      "Unload Me '    DoCmd.Close acForm, \"Order List\""}},
    {"DoCmd.Close acForm, strForm",
     {"' DoCmd.Close acForm, strForm"},
     {"' DoCmd.Close acForm, strForm", "Unload Me 'DoCmd.Close acForm, strForm"}},
    {"  DoCmd.Close acForm, \"\"",
     {"'   DoCmd.Close acForm, \"\""},
     {"'   DoCmd.Close acForm, \"\"", "Unload Me '  DoCmd.Close acForm, \"\""}},
    {"DoCmd.Close acForm, strForm, \"x\"",
     {"UnLoad x ' DoCmd.Close acForm, strForm, \"x\""},
     {"UnLoad x ' DoCmd.Close acForm, strForm, \"x\"",
      "Unload Me 'DoCmd.Close acForm, strForm, \"x\""}},
    {"'DoCmd.Close acForm, \"frmA\"",
     {"'DoCmd.Close acForm, \"frmA\""},
     {"'DoCmd.Close acForm, \"frmA\"", "Unload Me ''DoCmd.Close acForm, \"frmA\""}},
    {"  'DoCmd.Close acForm",
     {"  'DoCmd.Close acForm"},
     {"  'DoCmd.Close acForm", "Unload Me '  'DoCmd.Close acForm"}},
    {"' DoCmd.Close acForm, \"frmA\"",
     {"' ' DoCmd.Close acForm, \"frmA\""},
     {"' ' DoCmd.Close acForm, \"frmA\""}},
    {"s = \"DoCmd.Close acForm\"",
     {"' s = \"DoCmd.Close acForm\""},
     {"' s = \"DoCmd.Close acForm\""}},
    {"DoCmd.Close", {"' DoCmd.Close"}, {"' DoCmd.Close"}},
    {"If blnOK Then DoCmd.Close acForm, \"frmA\"",
     {"' If blnOK Then DoCmd.Close acForm, \"frmA\""},
     {"' If blnOK Then DoCmd.Close acForm, \"frmA\""}},

    {"DoCmd.GotoControl \"txtA\"",
     {"txtA.SetFocus   ' DoCmd.GotoControl \"txtA\""},
     {"txtA.SetFocus   ' DoCmd.GotoControl \"txtA\""}},
    {"  DoCmd.GotoControl \"txt A\"",
     {"txt_A.SetFocus   '   DoCmd.GotoControl \"txt A\""},
     {"txt_A.SetFocus   '   DoCmd.GotoControl \"txt A\""}},
    {"DoCmd.GotoControl strA", {"' DoCmd.GotoControl strA"}, {"' DoCmd.GotoControl strA"}},
    {"'DoCmd.GotoControl \"txtA\"",
     {"'DoCmd.GotoControl \"txtA\""},
     {"'DoCmd.GotoControl \"txtA\""}},
    {"' DoCmd.GotoControl \"txtA\"",
     {"' ' DoCmd.GotoControl \"txtA\""},
     {"' ' DoCmd.GotoControl \"txtA\""}},
    {"s = \"DoCmd.GotoControl x\"",
     {"' s = \"DoCmd.GotoControl x\""},
     {"' s = \"DoCmd.GotoControl x\""}},
    {"DoCmd.GoToControl \"txtA\"",
     {"' DoCmd.GoToControl \"txtA\""},
     {"' DoCmd.GoToControl \"txtA\""}},

    {"DoCmd.HourGlass True",
     {"Screen.MousePointer = vbHourGlass ' DoCmd.HourGlass True"},
     {"Screen.MousePointer = vbHourGlass ' DoCmd.HourGlass True"}},
    {"    DoCmd.HourGlass True",
     {"Screen.MousePointer = vbHourGlass '     DoCmd.HourGlass True"},
     {"Screen.MousePointer = vbHourGlass '     DoCmd.HourGlass True"}},
    {"DoCmd.HourGlass False",
     {"Screen.MousePointer = vbDefault ' DoCmd.HourGlass False"},
     {"Screen.MousePointer = vbDefault ' DoCmd.HourGlass False"}},
    {"  DoCmd.HourGlass blnOn",
     {"Screen.MousePointer = vbDefault '   DoCmd.HourGlass blnOn"},
     {"Screen.MousePointer = vbDefault '   DoCmd.HourGlass blnOn"}},
    {"DoCmd.HourGlass False ' not True",
     {"Screen.MousePointer = vbHourGlass ' DoCmd.HourGlass False ' not True"},
     {"Screen.MousePointer = vbHourGlass ' DoCmd.HourGlass False ' not True"}},
    {"'DoCmd.HourGlass True",
     {"Screen.MousePointer = vbHourGlass ' 'DoCmd.HourGlass True"},
     {"Screen.MousePointer = vbHourGlass ' 'DoCmd.HourGlass True"}},
    {"' DoCmd.HourGlass True", {"' ' DoCmd.HourGlass True"}, {"' ' DoCmd.HourGlass True"}},
    {"s = \"DoCmd.HourGlass True\"",
     {"' s = \"DoCmd.HourGlass True\""},
     {"' s = \"DoCmd.HourGlass True\""}},
    {"DoCmd.Hourglass True", {"' DoCmd.Hourglass True"}, {"' DoCmd.Hourglass True"}},

    {"DoCmd.OpenForm \"frmA\"",
     {"frmA.Show ' DoCmd.OpenForm \"frmA\""},
     {"frmA.Show ' DoCmd.OpenForm \"frmA\""}},
    {"    DoCmd.OpenForm \"Order List\"",
     {"Order_List.Show '     DoCmd.OpenForm \"Order List\""},
     {"Order_List.Show '     DoCmd.OpenForm \"Order List\""}},
    {"DoCmd.OpenForm strForm", {"' DoCmd.OpenForm strForm"}, {"' DoCmd.OpenForm strForm"}},
    {"DoCmd.OpenForm \"frmA", {"' DoCmd.OpenForm \"frmA"}, {"' DoCmd.OpenForm \"frmA"}},
    {"'DoCmd.OpenForm \"frmA\"", kGone, kGone},
    {"    'DoCmd.OpenForm strForm", kGone, kGone},
    {"' DoCmd.OpenForm \"frmA\"", {"' ' DoCmd.OpenForm \"frmA\""}, {"' ' DoCmd.OpenForm \"frmA\""}},
    {"s = \"DoCmd.OpenForm frmA\"",
     {"' s = \"DoCmd.OpenForm frmA\""},
     {"' s = \"DoCmd.OpenForm frmA\""}},
    {"DoCmd.OpenForm \"1st Quarter\"",
     {"xst_Quarter.Show ' DoCmd.OpenForm \"1st Quarter\""},
     {"xst_Quarter.Show ' DoCmd.OpenForm \"1st Quarter\""}},
    {"DoCmd.OpenForm \"frmDelete\"",
     {"' DoCmd.OpenForm \"frmDelete\""},
     {"' DoCmd.OpenForm \"frmDelete\""}},

    {"DoCmd.Requery \"lstA\"",
     {"lstA.Requery   ' DoCmd.Requery \"lstA\"", "End 'DoCmd.Requery \"lstA\""},
     {"lstA.Refresh   ' DoCmd.Requery \"lstA\"", "End 'DoCmd.Requery \"lstA\""}},
    {"  DoCmd.Requery \"lst A\"",
     {"lst_A.Requery   '   DoCmd.Requery \"lst A\"", "End '  DoCmd.Requery \"lst A\""},
     {"lst_A.Refresh   '   DoCmd.Requery \"lst A\"", "End '  DoCmd.Requery \"lst A\""}},
    {"DoCmd.Requery strA",
     {"' DoCmd.Requery strA", "End 'DoCmd.Requery strA"},
     {"' DoCmd.Requery strA", "End 'DoCmd.Requery strA"}},
    {"  DoCmd.Requery ' all",
     {"'   DoCmd.Requery ' all", "End '  DoCmd.Requery ' all"},
     {"'   DoCmd.Requery ' all", "End '  DoCmd.Requery ' all"}},
    {"'DoCmd.Requery \"lstA\"",
     {"'DoCmd.Requery \"lstA\"", "End ''DoCmd.Requery \"lstA\""},
     {"'DoCmd.Requery \"lstA\"", "End ''DoCmd.Requery \"lstA\""}},
    {"' DoCmd.Requery \"lstA\"", {"' ' DoCmd.Requery \"lstA\""}, {"' ' DoCmd.Requery \"lstA\""}},
    {"s = \"DoCmd.Requery x\"", {"' s = \"DoCmd.Requery x\""}, {"' s = \"DoCmd.Requery x\""}},
    {"DoCmd.Requery", {"' DoCmd.Requery"}, {"' DoCmd.Requery"}},

    {"DoCmd.Maximize", {"' DoCmd.Maximize"}, {"' DoCmd.Maximize"}},
    {"    DoCmd.RunSQL \"x\"", {"'     DoCmd.RunSQL \"x\""}, {"'     DoCmd.RunSQL \"x\""}},
    {"'DoCmd.RunSQL x", {"' 'DoCmd.RunSQL x"}, {"' 'DoCmd.RunSQL x"}},
    {"' DoCmd.RunSQL x", {"' ' DoCmd.RunSQL x"}, {"' ' DoCmd.RunSQL x"}},
    {"s = \"DoCmd.RunSQL\"", {"' s = \"DoCmd.RunSQL\""}, {"' s = \"DoCmd.RunSQL\""}},
    {"DoCmd.openform \"a\"", {"' DoCmd.openform \"a\""}, {"' DoCmd.openform \"a\""}},
    {"docmd.OpenForm \"a\"", {"docmd.OpenForm \"a\""}, {"docmd.OpenForm \"a\""}},
    // A tab is no blank: it stays in front of the word, and the line is no comment for it.
    {"\tDoCmd.OpenForm \"a\"",
     {"a.Show ' \tDoCmd.OpenForm \"a\""},
     {"a.Show ' \tDoCmd.OpenForm \"a\""}},
    // Placeholders of the table are plain text in a source line.
    {"DoCmd.OpenForm \"{L}{M}\"",
     {"xL__M_.Show ' DoCmd.OpenForm \"{L}{M}\""},
     {"xL__M_.Show ' DoCmd.OpenForm \"{L}{M}\""}},
    // Any text in front without a blank.
    {"x:DoCmd.OpenForm \"a\"",
     {"a.Show ' x:DoCmd.OpenForm \"a\""},
     {"a.Show ' x:DoCmd.OpenForm \"a\""}},
};

INSTANTIATE_TEST_SUITE_P(Rows, EveryDoCmdRow, testing::ValuesIn(kCases));

TEST(DoCmdMapping, MeNameIsTakenByAnEarlierRule) {
  EXPECT_EQ(inForm("DoCmd.Close acForm, Me.Name"),
            (Lines{"DoCmd.Close acForm, Me.Name", "", "' "}));
}

TEST(DoCmdMapping, ANameOf45CharactersIsCutTo40BeforeItIsCleaned) {
  const std::string name = "abcdefghij abcdefghij abcdefghij abcdefg(xyza";
  const std::string source = "DoCmd.OpenForm \"" + name + "\"";
  EXPECT_EQ(inForm(source), Lines{"abcdefghij_abcdefghij_abcdefghij_abcdefg.Show ' " + source});
}

TEST(ExtractDoCmdMethod, TheWordBetweenTheDotAndTheFirstBlank) {
  EXPECT_EQ(ExtractDoCmdMethod("DoCmd.OpenForm \"frmA\""), "OpenForm");
  EXPECT_EQ(ExtractDoCmdMethod("'DoCmd.OpenForm \"frmA\""), "OpenForm");
  EXPECT_EQ(ExtractDoCmdMethod("DoCmd. x"), "");
  EXPECT_EQ(ExtractDoCmdMethod("DoCmd.Beep, x"), "Beep,");
}

TEST(ExtractDoCmdMethod, TheWholeTextWithoutABlankOrWithOneInFront) {
  EXPECT_EQ(ExtractDoCmdMethod("DoCmd.Beep"), "DoCmd.Beep");
  EXPECT_EQ(ExtractDoCmdMethod("If x Then DoCmd.Close"), "If x Then DoCmd.Close");
  EXPECT_EQ(ExtractDoCmdMethod("' DoCmd.Close"), "' DoCmd.Close");
}

TEST(ExtractDoCmdMethod, EmptyWithoutDoCmd) {
  EXPECT_EQ(ExtractDoCmdMethod("Debug.Print x"), "");
  EXPECT_EQ(ExtractDoCmdMethod(""), "");
}

TEST(DoCmdMapping, TheMethodStaysInTheState) {
  std::string method;
  convertDoCmdLine(CodeKind::kModule, "   DoCmd.OpenQuery \"a\"", method, [](std::string_view) {});
  EXPECT_EQ(method, "OpenQuery");
}

}  // namespace
}  // namespace tarrowin::test
