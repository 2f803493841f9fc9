// Exported forms and reports as stored designs.
#include "access/exports/design_text.h"

#include <gtest/gtest.h>

#include "exports/export_files.h"

namespace tarrowin::exports {
namespace {

ExportedDesign read(const std::string& text, DesignKind kind = DesignKind::kForm) {
  return readDesignText(text, kind, CodePage());
}

std::string problemOf(const std::string& text) {
  try {
    read(text);
  } catch (const ExportTextError& error) {
    return error.what();
  }
  return "";
}

// A form whose detail section has these lines between "Begin" and "End".
std::string withControls(const std::string& lines) {
  return "Version =20\nBegin Form\nBegin\nBegin Section\nName =\"Detail\"\nBegin\n" + lines +
         "End\nEnd\nEnd\nEnd\n";
}
const std::vector<StoredBlock>& controlsOf(const ExportedDesign& design) {
  return design.design.root.children.at(0).children;
}

const StoredProperty* find(const StoredBlock& block, std::string_view keyword) {
  for (const StoredProperty& property : block.properties)
    if (property.keyword == keyword) return &property;
  return nullptr;
}
Value valueOf(const StoredBlock& block, std::string_view keyword) {
  const StoredProperty* const property = find(block, keyword);
  return property ? std::get<Value>(property->value) : Value("(none)");
}

TEST(DesignText, StylesSectionsAndNestedControls) {
  const ExportedDesign form = read(std::string(kSmallForm));
  const StoredDesign& design = form.design;
  EXPECT_EQ(design.root.kind, "Form");
  EXPECT_EQ(design.version, 20);
  EXPECT_TRUE(design.laterFormat);
  EXPECT_FALSE(design.hasModule);
  EXPECT_EQ(valueOf(design.root, "Width"), Value(7021));
  ASSERT_EQ(design.root.children.size(), 2u);
  EXPECT_EQ(design.root.children[0].kind, "Label");
  EXPECT_EQ(valueOf(design.root.children[0], "BackStyle"), Value(0));
  const StoredBlock& section = design.root.children[1];
  EXPECT_EQ(section.kind, "Section");
  EXPECT_EQ(valueOf(section, "Name"), Value("Detail"));
  ASSERT_EQ(section.children.size(), 1u);
  EXPECT_EQ(section.children[0].kind, "TextBox");
  ASSERT_EQ(section.children[0].children.size(), 1u);
  EXPECT_EQ(valueOf(section.children[0].children[0], "Caption"), Value("Id"));
  EXPECT_EQ(design.understood.controls, 2u);
  EXPECT_EQ(design.understood.controlsKnown, 2u);
  EXPECT_EQ(design.understood.properties, 9u);
  EXPECT_EQ(design.understood.propertiesKnown, 9u);
}

TEST(DesignText, CodeMakesAModule) {
  const ExportedDesign form = read(std::string(kSmallForm) + std::string(kFormCode));
  EXPECT_TRUE(form.design.hasModule);
  ASSERT_TRUE(form.code);
  EXPECT_TRUE(form.code->starts_with("Attribute VB_GlobalNameSpace"));
}

TEST(DesignText, WithoutLayout) {
  const std::string text = "Version =20\nVersionRequired =20\n" + std::string(kFormCode);
  EXPECT_EQ(read(text).design.root.kind, "Form");
  EXPECT_EQ(read(text, DesignKind::kReport).design.root.kind, "Report");
  EXPECT_TRUE(read(text).design.root.properties.empty());
  EXPECT_TRUE(read(text).design.hasModule);
  EXPECT_EQ(problemOf("Version =20\n"), "line 1: it has no layout");
}

TEST(DesignText, VersionsOfOlderAccess) {
  EXPECT_EQ(read("Version =17\nBegin Form\nEnd\n").design.version, 17);
  EXPECT_FALSE(read("Version =19\nBegin Form\nEnd\n").design.laterFormat);
  EXPECT_EQ(problemOf("Begin Form\nEnd\n"), "line 1: a form or report begins with \"Version =\"");
}

TEST(DesignText, GroupLevelsOfAReport) {
  const ExportedDesign report = read(
      "Version =20\nBegin Report\nBegin\nBegin BreakLevel\nGroupHeader = NotDefault\n"
      "ControlSource =\"Country\"\nEnd\nBegin BreakHeader\nBreakLevel =1\nName =\"GroupHeader0\"\n"
      "End\nEnd\nEnd\n",
      DesignKind::kReport);
  ASSERT_EQ(report.design.root.children.size(), 2u);
  EXPECT_EQ(report.design.root.children[0].kind, "BreakLevel");
  EXPECT_TRUE(std::holds_alternative<TurnedOver>(
      find(report.design.root.children[0], "GroupHeader")->value));
  EXPECT_EQ(valueOf(report.design.root.children[1], "BreakLevel"), Value(1));
}

TEST(DesignText, EmbeddedMacroStandsForItsEvent) {
  const ExportedDesign form = read(withControls(
      "Begin CommandButton\nName =\"a\"\nOnClickEmMacro = Begin\nVersion =196611\nBegin\n"
      "Action =\"Beep\"\nEnd\nEnd\nEnd\n"));
  EXPECT_EQ(valueOf(controlsOf(form)[0], "OnClick"), Value("[Embedded Macro]"));
}

TEST(DesignText, UnknownPropertyIsCountedAndLeftOut) {
  const ExportedDesign form = read(withControls(
      "Begin TextBox\nName =\"a\"\nUnknownProp = {299 ,1 ,3 ,1 ,1 } Begin\n0x01\nEnd\nEnd\n"));
  EXPECT_EQ(controlsOf(form)[0].properties.size(), 1u);
  EXPECT_EQ(form.design.understood.properties, 3u);
  EXPECT_EQ(form.design.understood.propertiesKnown, 2u);
}

TEST(DesignText, UnknownBlockIsCountedAndKept) {
  const ExportedDesign form = read(withControls("Begin Hologram\nName =\"a\"\nEnd\n"));
  EXPECT_EQ(controlsOf(form)[0].kind, "Hologram");
  EXPECT_EQ(form.design.understood.controls, 1u);
  EXPECT_EQ(form.design.understood.controlsKnown, 0u);
}

TEST(DesignText, RepeatedPropertyCountsOnce) {
  const ExportedDesign form =
      read("Version =20\nBegin Form\nAllowPivotChartView =0\nAllowPivotChartView =0\nEnd\n");
  EXPECT_EQ(form.design.root.properties.size(), 1u);
}

TEST(DesignText, TwoControlsWithOneNameStayTwo) {
  const ExportedDesign form =
      read(withControls("Begin TextBox\nName =\"a\"\nEnd\nBegin TextBox\nName =\"a\"\nEnd\n"));
  EXPECT_EQ(controlsOf(form).size(), 2u);
}

TEST(DesignTextDamage, TwoValuesOfOneProperty) {
  EXPECT_EQ(problemOf("Version =20\nBegin Form\nWidth =1\nWidth =2\nEnd\n"),
            "line 4: \"Width\" has two values");
  EXPECT_EQ(problemOf("Version =20\nBegin Form\nPopUp = NotDefault\nPopUp =2\nEnd\n"),
            "line 4: \"PopUp\" has two values");
}

// The lines that were between the two: the end of the first, the beginning of the second.
TEST(DesignTextDamage, TwoControlsInOneBlockArePartedAgain) {
  const ExportedDesign form = read(withControls(
      "Begin ComboBox\n"
      "LimitToList = NotDefault\nOverlapFlags =85\nColumnCount =3\nLeft =1320\nTop =780\n"
      "Name =\"cboFind\"\nRowSource =\"a\"\nAfterUpdate =\"[Event Procedure]\"\n"
      "LayoutCachedLeft =7\nOverlaps =1\n"
      "Visible = NotDefault\nOverlapFlags =85\nColumnCount =1\nLeft =60\nName =\"bnkId\"\n"
      "ControlSource =\"bnkId\"\n"
      "End\n"));
  const auto& controls = controlsOf(form);
  ASSERT_EQ(controls.size(), 2u);
  EXPECT_EQ(valueOf(controls[0], "Name"), Value("cboFind"));
  EXPECT_EQ(valueOf(controls[0], "Left"), Value(1320));
  EXPECT_EQ(valueOf(controls[0], "LayoutCachedLeft"), Value(7));
  EXPECT_EQ(find(controls[0], "Visible"), nullptr);
  EXPECT_EQ(controls[1].kind, "ComboBox");
  EXPECT_EQ(valueOf(controls[1], "Name"), Value("bnkId"));
  EXPECT_EQ(valueOf(controls[1], "Left"), Value(60));
  EXPECT_NE(find(controls[1], "Visible"), nullptr);
  EXPECT_EQ(form.design.understood.controls, 2u);
  EXPECT_EQ(form.design.understood.controlsKnown, 1u);
}

TEST(DesignTextDamage, ThreeControlsInOneBlock) {
  const ExportedDesign form =
      read(withControls("Begin ComboBox\nLeft =1\nName =\"a\"\nRowSource =\"x\"\n"
                        "OverlapFlags =1\nColumnCount =2\nName =\"b\"\n"
                        "OverlapFlags =2\nIMESentenceMode =3\nName =\"c\"\nEnd\n"));
  ASSERT_EQ(controlsOf(form).size(), 3u);
  EXPECT_EQ(controlsOf(form)[1].kind, "ComboBox");
  EXPECT_EQ(valueOf(controlsOf(form)[1], "OverlapFlags"), Value(1));
  EXPECT_EQ(controlsOf(form)[2].kind, "TextBox");
  EXPECT_EQ(valueOf(controlsOf(form)[2], "OverlapFlags"), Value(2));
}

// Each of these may be the first that the second control has.
TEST(DesignTextDamage, SecondControlStartsWithARareNumber) {
  for (const std::string keyword : {"DisplayWhen", "NumeralShapes", "RunningSum", "SizeMode"}) {
    const ExportedDesign form =
        read(withControls("Begin ComboBox\nLeft =1\nName =\"a\"\nRowSource =\"x\"\n" + keyword +
                          " =1\nOverlapFlags =85\nName =\"b\"\nTag =\"y\"\nEnd\n"));
    const auto& controls = controlsOf(form);
    ASSERT_EQ(controls.size(), 2u);
    EXPECT_EQ(controls[0].properties.back().keyword, "RowSource");
    EXPECT_EQ(controls[1].properties.front().keyword, keyword);
  }
}

TEST(DesignTextDamage, LostKindIsToldFromTheProperties) {
  const auto kindOf = [](const std::string& lines) {
    const ExportedDesign form = read(
        withControls("Begin ComboBox\nLeft =1\nName =\"a\"\nRowSource =\"x\"\nOverlapFlags =85\n" +
                     lines + "End\n"));
    return controlsOf(form).at(1).kind;
  };
  EXPECT_EQ(kindOf("Name =\"b\"\nCaption =\"x\"\nTag =\"y\"\n"), "Label");
  EXPECT_EQ(kindOf("TabIndex =1\nName =\"b\"\nCaption =\"x\"\n"), "CommandButton");
  EXPECT_EQ(kindOf("Left =1\nWidth =6\nName =\"b\"\n"), "Rectangle");
  EXPECT_EQ(kindOf("Left =1\nWidth =6\nFontWeight =700\nName =\"b\"\n"), "Label");
  EXPECT_EQ(kindOf("Left =1\nWidth =6\nName =\"b\"\nFontName =\"Arial\"\n"), "Label");
  EXPECT_EQ(kindOf("Width =6\nTabIndex =1\nName =\"b\"\nSourceObject =\"Form.f\"\n"), "Subform");
  EXPECT_EQ(kindOf("TabIndex =1\nName =\"b\"\nDefaultValue =\"0\"\n"), "CheckBox");
  EXPECT_EQ(kindOf("Width =6\nName =\"b\"\nFormat =\">\"\n"), "TextBox");
  EXPECT_EQ(kindOf("Width =6\nName =\"b\"\nControlSource =\"x\"\n"), "ComboBox");
  EXPECT_EQ(kindOf("ColumnCount =6\nName =\"b\"\n"), "ComboBox");
}

TEST(DesignTextDamage, NestedControlsStayWithTheirs) {
  const ExportedDesign form =
      read(withControls("Begin ComboBox\nName =\"a\"\nBegin\nBegin Label\nName =\"la\"\nEnd\nEnd\n"
                        "Tag =\"of b\"\nName =\"b\"\nEnd\n"));
  ASSERT_EQ(controlsOf(form).size(), 2u);
  ASSERT_EQ(controlsOf(form)[0].children.size(), 1u);
  EXPECT_TRUE(controlsOf(form)[1].children.empty());
  EXPECT_EQ(valueOf(controlsOf(form)[1], "Tag"), Value("of b"));
}

TEST(DesignTextDamage, WrongNesting) {
  EXPECT_EQ(problemOf("Version =20\nBegin Form\nBegin TextBox\nEnd\nEnd\n"),
            "line 3: \"TextBox\" stands in a wrong place");
  EXPECT_EQ(problemOf("Version =20\nBegin Form\nBegin\nEnd\nBegin\nEnd\nEnd\n"),
            "line 5: a second block without a name");
  EXPECT_EQ(
      problemOf("Version =20\nBegin Form\nBegin\nBegin TextBox\nName =\"a\"\nEnd\nEnd\nEnd\n"),
      "line 4: \"TextBox\" stands outside of a section");
  EXPECT_EQ(problemOf(withControls("Begin Section\nEnd\n")),
            "line 7: \"Section\" stands in a wrong place");
  EXPECT_EQ(problemOf(withControls("Begin\nEnd\n")),
            "line 7: a block without a name in another one");
  EXPECT_EQ(problemOf(withControls("Width =1\n")), "line 7: a property outside of its block");
  EXPECT_EQ(problemOf("Version =20\nBegin Form\nEnd\nBegin Form\nEnd\n"),
            "line 4: a second object");
  EXPECT_EQ(problemOf("Version =20\nBegin Table\nEnd\n"),
            "line 2: \"Table\" is neither a form nor a report");
}

TEST(DesignTextDamage, EmptiedBytes) {
  const ExportedDesign form =
      read("Version =20\nBegin Form\nPictureData = Begin\nEnd\nWidth =1\nEnd\n");
  EXPECT_EQ(valueOf(form.design.root, "PictureData"), Value(Bytes{}));
  EXPECT_EQ(valueOf(form.design.root, "Width"), Value(1));
}

}  // namespace
}  // namespace tarrowin::exports
