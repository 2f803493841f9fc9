// CreateControl: names, properties, parents and places of new controls, and what can be set on
// them.
#include "access/access_fixture.h"
#include "access/model/control_defaults.h"

namespace tarrowin {
namespace {

constexpr std::string_view kForms = R"({
  "snapshot": 1,
  "forms": [
    {"name": "frmMain",
     "sections": [{"number": 0, "properties": {"Name": "Detail", "Height": 2000}},
                  {"number": 1, "properties": {"Name": "FormHeader", "Height": 500}}],
     "controls": [{"name": "txtA", "type": 109, "properties": {"Section": 0, "TabIndex": 0}},
                  {"name": "text2", "type": 109, "properties": {"Section": 0}}]}]
})";

constexpr std::string_view kTemplates = R"({
  "snapshot": 1,
  "forms": [{"name": "frmMain"}],
  "templates": {"controls": {"123": {"Name": "TabCtl0", "Top": 60, "Left": 0, "Style": 1},
                             "109": {"Name": "Text0", "ControlType": 109, "Section": 0, "Tag": "t"},
                             "126": {"Caption": "later"}}}
})";

class NewControlTest : public AccessTest {
 protected:
  NewControlTest() { openNewForm(kForms); }
  void openNewForm(std::string_view recording) {
    openRecording(recording);
    form = createForm("frmMain");
  }
  ObjectRef create(std::int32_t type, std::int32_t section = 0, const std::string& parent = "") {
    return toObject(call(application, "CreateControl", {"Form1", type, section, parent}));
  }
  ObjectRef createAt(std::int32_t type, const std::string& parent, std::int32_t left,
                     std::int32_t top, std::int32_t width, std::int32_t height) {
    return toObject(call(application, "CreateControl",
                         {"Form1", type, 0, parent, Value(), left, top, width, height}));
  }
  ObjectRef control(const std::string& name) { return child(form, "Controls", {name}); }
  // The names of all controls, with a blank behind each.
  std::string names() const {
    std::string result;
    const ObjectRef controls = child(form, "Controls");
    for (std::int32_t i = 0; i < number(controls, "Count"); ++i)
      result += text(item(controls, i), "Name") + " ";
    return result;
  }
  std::string parentOf(const ObjectRef& object) { return text(child(object, "Parent"), "Name"); }

  ObjectRef form;
};

TEST_F(NewControlTest, NamesAreNumberedOnOverAllControls) {
  create(109);
  create(100);
  create(123);
  create(104);
  EXPECT_EQ(names(), "Text0 Label1 TabCtl2 Page3 Page4 Command5 ");
}

TEST_F(NewControlTest, NumberOfATakenNameIsSkipped) {
  const ObjectRef main = openForm("frmMain");
  const ObjectRef added = toObject(call(application, "CreateControl", {"frmMain", 109, 0}));
  EXPECT_EQ(text(added, "Name"), "Text3");
}

TEST_F(NewControlTest, TabControlOfANewFormHasPage1AndPage2) {
  const ObjectRef tab = toObject(call(application, "CreateControl", {"Form1", 123, 0}));
  EXPECT_EQ(names(), "TabCtl0 Page1 Page2 ");
  EXPECT_EQ(number(tab, "Top"), 0);
  EXPECT_EQ(number(tab, "Width"), 4320);
  EXPECT_EQ(number(tab, "Height"), 2880);
  const ObjectRef pages = child(tab, "Pages");
  ASSERT_EQ(number(pages, "Count"), 2);
  EXPECT_EQ(number(item(pages, 0), "PageIndex"), 0);
  EXPECT_EQ(number(item(pages, 1), "PageIndex"), 1);
  EXPECT_EQ(number(item(pages, 1), "Section"), 0);
  EXPECT_EQ(parentOf(item(pages, 1)), "TabCtl0");
}

TEST_F(NewControlTest, PagesHaveTheirNamesWhateverTheTemplateOfAPageIsCalled) {
  for (const std::string name : {"General", "Page1", "Page7"}) {
    openNewForm(R"({"snapshot": 1, "forms": [{"name": "frmMain"}],
                    "templates": {"controls": {"124": {"Name": ")" +
                name + R"("}}}})");
    create(123);
    EXPECT_EQ(names(), "TabCtl0 Page1 Page2 ") << name;
  }
}

TEST_F(NewControlTest, AParentThatBearsTheFormsNameIsTheForm) {
  create(107);
  control("Frame0")->put("Name", "frmMain");
  EXPECT_EQ(parentOf(create(105, 0, "frmMain")), "Form1");
}

TEST_F(NewControlTest, DefaultsComeInTheOrderOfTheTypeLibrary) {
  const ObjectRef box = create(109);
  const ObjectRef properties = child(box, "Properties");
  EXPECT_EQ(text(item(properties, 0), "Name"), "EventProcPrefix");
  EXPECT_EQ(text(item(properties, 1), "Name"), "Name");
  EXPECT_EQ(text(item(properties, 2), "Name"), "ControlType");
  EXPECT_EQ(text(item(properties, 1), "Value"), "Text0");
  EXPECT_EQ(number(item(properties, 2), "Value"), 109);
  EXPECT_EQ(number(properties, "Count"), 98);
  EXPECT_EQ(text(box, "FontName"), "MS Sans Serif");
  EXPECT_TRUE(toBoolean(get(box, "Enabled")));
  EXPECT_EQ(text(box, "ControlName"), "Text0");
  EXPECT_EQ(errorOf([&] { get(box, "Nonsense"); }), 438);
}

TEST_F(NewControlTest, EveryTypeOfAccess2003CanBeMade) {
  for (const std::int32_t type :
       {100, 101, 102, 103, 104, 105, 106, 107, 108, 109, 110, 111, 112, 114, 118, 119, 122, 123}) {
    const ObjectRef made = create(type);
    EXPECT_EQ(number(made, "ControlType"), type);
    EXPECT_EQ(number(made, "Section"), 0);
    EXPECT_EQ(number(child(made, "Properties"), "Count"),
              static_cast<std::int32_t>(defaultsOf(type).size()) -
                  (type == 105 || type == 106 || type == 122 ? 1 : 0));
  }
}

TEST_F(NewControlTest, EachDefaultFitsItsOwnType) {
  std::size_t properties = 0;
  for (std::int32_t type = 100; type <= 124; ++type)
    for (const PropertyDefault& row : defaultsOf(type)) {
      ++properties;
      const auto kind = row.value.kind();
      const bool isText = row.type == PropertyType::kText,
                 isBytes = row.type == PropertyType::kBytes;
      if (kind == DefaultValue::Kind::kText) {
        EXPECT_TRUE(isText) << type << row.name;
      }
      if (kind == DefaultValue::Kind::kBoolean) {
        EXPECT_EQ(row.type, PropertyType::kBoolean) << type << row.name;
      }
      if (kind == DefaultValue::Kind::kNumber) {
        EXPECT_FALSE(isText || isBytes || row.type == PropertyType::kBoolean) << type << row.name;
      }
      EXPECT_EQ(kind == DefaultValue::Kind::kNull, isBytes) << type << row.name;
    }
  EXPECT_EQ(properties, 965u);
}

TEST_F(NewControlTest, PlaceAndColumnAreThoseOfTheArguments) {
  const ObjectRef box = toObject(
      call(application, "CreateControl", {"form1", 109, 1, "", "OrderID", 100, 200, 1500, 250}));
  EXPECT_EQ(number(box, "Section"), 1);
  EXPECT_EQ(text(box, "ControlSource"), "OrderID");
  EXPECT_EQ(number(box, "Left"), 100);
  EXPECT_EQ(number(box, "Top"), 200);
  EXPECT_EQ(number(box, "Width"), 1500);
  EXPECT_EQ(number(box, "Height"), 250);
  EXPECT_EQ(number(child(child(form, "Section", {1}), "Controls"), "Count"), 1);
}

TEST_F(NewControlTest, PageBreakHasNoSize) {
  const ObjectRef made = createAt(118, "", 0, 700, 50, 50);
  EXPECT_EQ(number(made, "Top"), 700);
  EXPECT_EQ(errorOf([&] { get(made, "Width"); }), 438);
}

TEST_F(NewControlTest, TabIndexGoesOnInTheSectionOrPage) {
  EXPECT_EQ(number(create(109), "TabIndex"), 0);
  EXPECT_EQ(number(create(109, 1), "TabIndex"), 0);
  create(100);
  EXPECT_EQ(number(create(123), "TabIndex"), 1);
  EXPECT_EQ(number(create(109, 0, "Page4"), "TabIndex"), 0);
  EXPECT_EQ(number(create(109, 0, "Page4"), "TabIndex"), 1);
  EXPECT_EQ(number(create(109, 0, "Page5"), "TabIndex"), 0);
}

TEST_F(NewControlTest, ParentIsAControlOrAForm) {
  create(123);
  const ObjectRef onPage = create(109, 0, "page2");
  EXPECT_EQ(parentOf(onPage), "Page2");
  EXPECT_EQ(number(child(control("Page2"), "Controls"), "Count"), 1);
  EXPECT_EQ(parentOf(create(100, 0, text(onPage, "Name"))), "Text3");
  EXPECT_EQ(parentOf(create(109, 0, "Form1")), "Form1");
  EXPECT_EQ(parentOf(create(109, 0, "frmMain")), "Form1");  // the template's name
}

TEST_F(NewControlTest, ControlOnAPageIsInItsSection) {
  create(123, 1);
  EXPECT_EQ(number(create(109, 0, "Page1"), "Section"), 1);
}

TEST_F(NewControlTest, ParentThatIsNotThereMakesNoControl) {
  create(123);
  EXPECT_EQ(errorOf([&] { create(109, 0, "Page3"); }), 2467);
  EXPECT_EQ(names(), "TabCtl0 Page1 Page2 ");
}

TEST_F(NewControlTest, WhatCannotStandInAParent) {
  create(123);
  create(107);
  create(100);
  create(101);
  const std::string before = names();
  EXPECT_EQ(before, "TabCtl0 Page1 Page2 Frame3 Label4 Box5 ");
  EXPECT_EQ(errorOf([&] { create(123, 0, "Page1"); }), 2151);
  EXPECT_EQ(errorOf([&] { create(124, 0, "Page1"); }), 2151);
  EXPECT_EQ(errorOf([&] { create(118, 0, "Page1"); }), 2151);
  EXPECT_EQ(errorOf([&] { create(124); }), 2151);
  EXPECT_EQ(errorOf([&] { create(109, 0, "TabCtl0"); }), 2151);
  EXPECT_EQ(errorOf([&] { create(109, 0, "Frame3"); }), 2151);
  EXPECT_EQ(errorOf([&] { create(109, 0, "Label4"); }), 2150);
  EXPECT_EQ(errorOf([&] { create(100, 0, "Box5"); }), 2150);
  EXPECT_EQ(names(), before);
  EXPECT_EQ(text(create(124, 0, "TabCtl0"), "Name"), "Page6");
  EXPECT_EQ(number(control("Page6"), "PageIndex"), 2);
}

TEST_F(NewControlTest, MembersOfAnOptionGroupHaveValuesInPlaceOfSources) {
  create(107);
  EXPECT_EQ(number(create(105, 0, "Frame0"), "OptionValue"), 1);
  const ObjectRef second = create(106, 0, "Frame0");
  EXPECT_EQ(number(second, "OptionValue"), 2);
  EXPECT_EQ(errorOf([&] { get(second, "ControlSource"); }), 438);
  const ObjectRef outside = create(106);
  EXPECT_EQ(errorOf([&] { get(outside, "OptionValue"); }), 438);
  EXPECT_EQ(text(outside, "ControlSource"), "");
}

TEST_F(NewControlTest, UnknownTypeSectionFormAndPlace) {
  EXPECT_EQ(errorOf([&] { create(99); }), 2149);
  EXPECT_EQ(errorOf([&] { create(0); }), 2149);
  EXPECT_EQ(errorOf([&] { create(1); }), 2149);
  EXPECT_EQ(errorOf([&] { create(109, 2); }), 2462);
  EXPECT_EQ(errorOf([&] { call(application, "CreateControl", {"frmMain", 109, 0}); }), 2450);
  EXPECT_EQ(errorOf([&] { createAt(109, "", -1, 0, 100, 100); }), 2100);
  EXPECT_EQ(errorOf([&] { createAt(109, "", 31000, 0, 681, 100); }), 2100);
  EXPECT_EQ(errorOf([&] { createAt(109, "", 0, 100000, 100, 100); }), 2100);
  EXPECT_EQ(names(), "");
  EXPECT_EQ(number(createAt(109, "", 31000, 0, 680, 100), "Left"), 31000);
}

TEST_F(NewControlTest, TemplateOfTheRecordingWins) {
  openNewForm(kTemplates);
  const ObjectRef tab = toObject(call(application, "CreateControl", {"Form1", 123, 0}));
  EXPECT_EQ(names(), "TabCtl0 Page1 Page2 ");
  EXPECT_EQ(number(tab, "Top"), 60);
  EXPECT_EQ(number(tab, "Style"), 1);
  EXPECT_EQ(number(tab, "Section"), 0);
  EXPECT_EQ(errorOf([&] { get(tab, "FontName"); }), 438);
  // Its own properties in their order, ControlType in front since it is not among them.
  const ObjectRef properties = child(tab, "Properties");
  EXPECT_EQ(text(item(properties, 0), "Name"), "ControlType");
  EXPECT_EQ(text(item(properties, 1), "Name"), "Name");
  EXPECT_EQ(text(item(properties, 2), "Name"), "Top");
  EXPECT_EQ(text(create(109), "Name"), "Text0");
  const ObjectRef next = createAt(109, "", 10, 20, 30, 40);
  EXPECT_EQ(text(next, "Name"), "Text4");
  EXPECT_EQ(text(next, "Tag"), "t");
  EXPECT_EQ(number(next, "Height"), 40);
  EXPECT_EQ(text(child(next, "Properties", {0}), "Value"), "Text4");
}

TEST_F(NewControlTest, TemplateOfALaterTypeMakesItKnown) {
  openNewForm(kTemplates);
  EXPECT_EQ(text(create(126), "Caption"), "later");
  EXPECT_EQ(number(create(126), "ControlType"), 126);
}

TEST_F(NewControlTest, PropertiesAreWrittenByPositionAndByName) {
  const ObjectRef box = create(109);
  const ObjectRef properties = child(box, "Properties");
  bool written = false;
  for (std::int32_t i = 0; i < number(properties, "Count"); ++i)
    if (text(item(properties, i), "Name") == "Tag") {
      item(properties, i)->put("Value", "by position");
      written = true;
    }
  EXPECT_TRUE(written);
  EXPECT_EQ(text(box, "Tag"), "by position");
  child(box, "Properties", {"top"})->put("", 77);
  EXPECT_EQ(number(box, "Top"), 77);
  EXPECT_EQ(number(item(properties, "Top"), "Value"), 77);
  box->put("Tag", "by name");
  EXPECT_EQ(text(item(properties, "Tag"), "Value"), "by name");
  EXPECT_EQ(errorOf([&] { item(properties, "Tag")->put("Name", "x"); }), 438);
  EXPECT_EQ(errorOf([&] { get(properties, "", {98}); }), 2480);
  EXPECT_EQ(errorOf([&] { get(properties, "", {"None"}); }), 2455);
}

TEST_F(NewControlTest, SettingTheNameRenamesTheControl) {
  const ObjectRef box = create(109);
  create(109);
  child(box, "Properties", {1})->put("Value", "1st name");
  EXPECT_EQ(names(), "1st name Text1 ");
  EXPECT_EQ(text(control("1ST NAME"), "ControlName"), "1st name");
  EXPECT_EQ(text(box, "EventProcPrefix"), "Ctl1st_name");
  box->put("ControlName", "txtB");
  EXPECT_EQ(text(box, "Name"), "txtB");
  EXPECT_EQ(errorOf([&] { box->put("Name", "TEXT1"); }), 2104);
  EXPECT_EQ(errorOf([&] { box->put("Name", ""); }), 2101);
  EXPECT_EQ(errorOf([&] { box->put("Name", std::string(65, 'x')); }), 2101);
  box->put("Name", "TXTB");
  EXPECT_EQ(names(), "TXTB Text1 ");
}

TEST_F(NewControlTest, ReadOnlyPropertiesRaise2135) {
  create(123);
  EXPECT_EQ(errorOf([&] { control("Page1")->put("ControlType", 109); }), 2135);
  EXPECT_EQ(errorOf([&] { control("Page1")->put("EventProcPrefix", "x"); }), 2135);
  EXPECT_EQ(errorOf([&] { control("Page1")->put("InSelection", true); }), 2135);
  EXPECT_EQ(errorOf([&] { control("Page1")->put("PageIndex", 1); }), 2135);
  EXPECT_EQ(errorOf([&] { control("Page1")->put("FontName", "x"); }), 438);
}

TEST_F(NewControlTest, ValuesTakeTheTypeOfTheirProperty) {
  const ObjectRef box = create(109);
  box->put("Left", "120");
  EXPECT_EQ(get(box, "Left"), Value(120));
  box->put("Enabled", 0);
  EXPECT_EQ(get(box, "Enabled"), Value(false));
  box->put("FontBold", true);
  EXPECT_EQ(get(box, "FontBold"), Value(-1));
  box->put("Tag", Value::Null{});
  EXPECT_EQ(get(box, "Tag"), Value(""));
  box->put("Tag", 5);
  EXPECT_EQ(get(box, "Tag"), Value("5"));
}

TEST_F(NewControlTest, ValuesOutsideTheirRangeAreRefused) {
  const ObjectRef box = create(111);
  const auto refusal = [&](const char* name, const Value& value) {
    return errorOf([&] { box->put(name, value); });
  };
  EXPECT_EQ(refusal("FontSize", 128), 2125);
  EXPECT_EQ(refusal("ColumnCount", 0), 2126);
  EXPECT_EQ(refusal("Top", 31681), 2101);
  EXPECT_EQ(refusal("Top", 40000), 2101);
  EXPECT_EQ(refusal("Top", 3e9), 2101);
  EXPECT_EQ(refusal("SpecialEffect", 256), 2101);
  EXPECT_EQ(refusal("Top", "high"), 2113);
  EXPECT_EQ(refusal("Top", Value::Null{}), 2113);
  EXPECT_EQ(refusal("Visible", "perhaps"), 2113);
  EXPECT_EQ(refusal("Tag", form), 2448);
  EXPECT_EQ(number(box, "Top"), 0);
}

TEST_F(NewControlTest, OleDataOfFramesAndCustomControls) {
  for (const std::int32_t type : {114, 119}) {
    const ObjectRef made = create(type);
    EXPECT_TRUE(get(made, "OleData").isNull());
    made->put("OleData", Bytes{1, 2, 3});
    child(made, "Properties", {"Top"})->put("Value", 300);
    EXPECT_EQ(get(made, "OleData"), Value(Bytes{1, 2, 3}));
    EXPECT_EQ(number(made, "Top"), 300);
    made->put("OleData", Value::Null{});
    EXPECT_TRUE(get(made, "OleData").isNull());
  }
}

TEST_F(NewControlTest, ControlsAreThereAfterReopening) {
  create(123);
  const ObjectRef frame = create(114, 0, "Page2");
  frame->put("OleData", Bytes{0, 255});
  frame->put("Name", "ole \x80");
  const ObjectRef label = createAt(100, "Form1", 1, 2, 3, 4);
  label->put("Caption", "A \"quoted\" text\r\n\x80");
  closeAndSave("Form1");
  openFile(pathOf("test.access.json"));
  form = openForm("Form1");
  EXPECT_EQ(names(), "TabCtl0 Page1 Page2 ole \x80 Label4 ");
  EXPECT_EQ(parentOf(control("ole \x80")), "Page2");
  EXPECT_EQ(get(control("ole \x80"), "OleData"), Value(Bytes{0, 255}));
  EXPECT_EQ(text(control("Label4"), "Caption"), "A \"quoted\" text\r\n\x80");
  EXPECT_EQ(get(control("Label4"), "Left"), Value(1));
  EXPECT_EQ(get(control("Label4"), "Visible"), Value(true));
  EXPECT_EQ(text(child(control("Label4"), "Properties", {0}), "Name"), "EventProcPrefix");
  EXPECT_EQ(number(child(control("TabCtl0"), "Pages"), "Count"), 2);
}

TEST_F(NewControlTest, ClosedFormTakesNoControls) {
  const ObjectRef box = create(109);
  const ObjectRef property = child(box, "Properties", {"Tag"});
  call(doCmd, "Close", {2, "Form1", 2});
  EXPECT_EQ(errorOf([&] { create(109); }), 2450);
  EXPECT_EQ(errorOf([&] { box->put("Tag", "x"); }), 2467);
  EXPECT_EQ(errorOf([&] { property->put("Value", "x"); }), 2467);
}

TEST_F(NewControlTest, ThousandControlsTakeNoTimeWorthMentioning) {
  for (int i = 0; i < 1000; ++i)
    toObject(call(application, "CreateControl", {"Form1", 109, 0}))
        ->put("Name", "txt" + std::to_string(i));
  EXPECT_EQ(number(form, "Count"), 1000);
  EXPECT_EQ(number(control("txt999"), "TabIndex"), 999);
}

}  // namespace
}  // namespace tarrowin
