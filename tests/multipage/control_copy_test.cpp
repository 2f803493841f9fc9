// The copy of a control onto a new form: which properties go along, which errors pass, and what is
// told of the others.
#include "multipage/control_copy.h"

#include <algorithm>

#include "multipage/new_form.h"
#include "multipage/paged_session.h"
#include "multipage/tab_form.h"

namespace tarrowin::test {
namespace {

// A property of a control, as the copy is to find it on Form1.
Value copied(PagedSession& session, std::string_view property, std::string_view name = "txtA") {
  return session.controlOf("Form1", name).get(property);
}

class ControlCopy : public testing::Test {
 protected:
  // A first page with these controls, split; a new control has the extra properties behind those of
  // every control.
  void split(std::vector<Json> controls, const Json& extra = Json::object()) {
    controls.push_back(pageBreak(1000));
    session.openDatabase(PagedSession::databaseOf({pagedForm(controls)}, extra));
    CreateNewForm(main, "Paged", false);
  }

  PagedSession session;
  MainObject& main = session.main;
};

TEST_F(ControlCopy, PropertiesOfTheSameNameInTheSamePlaceAreCopied) {
  split({box("txtA", 100, 0, {{"Caption", "City"}, {"FontSize", 12}, {"Extra", "more"}})},
        {{"FontSize", 8}, {"Extra", ""}});
  EXPECT_EQ(copied(session, "Caption"), Value("City"));
  EXPECT_EQ(copied(session, "FontSize"), Value(12));
  EXPECT_EQ(copied(session, "Extra"), Value("more"));
  EXPECT_EQ(copied(session, "Left"), Value(100));
  EXPECT_EQ(copied(session, "Width"), Value(2000));
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(ControlCopy, PropertiesAtOtherPlacesAreNot) {
  split({box("txtA", 100, 0, {{"First", "1"}, {"Second", "2"}, {"Third", "3"}})},
        {{"Second", "new"}, {"First", "new"}, {"Third", "new"}});
  EXPECT_EQ(copied(session, "First"), Value("new"));
  EXPECT_EQ(copied(session, "Second"), Value("new"));
  EXPECT_EQ(copied(session, "Third"), Value("3"));
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(ControlCopy, ANameInAnotherCaseIsAnotherName) {
  split({box("txtA", 100, 0, {{"extra", "source"}, {"Other", "source"}})},
        {{"Extra", "new"}, {"Other", "new"}});
  EXPECT_EQ(copied(session, "Extra"), Value("new"));
  EXPECT_EQ(copied(session, "Other"), Value("source"));
}

TEST_F(ControlCopy, AControlWithFewerPropertiesLeavesTheRestOfTheNewOne) {
  split({box("txtA", 100, 0, {{"First", "1"}})}, {{"First", "new"}, {"Second", "new"}});
  EXPECT_EQ(copied(session, "First"), Value("1"));
  EXPECT_EQ(copied(session, "Second"), Value("new"));
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(ControlCopy, PropertiesPastTheEndOfTheNewControlPassSilently) {
  split({box("txtA", 100, 0, {{"First", "1"}, {"Second", "2"}}), box("txtB", 400)},
        {{"First", "new"}});
  EXPECT_EQ(copied(session, "First"), Value("1"));
  EXPECT_EQ(session.controlsOf("Form1"), (Lines{"txtA 100", "txtB 400"}));
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(ControlCopy, AControlWithoutItsNameInItsPlaceKeepsTheNewOnesName) {
  Json moved = box("txtA", 100);
  Json properties{{"Name", "txtA"}};
  properties.update(moved["properties"]);
  moved["properties"] = properties;
  split({moved});
  EXPECT_EQ(session.controlsOf("Form1"), (Lines{"New0 100"}));
}

TEST_F(ControlCopy, ExcludedPropertiesAreNeverWritten) {
  Json source = Json::object(), fresh = Json::object();
  const Lines excluded = {"PictureData", "ObjectPalette", "LpOleObject", "ObjectVerbsCount",
                          "Action",      "OLEType",       "Text",        "SelText",
                          "SelStart",    "SelLength",     "InSelection", "ListCount",
                          "Item"};
  for (const std::string& name : excluded) {
    source[name] = "source";
    fresh[name] = "new";
  }
  // Behind them one that is none of them, and two that only resemble one.
  for (const char* name : {"Itemised", "SelTextual", "Last"}) {
    source[name] = "source";
    fresh[name] = "new";
  }
  Json entry = box("hdrA", 100, 1, source);
  entry["properties"]["EventProcPrefix"] = "Prefix_of_source";
  entry["properties"]["Tag"] = "tagged";
  std::vector<Json> controls{entry, pageBreak(1000)};
  session.openDatabase(PagedSession::databaseOf({pagedForm(controls)}, fresh));
  WatchedAccess watch(main);
  CreateNewForm(main, "Paged", false);
  EXPECT_EQ(watch.logged("= \"Prefix_of_source\""), Lines{});
  EXPECT_EQ(watch.logged("= 109"), Lines{});                              // ControlType
  EXPECT_EQ(watch.logged(" = 1").size(), watch.logged(" = 100").size());  // Section
  EXPECT_EQ(watch.logged("= \"tagged\"").size(), 1u);
  EXPECT_EQ(watch.logged("= \"source\"").size(), 3u);
  for (const std::string& name : excluded)
    EXPECT_EQ(copied(session, name, "hdrA"), Value("new")) << name;
  EXPECT_EQ(copied(session, "Last", "hdrA"), Value("source"));
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(ControlCopy, TheExclusionsAreCaseSensitive) {
  split({box("txtA", 100, 0, {{"picturedata", "source"}, {"ITEM", "source"}})},
        {{"picturedata", "new"}, {"ITEM", "new"}});
  EXPECT_EQ(copied(session, "picturedata"), Value("source"));
  EXPECT_EQ(copied(session, "ITEM"), Value("source"));
}

TEST_F(ControlCopy, TopIsTheOneOnThePageFromTheSecondPageOn) {
  session.openPaged({pageBreak(1000), box("txtA", 1200), box("hdrA", 1100, 1)});
  WatchedAccess watch(main);
  CreateNewForm(main, "Paged", false);
  EXPECT_EQ(session.controlsOf("Form2"), (Lines{"txtA 200", "hdrA 1100 section 1"}));
  EXPECT_EQ(watch.logged("= 1200"), Lines{});
}

TEST_F(ControlCopy, OfACustomControlOrObjectFrameOnlyDataAndTopGoAlong) {
  for (const int type : {119, 114}) {
    PagedSession own;
    const Json data{{"bytes", "AQID"}};
    const Json ole = control("oleA", type,
                             {{"Left", 40},
                              {"Top", 1500},
                              {"Width", 900},
                              {"Height", 800},
                              {"Section", 0},
                              {"Tag", "tagged"},
                              {"OleData", data}});
    own.openPaged({pageBreak(1000), ole});
    CreateNewForm(own.main, "Paged", false);
    EXPECT_TRUE(own.user.boxes.empty()) << testing::PrintToString(own.user.boxes);
    const LateBound made = Collection<LateBound>(toObject(own.formOf("Form2").get("Controls")))(0);
    EXPECT_NE(made.text("Name"), "oleA");
    EXPECT_EQ(made.number("ControlType"), type);
    EXPECT_EQ(made.get("OleData"), Value(Bytes{1, 2, 3}));
    EXPECT_EQ(made.number("Top"), 500);
    EXPECT_EQ(made.number("Left"), 40);
    EXPECT_EQ(made.number("Width"), 900);
    EXPECT_EQ(made.number("Height"), 800);
    EXPECT_EQ(made.text("Tag"), "");
  }
}

TEST_F(ControlCopy, AnObjectFramesTopIsSetThroughItsProperties) {
  const Json ole = control("oleA", 114,
                           {{"Left", 40},
                            {"Top", 1500},
                            {"Width", 900},
                            {"Height", 800},
                            {"Section", 0},
                            {"OleData", {{"bytes", "AQID"}}}});
  session.openPaged({pageBreak(1000), ole});
  WatchedAccess watch(main);
  CreateNewForm(main, "Paged", false);
  Lines writes;
  for (const std::string& entry : watch.logged(" = "))
    if (entry.find("HasModule") == std::string::npos) writes.push_back(entry);
  ASSERT_EQ(writes.size(), 2u) << testing::PrintToString(writes);
  EXPECT_TRUE(writes[0].ends_with(".OleData = (3 bytes)")) << writes[0];
  EXPECT_NE(writes[1].find("Properties(\"Top\")"), std::string::npos) << writes[1];
  EXPECT_TRUE(writes[1].ends_with(" = 500")) << writes[1];
}

TEST_F(ControlCopy, AnUnreadablePropertyLeavesTheOthersAsTheyAre) {
  split({box("txtA", 100, 0, {{"First", "1"}, {"Second", {{"error", 2467}}}, {"Third", "3"}})},
        {{"First", "new"}, {"Second", "new"}, {"Third", "new"}});
  EXPECT_EQ(copied(session, "First"), Value("1"));
  EXPECT_EQ(copied(session, "Third"), Value("3"));
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(ControlCopy, AnUnreadablePropertyOfAnotherNumberIsTold) {
  split({box("txtA", 100, 0,
             {{"First", {{"error", 2455}, {"description", "Bad reference."}}}, {"Last", "1"}})},
        {{"First", "new"}, {"Last", "new"}});
  ASSERT_FALSE(session.user.boxes.empty());
  const Box& first = session.user.boxes[0];
  EXPECT_TRUE(first.text.starts_with("CreateNewForm() - Error #2455 Property Name = "));
  EXPECT_TRUE(first.text.ends_with("\r\nBad reference."));
  EXPECT_EQ(copied(session, "Last"), Value("1"));
}

// The numbers that a write of a property may raise without a word.
constexpr std::int32_t kTolerated[] = {438,  2100, 2101, 2104, 2110, 2113, 2125, 2135,
                                       2167, 2184, 2185, 2186, 2187, 2192, 2196, 2220,
                                       2448, 2462, 2467, 2480, 2771, 7751, 7766, 7777};
constexpr std::int32_t kTold[] = {5,    6,    13,   91,   94,   424,  2046,       2102, 2103,
                                  2105, 2111, 2114, 2126, 2136, 2151, 2166,       2183, 2188,
                                  2191, 2195, 2221, 2447, 2450, 2455, 2461,       2463, 2465,
                                  2466, 2501, 2601, 7750, 7952, 7961, -2147467259};

using Restructure = void (*)(MainObject&, std::string_view, bool);
struct Road {
  Restructure restructure;
  std::string name;
};
const Road kRoads[] = {{CreateNewForm, "CreateNewForm"},
                       {CreateNewFormInTab, "CreateNewFormInTab"}};

class PropertyError : public testing::TestWithParam<Road> {
 protected:
  // The boxes of a restructuring in which writing the Caption of a text box raises the number.
  std::vector<Box> boxesOf(std::int32_t number) {
    PagedSession session;
    session.openPaged(
        {box("txtA", 100, 0, {{"Caption", "trouble"}, {"Tag", "behind"}}), pageBreak(1000)});
    WatchedAccess watch(session.main);
    watch.fail("= \"trouble\"", number, "As told.");
    GetParam().restructure(session.main, "Paged", false);
    EXPECT_EQ(watch.logged("= \"trouble\"").size(), 1u);
    EXPECT_EQ(copied(session, "Caption"), Value("")) << number;
    EXPECT_EQ(copied(session, "Tag"), Value("behind")) << number;
    return session.user.boxes;
  }
};

TEST_P(PropertyError, EachToleratedNumberPassesSilently) {
  for (const std::int32_t number : kTolerated)
    EXPECT_EQ(boxesOf(number), std::vector<Box>{}) << number;
}

TEST_P(PropertyError, AnyOtherNumberIsToldWithThePropertyAtHand) {
  for (const std::int32_t number : kTold)
    EXPECT_EQ(boxesOf(number),
              (std::vector<Box>{{16,
                                 GetParam().name + "() - Error #" + std::to_string(number) +
                                     " Property Name = Caption\r\nAs told.",
                                 "Create New Form"}}))
        << number;
}

INSTANTIATE_TEST_SUITE_P(BothRoads, PropertyError, testing::ValuesIn(kRoads),
                         [](const auto& tested) { return tested.param.name; });

TEST_F(ControlCopy, ANameThatIsTakenPassesSilently) {
  session.openPaged({box("txtA", 100), pageBreak(1000)});
  WatchedAccess watch(main);
  watch.fail("= \"txtA\"", 2104);
  CreateNewForm(main, "Paged", false);
  EXPECT_TRUE(session.user.boxes.empty());
  EXPECT_EQ(session.controlsOf("Form1"), (Lines{"New0 100"}));
}

TEST_F(ControlCopy, AControlThatCannotBeMadeLeavesTheOneBeforeAsItIs) {
  session.openPaged({box("txtA", 100, 0, {{"Tag", "a"}}), box("txtB", 400, 0, {{"Tag", "b"}}),
                     box("txtC", 700, 0, {{"Tag", "c"}}), pageBreak(1000)});
  WatchedAccess watch(main);
  watch.fail("CreateControl(\"Form1\", 109, 0, \"Paged\", , 100, 400", 2100);
  CreateNewForm(main, "Paged", false);
  EXPECT_TRUE(session.user.boxes.empty());
  EXPECT_EQ(session.controlsOf("Form1"), (Lines{"txtA 100", "txtC 700"}));
  EXPECT_EQ(copied(session, "Tag", "txtA"), Value("a"));
  EXPECT_EQ(copied(session, "Tag", "txtC"), Value("c"));
}

TEST_F(ControlCopy, WhatASourceControlLacksIs0) {
  // A line of the page has no Caption; a page has neither place nor size of its own here.
  const Json bare = control("lineA", 102, {{"Section", 0}, {"Top", 300}});
  session.openPaged({bare, pageBreak(1000)});
  WatchedAccess watch(main);
  CreateNewForm(main, "Paged", false);
  EXPECT_EQ(watch.called("CreateControl("),
            (Lines{R"(CreateControl("Form1", 102, 0, "Paged", , 0, 300, 0, 0))"}));
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(ControlCopy, ASourceControlIsReadAsAWhole) {
  session.openPaged({box("txtA", 123, 0, {{"Left", 7}, {"Width", 45}, {"Height", 67}})});
  const LateBound form = session.formOf("Paged");
  const LateBound source = Collection<LateBound>(toObject(form.get("Controls")))(0);
  Restructuring procedure(main, "CreateNewForm");
  const SourceControl read = readSourceControl(procedure, source);
  EXPECT_EQ(read.name, "txtA");
  EXPECT_EQ(read.parentName, "Paged");
  EXPECT_EQ(read.type, 109);
  EXPECT_EQ(read.section, 0);
  EXPECT_EQ(read.left, 7);
  EXPECT_EQ(read.top, 123);
  EXPECT_EQ(read.width, 45);
  EXPECT_EQ(read.height, 67);
  EXPECT_EQ(read.astrPropNames, (Lines{"EventProcPrefix", "Name", "ControlType", "Caption", "Left",
                                       "Top", "Width", "Height", "Section", "Tag"}));
  ASSERT_EQ(read.avarPropValues.size(), 10u);
  EXPECT_EQ(read.avarPropValues[5], Value(123));
}

}  // namespace
}  // namespace tarrowin::test
