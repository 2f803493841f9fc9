// Values that a design keeps: its own, those of its default styles, flags, and what follows from
// them.
#include <gtest/gtest.h>

#include "designs/stored_builder.h"

namespace tarrowin {
namespace {

TEST(KeptValues, TheControlsOwnComesBeforeTheStyleAndTheStyleBeforeTheBuiltIn) {
  const Completed form(formWith({named("TextBox", "own", {kept("FontSize", 12)}),
                                 named("TextBox", "styled"), named("Label", "other")},
                                {block("TextBox", {kept("FontSize", 9)})}));
  EXPECT_EQ(form.of("own", "FontSize"), Value(12));
  EXPECT_EQ(form.of("styled", "FontSize"), Value(9));
  EXPECT_EQ(form.of("other", "FontSize"), Value(8));
}

TEST(KeptValues, AFlagOfAControlTurnsOverWhatTheStyleSays) {
  const Blocks labels = {named("Label", "plain"), named("Label", "turned", {flag("FontItalic")})};
  const Completed styled(formWith(labels, {block("Label", {flag("FontItalic")})}));
  EXPECT_EQ(styled.of("plain", "FontItalic"), Value(true));
  EXPECT_EQ(styled.of("turned", "FontItalic"), Value(false));
  const Completed bare(formWith(labels));
  EXPECT_EQ(bare.of("plain", "FontItalic"), Value(false));
  EXPECT_EQ(bare.of("turned", "FontItalic"), Value(true));
}

TEST(KeptValues, AFlagTurnsOverABuiltInTrue) {
  StoredDesign stored =
      formWith({named("CustomControl", "ocx", {flag("Enabled"), flag("Visible")})});
  stored.root.properties = {flag("ControlBox"), flag("KeyPreview"), flag("Visible")};
  stored.root.children[0].properties.push_back(flag("Visible"));
  const Completed form(stored);
  EXPECT_EQ(form.ofDesign("ControlBox"), Value(false));
  EXPECT_EQ(form.ofDesign("KeyPreview"), Value(true));
  EXPECT_EQ(form.of("ocx", "Enabled"), Value(true));
  EXPECT_EQ(form.of("ocx", "Visible"), Value(false));
  EXPECT_EQ(form.value(form.body.sections[0].properties, "Visible"), Value(false));
}

TEST(KeptValues, AFlagThatStandsTwiceCountsOnce) {
  const Completed form(formWith({named("Label", "l", {flag("FontItalic"), flag("FontItalic")})}));
  EXPECT_EQ(form.of("l", "FontItalic"), Value(true));
}

TEST(KeptValues, OfTwoValuesTheLastCounts) {
  const Completed form(formWith({named("Label", "l", {kept("Left", 10), kept("Left", 20)})}));
  EXPECT_EQ(form.of("l", "Left"), Value(20));
}

TEST(KeptValues, BooleansOfLaterVersionsAreNumbers) {
  StoredDesign stored = formWith({});
  stored.root.properties = {kept("Moveable", 0), kept("AllowFormView", 255)};
  const Completed form(stored);
  EXPECT_EQ(form.ofDesign("Moveable"), Value(false));
  EXPECT_EQ(form.ofDesign("AllowFormView"), Value(true));
}

TEST(KeptValues, BorderStyleOfAControlIsKeptAsOldBorderStyle) {
  const Completed form(formWith({named("TextBox", "a", {kept("OldBorderStyle", 3)}),
                                 named("TextBox", "b", {kept("BorderStyle", 3)})}));
  EXPECT_EQ(form.of("a", "BorderStyle"), Value(3));
  EXPECT_EQ(form.of("a", "OldBorderStyle"), Value(3));
  EXPECT_EQ(form.of("b", "BorderStyle"), Value(1));
}

TEST(KeptValues, BorderStyleOfAFormIsItsOwn) {
  StoredDesign stored = formWith({});
  stored.root.properties = {kept("BorderStyle", 3)};
  EXPECT_EQ(Completed(stored).ofDesign("BorderStyle"), Value(3));
}

TEST(KeptValues, TheFileCountsColumnsFromZero) {
  const Completed form(
      formWith({named("ComboBox", "omitted"), named("ComboBox", "second", {kept("BoundColumn", 1)}),
                named("ListBox", "index", {kept("BoundColumn", -1)}),
                named("TextBox", "first", {kept("ColumnOrder", 0)}),
                named("TextBox", "huge", {kept("ColumnOrder", INT32_MAX)})}));
  EXPECT_EQ(form.of("omitted", "BoundColumn"), Value(1));
  EXPECT_EQ(form.of("second", "BoundColumn"), Value(2));
  EXPECT_EQ(form.of("index", "BoundColumn"), Value(0));
  EXPECT_EQ(form.of("omitted", "ColumnOrder"), Value(0));
  EXPECT_EQ(form.of("first", "ColumnOrder"), Value(1));
  EXPECT_EQ(form.of("huge", "ColumnOrder"), Value(0));
}

TEST(KeptValues, MinMaxButtonsComeFromTwoFlags) {
  const auto buttons = [](std::vector<StoredProperty> properties) {
    StoredDesign stored = formWith({});
    stored.root.properties = std::move(properties);
    return Completed(stored).ofDesign("MinMaxButtons");
  };
  EXPECT_EQ(buttons({}), Value(3));
  EXPECT_EQ(buttons({flag("MaxButton")}), Value(1));
  EXPECT_EQ(buttons({flag("MinButton")}), Value(2));
  EXPECT_EQ(buttons({flag("MinButton"), flag("MaxButton")}), Value(0));
}

TEST(KeptValues, RecordsetTypeIsKeptAsAllowUpdating) {
  StoredDesign stored = formWith({});
  stored.root.properties = {kept("AllowUpdating", 2)};
  EXPECT_EQ(Completed(stored).ofDesign("RecordsetType"), Value(2));
}

TEST(KeptValues, FontBoldFollowsFromTheWeight) {
  const Completed form(formWith({named("Label", "bold", {kept("FontWeight", 700)}),
                                 named("Label", "demi", {kept("FontWeight", 699)}),
                                 named("CommandButton", "button"), named("TextBox", "styled")},
                                {block("TextBox", {kept("FontWeight", 800)})}));
  EXPECT_EQ(form.of("bold", "FontBold"), Value(-1));
  EXPECT_EQ(form.of("demi", "FontBold"), Value(0));
  EXPECT_EQ(form.of("button", "FontBold"), Value(-1));
  EXPECT_EQ(form.of("styled", "FontBold"), Value(-1));
}

TEST(KeptValues, EventProcPrefixIsTheNameAsAnIdentifier) {
  const Completed form(
      formWith({named("TextBox", "Plain_1"), named("TextBox", "Order No."), named("TextBox", "2nd"),
                named("TextBox", "odd one", {kept("EventProcPrefix", "Ctl99")})}));
  EXPECT_EQ(form.of("Plain_1", "EventProcPrefix"), Value("Plain_1"));
  EXPECT_EQ(form.of("Order No.", "EventProcPrefix"), Value("Order_No_"));
  EXPECT_EQ(form.of("2nd", "EventProcPrefix"), Value("Ctl2nd"));
  EXPECT_EQ(form.of("odd one", "EventProcPrefix"), Value("Ctl99"));
  EXPECT_EQ(form.of("Plain_1", "ControlName"), Value("Plain_1"));
}

// An omitted prefix is the name itself, whose letters may be of any code page: here of UTF-8, in
// which recordings are made, and of Cyrillic and Polish databases.
TEST(KeptValues, EventProcPrefixKeepsLettersBeyondAscii) {
  const std::string_view names[] = {"R\xC3\xB3tulo8", "Gr\xC3\xB6ss", "\xB8lka", "\x8Cr\xF3t"};
  for (const std::string_view name : names) {
    const Completed form(formWith({named("Label", std::string(name).c_str())}));
    EXPECT_EQ(form.of(name, "EventProcPrefix"), Value(std::string(name)));
  }
  const Completed odd(formWith({named("Label", "A\xC3\xB1o 1.")}));
  EXPECT_EQ(odd.of("A\xC3\xB1o 1.", "EventProcPrefix"), Value("A\xC3\xB1o_1_"));
}

TEST(KeptValues, ListWidthIsAText) {
  const Completed form(
      formWith({named("ComboBox", "c", {kept("ListWidth", 2880)}), named("ComboBox", "omitted")}));
  EXPECT_EQ(form.of("c", "ListWidth"), Value("2880"));
  EXPECT_EQ(form.of("omitted", "ListWidth"), Value("0"));
}

TEST(KeptValues, PictureTexts) {
  const Bytes pixels = {40, 0, 0, 0};
  const Completed form(
      formWith({named("Image", "none"), named("Image", "bytes", {kept("PictureData", pixels)}),
                named("Image", "later", {kept("ImageData", pixels)}),
                named("Image", "file", {kept("Picture", "C:\\a.bmp"), kept("PictureData", pixels)}),
                named("Image", "emptied", {kept("PictureData", Bytes{})}), named("Page", "page")}));
  EXPECT_EQ(form.of("none", "Picture"), Value("(none)"));
  EXPECT_EQ(form.of("bytes", "Picture"), Value("(bitmap)"));
  EXPECT_EQ(form.of("later", "Picture"), Value("(bitmap)"));
  EXPECT_EQ(form.of("file", "Picture"), Value("C:\\a.bmp"));
  EXPECT_EQ(form.of("emptied", "Picture"), Value("(none)"));
  EXPECT_EQ(form.of("page", "Picture"), Value("(none)"));
  EXPECT_EQ(form.of("bytes", "PictureData"), Value(pixels));
  EXPECT_TRUE(form.of("none", "PictureData").isNull());
  EXPECT_TRUE(form.of("emptied", "PictureData").isNull());
}

TEST(KeptValues, OleTypeTellsWhatAFrameHolds) {
  const Bytes object = {1, 2, 3};
  const Completed form(formWith(
      {named("UnboundObjectFrame", "empty"),
       named("UnboundObjectFrame", "embedded", {kept("OleData", object)}),
       named("UnboundObjectFrame", "linked", {kept("OleData", object), kept("SourceDoc", "a.xls")}),
       named("CustomControl", "ocx",
             {kept("OLEClass", "TreeCtrl"), kept("Class", "MSComctlLib.TreeCtrl.2")})}));
  EXPECT_EQ(form.of("empty", "OLEType"), Value(3));
  EXPECT_EQ(form.of("embedded", "OLEType"), Value(1));
  EXPECT_EQ(form.of("linked", "OLEType"), Value(0));
  EXPECT_EQ(form.of("ocx", "OLEClass"), Value("TreeCtrl"));
  EXPECT_EQ(form.of("ocx", "Class"), Value("MSComctlLib.TreeCtrl.2"));
  EXPECT_FALSE(form.hasOf("ocx", "Buttons"));
}

TEST(KeptValues, HasModuleAsTheSourceSays) {
  StoredDesign stored = formWith({});
  EXPECT_EQ(Completed(stored).ofDesign("HasModule"), Value(false));
  stored.hasModule = true;
  EXPECT_EQ(Completed(stored).ofDesign("HasModule"), Value(true));
}

TEST(KeptValues, AMacroInsideTheDesign) {
  const Completed form(formWith(
      {named("CommandButton", "macro", {kept("OnClickEmMacro", Bytes{1})}),
       named("CommandButton", "both", {kept("OnClick", "=f()"), kept("OnClickEmMacro", Bytes{1})}),
       named("CommandButton", "unknown", {kept("OnNothingEmMacro", Bytes{1})})}));
  EXPECT_EQ(form.of("macro", "OnClick"), Value("[Embedded Macro]"));
  EXPECT_EQ(form.of("macro", "OnPush"), Value("[Embedded Macro]"));
  EXPECT_EQ(form.of("both", "OnClick"), Value("=f()"));
  EXPECT_EQ(form.of("unknown", "OnClick"), Value(""));
}

TEST(KeptValues, WhatIsNoPropertyIsPassedOver) {
  const Completed form(formWith({named(
      "Label", "l",
      {kept("OverlapFlags", 85), kept("GUID", Bytes(16)), flag("Odd"), kept("Left", "no number"),
       flag("Top"), kept("Width", 1e20), kept("Caption", Bytes{1})})}));
  EXPECT_FALSE(form.hasOf("l", "OverlapFlags"));
  EXPECT_FALSE(form.hasOf("l", "GUID"));
  EXPECT_FALSE(form.hasOf("l", "Odd"));
  EXPECT_EQ(form.of("l", "Left"), Value(0));
  EXPECT_EQ(form.of("l", "Top"), Value(0));
  EXPECT_EQ(form.of("l", "Caption"), Value(""));
}

TEST(KeptValues, HelpContextIdIsFoundInAnySpelling) {
  const Completed form(formWith({named("TextBox", "t", {kept("HelpContextId", 7)})}));
  EXPECT_EQ(form.of("t", "HelpContextID"), Value(7));
}

}  // namespace
}  // namespace tarrowin
