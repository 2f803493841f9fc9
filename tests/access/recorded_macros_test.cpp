// Macros in recordings: the rows of their sheets, as the model and real databases have them.
#include <nlohmann/json.hpp>

#include "access/access_fixture.h"
#include "access/recorder.h"

namespace tarrowin {
namespace {

using Json = nlohmann::ordered_json;

constexpr std::string_view kMacros = R"({
  "snapshot": 1,
  "macros": [
    {"name": "Empty"},
    {"name": "Group",
     "actions": [{"macroName": "Print", "condition": "[x] > 1", "action": "OpenForm",
                  "arguments": ["frmA", "", "0"], "comment": "shows it"},
                 {"macroName": "", "condition": "...", "action": "Beep", "arguments": [],
                  "comment": ""}]},
    {"name": "Locked", "openError": {"error": 2950, "description": "No."}}]
})";

class RecordedMacros : public AccessTest {
 protected:
  ObjectRef document(const std::string& name) const {
    return child(child(database, "Containers", {"Scripts"}), "Documents", {name});
  }
};

TEST_F(RecordedMacros, WalkWritesTheRows) {
  openRecording(kMacros, CodePage(CodePage::kUtf8));
  EXPECT_EQ(recordByWalking(application)["macros"].dump(1), Json::parse(kMacros)["macros"].dump(1));
}

TEST_F(RecordedMacros, DocumentTellsTextsOfItsRows) {
  openRecording(kMacros);
  const ObjectRef group = document("Group");
  EXPECT_EQ(number(group, "rowcount"), 2);
  EXPECT_EQ(get(group, "RowText", {0, 2}), Value("OpenForm"));
  EXPECT_EQ(get(group, "RowText", {0, 5}), Value(""));
  EXPECT_EQ(get(group, "RowText", {0, 6}), Value("0"));
  EXPECT_TRUE(get(group, "RowText", {0, 7}).isEmpty());
  EXPECT_EQ(get(group, "RowText", {1, 1}), Value("..."));
}

TEST_F(RecordedMacros, RowsThatAreNotThere) {
  openRecording(kMacros);
  const ObjectRef group = document("Group");
  EXPECT_EQ(errorOf([&] { get(group, "RowText", {2, 0}); }), 9);
  EXPECT_EQ(errorOf([&] { get(group, "RowText", {-1, 0}); }), 9);
  EXPECT_EQ(errorOf([&] { get(group, "RowText", {0, -1}); }), 9);
  EXPECT_EQ(number(document("Empty"), "RowCount"), 0);
  EXPECT_EQ(errorOf([&] { get(document("Locked"), "RowCount"); }), 2950);
}

TEST_F(RecordedMacros, OtherDocumentsHaveNoRows) {
  openRecording(R"({"snapshot": 1, "modules": [{"name": "M", "type": 0, "text": ""}]})");
  const ObjectRef modules = child(child(database, "Containers", {"Modules"}), "Documents");
  EXPECT_EQ(errorOf([&] { get(item(modules, 0), "RowCount"); }), 438);
}

}  // namespace
}  // namespace tarrowin
