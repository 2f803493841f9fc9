// What each Access control becomes, and which of the copied properties its class has.
#include "preview/preview_classes.h"
#include "preview/preview_session.h"

namespace tarrowin::test {
namespace {

class PreviewClasses : public testing::Test {
 protected:
  std::string classOf(const Json& entry, const std::vector<Json>& others = {}) {
    std::vector<Json> forms = others;
    forms.push_back(formOf({entry}));
    session.openForms(forms);
    return named(session.preview(), "ctl").className;
  }

  PreviewSession session;
};

TEST_F(PreviewClasses, EachTypeHasItsClass) {
  const std::vector<std::pair<int, std::string>> rows = {
      {100, "VB.Label"},         {101, "VB.Shape"},
      {102, "VB.Line"},          {103, "VB.Image"},
      {104, "VB.CommandButton"}, {105, "VB.OptionButton"},
      {106, "VB.CheckBox"},      {107, "VB.Frame"},
      {108, "VB.PictureBox"},    {109, "VB.TextBox"},
      {110, "VB.ListBox"},       {111, "VB.ComboBox"},
      {114, "VB.PictureBox"},    {118, "VB.Line"},
      {122, "VB.CommandButton"}, {123, "MSComctlLib.TabStrip"},
      {124, "VB.Line"}};
  for (const auto& [type, className] : rows)
    EXPECT_EQ(classOf(control("ctl", type)), className) << type;
}

TEST_F(PreviewClasses, ActiveXControlIsOfItsOwnClass) {
  EXPECT_EQ(classOf(control("ctl", 119, {{"Class", "MSComctlLib.TreeCtrl.2"}})),
            "MSComctlLib.TreeCtrl.2");
}

TEST_F(PreviewClasses, SubformAsListIsAGridAndSingleFormAPictureBox) {
  const auto subform = [this](int defaultView) {
    Json shown = form("frmSub");
    shown["properties"]["DefaultView"] = defaultView;
    return classOf(control("ctl", 112, {{"SourceObject", "frmSub"}}), {shown});
  };
  EXPECT_EQ(subform(0), "VB.PictureBox");
  EXPECT_EQ(subform(1), "MSDataGridLib.DataGrid");
  EXPECT_EQ(subform(2), "MSDataGridLib.DataGrid");
}

TEST_F(PreviewClasses, SubformThatCannotBeReachedIsAPictureBox) {
  EXPECT_EQ(classOf(control("ctl", 112, {{"SourceObject", "frmGone"}})), "VB.PictureBox");
  EXPECT_EQ(classOf(control("ctl", 112)), "VB.PictureBox");
}

TEST_F(PreviewClasses, TypeWithoutAClassCannotBeAdded) {
  const Box box = session.refusalOf(formOf({control("ctl", 130)}));
  EXPECT_EQ(box.style, 16);
  EXPECT_EQ(box.text,
            "PreviewForm() - Error #711\r\nInvalid class string. Looking for object with ProgID: ");
}

TEST_F(PreviewClasses, ActiveXControlWithoutAClassCannotBeAdded) {
  EXPECT_TRUE(session.refusalOf(formOf({control("ctl", 119, {{"Class", ""}})}))
                  .text.starts_with("PreviewForm() - Error #711\r\n"));
  EXPECT_TRUE(session.refusalOf(formOf({control("ctl", 119)}))
                  .text.starts_with("PreviewForm() - Error #438\r\n"));
}

// Each class with the copied properties that it has, as Visual Basic's own lists of members give
// them; those of every class, Height, Left, Tag, Top, Visible and Width, are not repeated.
TEST(PreviewClassProperties, EachClassHasItsOwn) {
  const std::vector<std::string> properties = {
      "Appearance", "Caption",   "BackColor", "BackStyle",  "BorderStyle",
      "DataSource", "DataField", "Enabled",   "ForeColor",  "Locked",
      "TabIndex",   "TabStop",   "Text",      "ToolTipText"};
  const std::vector<std::pair<std::string, Lines>> rows = {
      {"VB.Label",
       {"Appearance", "Caption", "BackColor", "BackStyle", "BorderStyle", "DataSource", "DataField",
        "Enabled", "ForeColor", "TabIndex", "ToolTipText"}},
      {"VB.Shape", {"BackColor", "BackStyle", "BorderStyle"}},
      {"VB.Line", {"BorderStyle"}},
      {"VB.Image",
       {"Appearance", "BorderStyle", "DataSource", "DataField", "Enabled", "ToolTipText"}},
      {"VB.CommandButton",
       {"Appearance", "Caption", "BackColor", "Enabled", "TabIndex", "TabStop", "ToolTipText"}},
      {"VB.OptionButton",
       {"Appearance", "Caption", "BackColor", "Enabled", "ForeColor", "TabIndex", "TabStop",
        "ToolTipText"}},
      {"VB.CheckBox",
       {"Appearance", "Caption", "BackColor", "DataSource", "DataField", "Enabled", "ForeColor",
        "TabIndex", "TabStop", "ToolTipText"}},
      {"VB.Frame",
       {"Appearance", "Caption", "BackColor", "BorderStyle", "Enabled", "ForeColor", "TabIndex",
        "ToolTipText"}},
      {"VB.PictureBox",
       {"Appearance", "BackColor", "BorderStyle", "DataSource", "DataField", "Enabled", "ForeColor",
        "TabIndex", "TabStop", "ToolTipText"}},
      {"VB.TextBox",
       {"Appearance", "BackColor", "BorderStyle", "DataSource", "DataField", "Enabled", "ForeColor",
        "Locked", "TabIndex", "TabStop", "Text", "ToolTipText"}},
      {"VB.ListBox",
       {"Appearance", "BackColor", "DataSource", "DataField", "Enabled", "ForeColor", "TabIndex",
        "TabStop", "ToolTipText"}},
      {"VB.ComboBox",
       {"Appearance", "BackColor", "DataSource", "DataField", "Enabled", "ForeColor", "Locked",
        "TabIndex", "TabStop", "Text", "ToolTipText"}},
      {"MSDataGridLib.DataGrid",
       {"Appearance", "Caption", "BackColor", "BorderStyle", "DataSource", "Enabled", "ForeColor",
        "TabIndex", "TabStop", "Text", "ToolTipText"}},
      {"Some.Control", properties}};
  for (const auto& [className, expected] : rows) {
    Lines has;
    for (const std::string& property : properties)
      if (hasPreviewProperty(className, property)) has.push_back(property);
    EXPECT_EQ(has, expected) << className;
    for (const char* common : {"Height", "Left", "Tag", "Top", "Visible", "Width"})
      EXPECT_TRUE(hasPreviewProperty(className, common)) << className << " " << common;
  }
}

TEST(PreviewClassProperties, NumbersOutsideTheRangeOfAClassAreNotTaken) {
  EXPECT_TRUE(takesPreviewNumber("VB.Label", "BorderStyle", 1));
  EXPECT_FALSE(takesPreviewNumber("VB.Label", "BorderStyle", 2));
  EXPECT_FALSE(takesPreviewNumber("VB.Label", "BorderStyle", -1));
  EXPECT_TRUE(takesPreviewNumber("VB.Line", "BorderStyle", 6));
  EXPECT_TRUE(takesPreviewNumber("VB.Shape", "BorderStyle", 6));
  EXPECT_FALSE(takesPreviewNumber("VB.Shape", "BorderStyle", 7));
  EXPECT_FALSE(takesPreviewNumber("VB.Label", "BackStyle", 2));
  for (const char* size : {"Height", "Width", "TabIndex"}) {
    EXPECT_TRUE(takesPreviewNumber("VB.TextBox", size, 0)) << size;
    EXPECT_FALSE(takesPreviewNumber("VB.TextBox", size, -1)) << size;
  }
  EXPECT_TRUE(takesPreviewNumber("VB.TextBox", "Left", -1));
  EXPECT_TRUE(takesPreviewNumber("VB.TextBox", "BackColor", -2147483643));
  EXPECT_TRUE(takesPreviewNumber("Some.Control", "BorderStyle", 9));
}

}  // namespace
}  // namespace tarrowin::test
