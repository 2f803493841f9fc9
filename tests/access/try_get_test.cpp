// Reads that give their error as a value: the same outcome as get, member by member.
#include <random>
#include <utility>

#include "access/access_fixture.h"
#include "access/model/name_table.h"

namespace tarrowin {
namespace {

constexpr std::string_view kRecording = R"({
  "snapshot": 1,
  "tables": [{"name": "Orders", "fields": [{"name": "OrderID", "type": 4, "size": 4}]}],
  "forms": [
    {"name": "frmMain",
     "properties": {"Caption": "Orders", "Width": 9000, "Filter": {"error": 2186},
                    "OrderBy": {"error": 2001, "description": "Cancelled."}, "Picture": null,
                    "Module": {"error": 2467}},
     "sections": [{"number": 0, "properties": {"Name": "Detail", "Visible": {"error": 2196}}}],
     "controls": [
       {"name": "tab", "type": 123, "properties": {"Section": 0, "Left": 120}},
       {"name": "Page1", "type": 124, "parent": "tab", "properties": {"Section": 0}},
       {"name": "txtA", "type": 109, "parent": "Page1",
        "properties": {"Section": 0, "Format": {"error": 2455}, "ControlType": {"error": 2186},
                       "Ratio": 1.5, "Saved": {"date": "2001-02-03T04:05:06"}}},
       {"name": "lblA", "type": 100, "parent": "txtA",
        "properties": {"Name": {"error": 2186}, "Parent": {"error": 2467}}},
       {"name": "subLines", "type": 112, "properties": {"SourceObject": "Form.frmLines"}},
       {"name": "subGone", "type": 112, "properties": {"SourceObject": "Form.frmNone"}}],
     "module": "Option Explicit\r\n"},
    {"name": "frmLines", "controls": [{"name": "txtQty", "type": 109}]}],
  "reports": [{"name": "rptSales", "properties": {"Caption": "Sales"},
     "groupLevels": [{"ControlSource": "Country", "GroupOn": {"error": 2455}}],
     "controls": [{"name": "x", "type": 109, "properties": {"Section": 0}}]}]
})";

// What can be told of an outcome without the identity of objects, which are made anew.
std::string told(const Value& value);

template <class Read>
std::string outcome(Read read) {
  try {
    return told(read());
  } catch (const VbError& error) {
    return "error " + std::to_string(error.number()) + ": " + error.description();
  }
}

std::string told(const Value& value) {
  if (value.isEmpty()) return "Empty";
  if (value.isNull()) return "Null";
  if (!value.isObject()) return "value " + toText(value);
  const ObjectRef object = value.object();
  if (!object) return "Nothing";
  std::string result = "object";
  for (const std::string_view member : {"Name", "Count", "ControlType", "Caption", "Left"})
    result += ", " + outcome([&] {
                return object->get(member).isObject() ? "x" : joined(object->get(member));
              });
  return result;
}

std::string outcomeOfTryGet(const ObjectRef& object, std::string_view name, Arguments arguments) {
  Reading reading = object->tryGet(name, arguments);
  if (!reading.error) return told(reading.value);
  EXPECT_TRUE(reading.value.isEmpty());
  return "error " + std::to_string(reading.error->number()) + ": " + reading.error->description();
}

class TryGetTest : public AccessTest {
 protected:
  TryGetTest() { openRecording(kRecording); }

  ObjectRef control(const ObjectRef& form, const char* name) {
    return child(form, "Controls", {name});
  }
  // One of every kind of object of an open form or report, and some of the database.
  std::vector<ObjectRef> objects() {
    const ObjectRef form = openForm("frmMain"), report = openReport("rptSales");
    std::vector<ObjectRef> result = {form, report, database, application,
                                     child(database, "TableDefs", {"Orders"})};
    for (const char* name : {"tab", "Page1", "txtA", "lblA", "subLines", "subGone"})
      result.push_back(control(form, name));
    for (const ObjectRef& one :
         {child(form, "Section", {0}), child(report, "GroupLevel", {0}), child(form, "Controls"),
          child(form, "Properties"), child(form, "Properties", {"Filter"}),
          child(control(form, "tab"), "Controls"), child(control(form, "tab"), "Pages"),
          child(control(form, "txtA"), "Properties"), child(control(form, "subLines"), "Form"),
          child(child(form, "Section", {0}), "Controls"), child(application, "Forms")})
      result.push_back(one);
    return result;
  }
  std::int32_t errorNumber(const ObjectRef& object, std::string_view name,
                           std::initializer_list<Value> arguments = {}) {
    const Reading reading = object->tryGet(name, {arguments.begin(), arguments.size()});
    return reading.error ? reading.error->number() : 0;
  }
};

std::vector<std::string> allNames() {
  return {"",
#define TARROWIN_MEMBER(name) #name,
#include "access/model/member_names.inc"
#undef TARROWIN_MEMBER
          "Caption", "Width", "Filter", "OrderBy",       "Picture", "Left",
          "Format",  "Ratio", "Saved",  "ControlSource", "GroupOn", "NeverSeenAnywhere"};
}

TEST_F(TryGetTest, GivesWhatGetGivesForEveryMemberOfEveryKindOfObject) {
  const std::vector<Value> arguments = {
      0, 1, -1, 99, "txtA", "TXTA", "Filter", "none", 0.4, Value(Value::Null{}), Value()};
  std::mt19937 random(3);
  const auto check = [&](const ObjectRef& object, std::string name) {
    for (char& c : name)
      if (random() % 4 == 0 && c >= 'a' && c <= 'z') c = static_cast<char>(c - 32);
    EXPECT_EQ(outcomeOfTryGet(object, name, {}), outcome([&] { return object->get(name); }))
        << name;
    for (const Value& argument : arguments) {
      const Arguments one(&argument, 1);
      EXPECT_EQ(outcomeOfTryGet(object, name, one), outcome([&] { return object->get(name, one); }))
          << name << "(" << told(argument) << ")";
    }
  };
  const std::vector<ObjectRef> all = objects();
  for (const ObjectRef& object : all)
    for (const std::string& name : allNames())
      if (name != "RecordedDocument") check(object, name);
  call(doCmd, "Close", {2, "frmMain", 2});
  for (const ObjectRef& object : all)
    for (const char* name : {"Name", "Controls", "Parent", "Count", "None"}) check(object, name);
}

TEST_F(TryGetTest, NumbersOfTheModel) {
  const ObjectRef form = openForm("frmMain"), report = openReport("rptSales");
  const ObjectRef box = control(form, "txtA"), section = child(form, "Section", {0});
  for (const char* name : {"ControlType", "Top", "Left", "NeverSeenAnywhere"}) {
    EXPECT_EQ(errorNumber(form, name), 2465) << name;
    EXPECT_EQ(errorNumber(report, name), 2465) << name;
  }
  EXPECT_EQ(errorNumber(form, "Parent"), 2452);
  EXPECT_EQ(errorNumber(report, "Parent"), 2452);
  EXPECT_EQ(errorNumber(box, "Caption"), 438);
  EXPECT_EQ(errorNumber(box, "Pages"), 438);
  EXPECT_EQ(errorNumber(box, "Form"), 2455);
  EXPECT_EQ(errorNumber(control(form, "subGone"), "Form"), 2467);
  EXPECT_EQ(errorNumber(section, "Left"), 438);
  EXPECT_EQ(errorNumber(section, "Controls", {99}), 2467);
  EXPECT_EQ(errorNumber(form, "Section", {1}), 2462);
  EXPECT_EQ(errorNumber(report, "GroupLevel", {1}), 2464);
  EXPECT_EQ(errorNumber(child(report, "GroupLevel", {0}), "None"), 438);
  EXPECT_EQ(errorNumber(form, "Controls", {99}), 2465);
  EXPECT_EQ(errorNumber(form, "Controls", {"none"}), 2465);
  EXPECT_EQ(errorNumber(form, "", {"none"}), 2450);
  EXPECT_EQ(errorNumber(report, "", {"none"}), 2465);
  EXPECT_EQ(errorNumber(form, "Name"), 0);
  call(doCmd, "Close", {2, "frmMain", 2});
  for (const ObjectRef& object : {form, box, section}) EXPECT_EQ(errorNumber(object, "Name"), 2467);
}

TEST_F(TryGetTest, RecordedErrorsComeBeforeTheMembersOwnAnswer) {
  const ObjectRef form = openForm("frmMain");
  EXPECT_EQ(errorNumber(form, "filter"), 2186);
  EXPECT_EQ(errorNumber(form, "Module"), 2467);
  EXPECT_EQ(errorNumber(control(form, "txtA"), "ControlType"), 2186);
  EXPECT_EQ(errorNumber(control(form, "txtA"), "Format"), 2455);
  EXPECT_EQ(errorNumber(control(form, "lblA"), "Name"), 2186);
  EXPECT_EQ(errorOf([&] { get(control(form, "lblA"), "Name"); }), 2186);
  EXPECT_EQ(errorNumber(control(form, "lblA"), "Parent"), 2467);
  EXPECT_EQ(errorNumber(child(form, "Section", {0}), "Visible"), 2196);
  EXPECT_EQ(errorNumber(child(openReport("rptSales"), "GroupLevel", {0}), "GroupOn"), 2455);
}

TEST_F(TryGetTest, DescriptionsAreMadeWhenTheyAreAskedFor) {
  const ObjectRef form = openForm("frmMain");
  Reading missing;
  {
    const std::string name = "NotThere";  // gone before the text is asked for
    missing = form->tryGet(name);
  }
  const VbError copy = *missing.error;
  const VbError moved = *std::move(missing.error);
  for (const VbError& error : {copy, moved}) {
    EXPECT_STREQ(
        error.what(),
        "Microsoft Access can't find the field 'NotThere' referred to in your expression.");
    EXPECT_EQ(error.description(), error.what());
  }
  EXPECT_EQ(form->tryGet("OrderBy").error->description(), "Cancelled.");
  EXPECT_EQ(form->tryGet("Filter").error->description(), standardErrorText(2186, "Filter"));
  EXPECT_EQ(VbError::standard(6).description(), "Overflow");
}

TEST_F(TryGetTest, ChainOfParentsEndsInTheForm) {
  const ObjectRef form = openForm("frmMain");
  std::vector<std::string> names;
  Reading parent = control(form, "txtA")->tryGet("Parent");
  while (!parent.error) {
    names.push_back(text(parent.value.object(), "Name"));
    parent = parent.value.object()->tryGet("Parent");
  }
  EXPECT_EQ(names, (std::vector<std::string>{"Page1", "tab", "frmMain"}));
  EXPECT_EQ(parent.error->number(), 2452);
}

}  // namespace
}  // namespace tarrowin
