// CreateForm: the new form, what it takes from its template, and its end by Close.
#include "access/access_fixture.h"

namespace tarrowin {
namespace {

constexpr std::string_view kForms = R"({
  "snapshot": 1,
  "forms": [
    {"name": "frmPaged",
     "properties": {"Name": "frmPaged", "Caption": "Paged", "Width": 9000, "HasModule": true,
                    "Dirty": {"error": 2455}},
     "sections": [{"number": 1, "properties": {"Name": "FormHeader", "Height": 500}},
                  {"number": 0, "properties": {"Name": "Detail", "Height": 12000}}],
     "controls": [{"name": "txtA", "type": 109, "properties": {"Top": 5, "Section": 0}}],
     "module": "Option Explicit\r\n"},
    {"name": "form1"}, {"name": "Form3"},
    {"name": "frmLocked", "openError": 2601}]
})";

class NewFormTest : public AccessTest {
 protected:
  NewFormTest() { openRecording(kForms); }
  void reopen() { openFile(pathOf("test.access.json")); }
};

TEST_F(NewFormTest, TakesThePropertiesAndSectionsOfItsTemplateAndNothingElse) {
  const ObjectRef form = createForm("FRMPAGED");
  EXPECT_EQ(text(form, "Caption"), "Paged");
  EXPECT_EQ(number(form, "Width"), 9000);
  EXPECT_EQ(errorOf([&] { get(form, "Dirty"); }), 2455);
  EXPECT_EQ(number(child(form, "Section", {0}), "Height"), 12000);
  EXPECT_EQ(number(child(form, "Section", {1}), "Height"), 500);
  EXPECT_EQ(errorOf([&] { get(form, "Section", {2}); }), 2462);
  EXPECT_EQ(number(form, "Count"), 0);
  EXPECT_FALSE(toBoolean(get(form, "HasModule")));
  EXPECT_EQ(errorOf([&] { get(form, "Module"); }), 2465);
}

TEST_F(NewFormTest, NumberingGoesOnFromTheNextFreeName) {
  EXPECT_EQ(text(createForm("frmPaged"), "Name"), "Form2");
  EXPECT_EQ(text(createForm("frmPaged"), "Name"), "Form4");
  call(doCmd, "Close", {2, "form2", 2});
  EXPECT_EQ(text(createForm("frmPaged"), "Name"), "Form2");
}

TEST_F(NewFormTest, StandsInFormsWhileItIsOpen) {
  const ObjectRef form = createForm("frmPaged");
  EXPECT_EQ(text(child(application, "Forms", {"form2"}), "Name"), "Form2");
  EXPECT_EQ(number(child(application, "Forms"), "Count"), 1);
  EXPECT_EQ(errorOf([&] { openForm("Form2"); }), 2102);  // it is not saved yet
  EXPECT_EQ(documents("Forms"), "frmPaged form1 Form3 frmLocked ");
  closeAndSave("Form2");
  EXPECT_EQ(errorOf([&] { get(form, "Name"); }), 2467);
  EXPECT_EQ(errorOf([&] { get(application, "Forms", {"Form2"}); }), 2450);
}

TEST_F(NewFormTest, TemplateThatIsNotThereOrLocked) {
  EXPECT_EQ(errorOf([&] { createForm("None"); }), 2102);
  EXPECT_EQ(errorOf([&] { createForm("frmLocked"); }), 2601);
  EXPECT_EQ(number(child(application, "Forms"), "Count"), 0);
}

TEST_F(NewFormTest, WithoutATemplateItStandsAtTheDefaults) {
  const ObjectRef form = toObject(call(application, "CreateForm"));
  EXPECT_EQ(text(form, "Name"), "Form2");
  EXPECT_EQ(text(form, "FormName"), "Form2");
  EXPECT_EQ(number(form, "Width"), 7200);
  EXPECT_TRUE(toBoolean(get(form, "NavigationButtons")));
  EXPECT_EQ(text(child(form, "Section", {0}), "Name"), "Detail");
  EXPECT_EQ(number(child(form, "Section", {0}), "Height"), 1440);
  EXPECT_EQ(errorOf([&] { get(form, "Section", {1}); }), 2462);
}

TEST_F(NewFormTest, SavedItIsPartOfTheDatabase) {
  const ObjectRef form = createForm("frmPaged");
  form->put("Caption", "Page 1");
  child(form, "Section", {0})->put("Height", 11020);
  closeAndSave("Form2");
  EXPECT_EQ(documents("Forms"), "frmPaged form1 Form3 frmLocked Form2 ");
  EXPECT_EQ(text(openForm("Form2"), "Caption"), "Page 1");
  reopen();
  EXPECT_EQ(documents("Forms"), "frmPaged form1 Form3 frmLocked Form2 ");
  const ObjectRef again = openForm("Form2");
  EXPECT_EQ(text(again, "Caption"), "Page 1");
  EXPECT_EQ(text(again, "Name"), "Form2");
  EXPECT_EQ(number(child(again, "Section", {0}), "Height"), 11020);
  EXPECT_EQ(errorOf([&] { get(again, "Dirty"); }), 2455);
}

TEST_F(NewFormTest, NotSavedItIsGone) {
  const std::string before = readFile(pathOf("test.access.json"));
  createForm("frmPaged");
  call(doCmd, "Close", {2, "Form2", 2});
  createForm("frmPaged");
  call(doCmd, "Close", {2, "Form2", 0});
  createForm("frmPaged");
  call(application, "CloseCurrentDatabase");
  EXPECT_EQ(readFile(pathOf("test.access.json")), before);
  reopen();
  EXPECT_EQ(documents("Forms"), "frmPaged form1 Form3 frmLocked ");
}

TEST_F(NewFormTest, ChangesOfAFormThatWasThereAreNotSaved) {
  const std::string before = readFile(pathOf("test.access.json"));
  openForm("frmPaged")->put("Caption", "x");
  closeAndSave("frmPaged");
  EXPECT_EQ(text(openForm("frmPaged"), "Caption"), "Paged");
  EXPECT_EQ(readFile(pathOf("test.access.json")), before);
}

TEST_F(NewFormTest, HasModuleGivesAnEmptyClassModule) {
  const ObjectRef form = createForm("frmPaged");
  form->put("HasModule", true);
  EXPECT_TRUE(toBoolean(get(form, "HasModule")));
  EXPECT_EQ(text(child(form, "Module"), "Name"), "Form_Form2");
  closeAndSave("Form2");
  reopen();
  call(doCmd, "OutputTo", {5, "Form_Form2", "MS-DOS Text (*.txt)", pathOf("m.txt")});
  EXPECT_EQ(readFile(pathOf("m.txt")), "Option Compare Database\r\n");
}

TEST_F(NewFormTest, TakingTheModuleAwayTakesItsCode) {
  const ObjectRef form = openForm("frmPaged");
  form->put("HasModule", true);
  EXPECT_EQ(number(child(form, "Module"), "CountOfLines"), 1);
  form->put("HasModule", false);
  EXPECT_FALSE(toBoolean(get(form, "HasModule")));
  EXPECT_EQ(errorOf([&] { get(form, "Module"); }), 2465);
}

TEST_F(NewFormTest, ReadOnlyAndImpossibleSettings) {
  const ObjectRef form = createForm("frmPaged");
  EXPECT_EQ(errorOf([&] { form->put("Name", "x"); }), 2135);
  EXPECT_EQ(errorOf([&] { form->put("Width", 31681); }), 2134);
  EXPECT_EQ(errorOf([&] { form->put("Width", "wide"); }), 2113);
  EXPECT_EQ(errorOf([&] { child(form, "Section", {0})->put("Height", -1); }), 2101);
  EXPECT_EQ(errorOf([&] { child(form, "Section", {0})->put("BackColor", 0); }), 438);
  EXPECT_EQ(number(form, "Width"), 9000);
}

TEST_F(NewFormTest, RefreshingTheDatabaseWindowHasNoEffect) {
  call(application, "RefreshDatabaseWindow");
}

TEST_F(NewFormTest, WithoutADatabaseThereAreNoNewForms) {
  call(application, "CloseCurrentDatabase");
  EXPECT_EQ(errorOf([&] { createForm(""); }), 91);
  EXPECT_EQ(errorOf([&] { call(application, "CreateControl", {"Form1", 109}); }), 91);
}

}  // namespace
}  // namespace tarrowin
