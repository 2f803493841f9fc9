// What an omitted property is: values of Access's own text exports and of its documentation.
#include <gtest/gtest.h>

#include "access/model/control_defaults.h"
#include "designs/stored_builder.h"

namespace tarrowin {
namespace {

constexpr std::int32_t kWhite = 16777215;

TEST(BuiltInValues, OfAForm) {
  const Completed form(formWith({}), "frmOrders");
  EXPECT_EQ(form.ofDesign("Name"), Value("frmOrders"));
  EXPECT_EQ(form.ofDesign("FormName"), Value("frmOrders"));
  EXPECT_EQ(form.ofDesign("Caption"), Value(""));
  EXPECT_EQ(form.ofDesign("RecordSource"), Value(""));
  EXPECT_EQ(form.ofDesign("DefaultView"), Value(1));  // new forms write 0
  EXPECT_EQ(form.ofDesign("BorderStyle"), Value(2));
  EXPECT_EQ(form.ofDesign("ScrollBars"), Value(3));
  EXPECT_EQ(form.ofDesign("MinMaxButtons"), Value(3));
  EXPECT_EQ(form.ofDesign("ControlBox"), Value(true));
  EXPECT_EQ(form.ofDesign("KeyPreview"), Value(false));
  EXPECT_EQ(form.ofDesign("Width"), Value(7200));
  EXPECT_EQ(form.ofDesign("GridX"), Value(10));
  EXPECT_EQ(form.ofDesign("GridY"), Value(12));
  EXPECT_EQ(form.ofDesign("Picture"), Value("(none)"));
  EXPECT_EQ(form.ofDesign("Visible"), Value(true));
  EXPECT_TRUE(form.ofDesign("PrtDevMode").isNull());
  for (const char* missing : {"BackColor", "Height", "Left", "FontName", "SpecialEffect"})
    EXPECT_FALSE(form.has(form.body.properties, missing)) << missing;
}

TEST(BuiltInValues, OfAReport) {
  StoredDesign stored;
  stored.root = block("Report");
  const Completed report(stored, "rptSales");
  EXPECT_EQ(report.ofDesign("Name"), Value("rptSales"));
  EXPECT_EQ(report.ofDesign("Width"), Value(7200));
  EXPECT_EQ(report.ofDesign("PageHeader"), Value(0));
  EXPECT_EQ(report.ofDesign("GrpKeepTogether"), Value(0));
  EXPECT_EQ(report.ofDesign("BorderStyle"), Value(2));
  EXPECT_EQ(report.ofDesign("FontName"), Value("MS Sans Serif"));
  EXPECT_EQ(report.ofDesign("FontSize"), Value(8));
  for (const char* missing : {"FontWeight", "BackColor", "KeyPreview"})
    EXPECT_FALSE(report.has(report.body.properties, missing)) << missing;
}

// The window's place in design view is kept under names that a report has for something else.
TEST(BuiltInValues, TheWindowOfAReportIsNotItsPlace) {
  StoredDesign stored;
  stored.root = block("Report", {kept("Left", 450), kept("Top", 300), kept("Right", 9000)});
  const Completed report(stored);
  EXPECT_EQ(report.ofDesign("Left"), Value(0));
  EXPECT_EQ(report.ofDesign("Top"), Value(0));
}

TEST(BuiltInValues, OfASection) {
  const Completed form(formWith({}));
  ASSERT_EQ(form.body.sections.size(), 1u);
  const PropertyBag& detail = form.body.sections[0].properties;
  EXPECT_EQ(form.value(detail, "Name"), Value("Detail"));
  EXPECT_EQ(form.value(detail, "EventProcPrefix"), Value("Detail"));
  EXPECT_EQ(form.value(detail, "Height"), Value(1440));
  EXPECT_EQ(form.value(detail, "BackColor"), Value(kWhite));
  EXPECT_EQ(form.value(detail, "KeepTogether"), Value(false));  // new sections write the flag
  EXPECT_EQ(form.value(detail, "Visible"), Value(true));
  EXPECT_FALSE(form.has(detail, "Width"));
}

TEST(BuiltInValues, OfAGroupLevel) {
  StoredDesign stored;
  stored.root = block("Report", {}, {block("BreakLevel", {kept("ControlSource", "Country")})});
  const Completed report(stored);
  ASSERT_EQ(report.body.groupLevels.size(), 1u);
  const PropertyBag& level = report.body.groupLevels[0];
  EXPECT_EQ(report.value(level, "ControlSource"), Value("Country"));
  EXPECT_EQ(report.value(level, "SortOrder"), Value(false));
  EXPECT_EQ(report.value(level, "GroupHeader"), Value(false));
  EXPECT_EQ(report.value(level, "GroupOn"), Value(0));
  EXPECT_EQ(report.value(level, "GroupInterval"), Value(1));
}

struct ControlValue {
  const char* kind;
  const char* property;
  Value value;
};

TEST(BuiltInValues, OfControls) {
  const std::vector<ControlValue> expected = {
      {"Label", "Left", 0},
      {"Label", "Top", 0},
      {"Label", "FontName", "MS Sans Serif"},
      {"Label", "FontSize", 8},
      {"Label", "BackStyle", 1},
      {"Label", "OldBorderStyle", 0},
      {"TextBox", "Width", 1440},
      {"TextBox", "Height", 240},
      {"TextBox", "OldBorderStyle", 1},
      {"TextBox", "BackColor", kWhite},
      {"TextBox", "ScrollBars", 0},
      {"TextBox", "DecimalPlaces", 255},
      {"CommandButton", "FontName", "System"},
      {"CommandButton", "FontSize", 10},
      {"CommandButton", "FontWeight", 700},
      {"CommandButton", "Height", 360},
      {"ToggleButton", "FontWeight", 700},
      {"ToggleButton", "Width", 720},
      {"ComboBox", "RowSourceType", "Table/Query"},
      {"ComboBox", "ListRows", 8},
      {"ComboBox", "AutoExpand", true},
      {"ComboBox", "BoundColumn", 1},
      {"ListBox", "Height", 1440},
      {"CheckBox", "Width", 260},
      {"OptionButton", "Height", 240},
      {"OptionGroup", "BackStyle", 0},
      {"Rectangle", "Height", 720},
      {"Line", "LineSlant", false},
      {"Line", "Height", 0},
      {"Image", "SizeMode", 0},
      {"Subform", "CanGrow", true},
      {"Subform", "SourceObject", ""},
      {"UnboundObjectFrame", "Enabled", false},
      {"UnboundObjectFrame", "Locked", true},
      {"UnboundObjectFrame", "OldBorderStyle", 0},
      {"UnboundObjectFrame", "OLETypeAllowed", 2},
      {"CustomControl", "Enabled", false},
      {"CustomControl", "TabStop", true},
      {"Tab", "BackStyle", 1},
      {"Tab", "Style", 0},
      {"Page", "Caption", ""},
  };
  for (const ControlValue& one : expected) {
    const Completed form(formWith({named(one.kind, "c")}));
    EXPECT_EQ(form.of("c", one.property), one.value) << one.kind << "." << one.property;
  }
}

TEST(BuiltInValues, MembersThatAControlLacks) {
  const std::vector<std::pair<const char*, std::vector<const char*>>> lacking = {
      {"Label", {"ControlSource", "Enabled", "Locked", "TabIndex", "TabStop"}},
      {"PageBreak", {"Width", "Height"}},
      {"Line", {"BackColor", "ForeColor", "FontName", "ControlTipText"}},
      {"Rectangle", {"ForeColor", "FontName"}},
      {"Subform", {"ControlTipText", "HelpContextId", "BackColor"}},
      {"CommandButton", {"BackColor", "BorderStyle", "SpecialEffect", "TextAlign"}},
      {"Tab", {"BackColor", "ForeColor", "Locked"}},
      {"Page", {"BackColor", "FontName", "TabIndex"}},
      {"CustomControl", {"SizeMode", "AutoActivate", "OLETypeAllowed", "DisplayType", "Format"}},
  };
  for (const auto& [kind, members] : lacking) {
    // A block may keep such a keyword all the same.
    std::vector<StoredProperty> properties;
    for (const char* member : members) properties.push_back(kept(member, 1));
    const Completed form(formWith({named(kind, "c", properties)}));
    for (const char* member : members) EXPECT_FALSE(form.hasOf("c", member)) << kind << member;
  }
}

// What copies controls goes through the properties of both by number.
TEST(BuiltInValues, PropertiesStandInTheOrderOfANewControl) {
  for (const auto& [kind, type] : {std::pair{"TextBox", 109}, std::pair{"Tab", 123}}) {
    const Completed form(formWith({named(kind, "c", {kept("Tag", "t"), kept("Left", 5)})}));
    std::vector<std::string> expected;
    for (const PropertyDefault& row : defaultsOf(type)) expected.emplace_back(row.name);
    EXPECT_EQ(form.propertyNames(form.control("c").properties), expected);
  }
}

TEST(BuiltInValues, ListRowsOfALaterFormat) {
  StoredDesign stored =
      formWith({named("ComboBox", "plain"), named("ComboBox", "own", {kept("ListRows", 5)})});
  stored.laterFormat = true;
  const Completed form(stored);
  EXPECT_EQ(form.of("plain", "ListRows"), Value(16));
  EXPECT_EQ(form.of("own", "ListRows"), Value(5));
  stored.root.children.insert(stored.root.children.begin(),
                              block("ComboBox", {kept("ListRows", 12)}));
  EXPECT_EQ(Completed(stored).of("plain", "ListRows"), Value(12));
}

}  // namespace
}  // namespace tarrowin
