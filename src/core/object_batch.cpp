// ConvertObjects: its loop over both kinds, its project, its summary.
#include "core/object_batch.h"

#include <string>

#include "codeconv/form_code.h"
#include "codeconv/module_code.h"
#include "core/batch_driver.h"
#include "core/large_forms.h"
#include "core/output_naming.h"
#include "core/printer_flags.h"
#include "forms/data_controls.h"
#include "forms/form_writer.h"
#include "multipage/multi_page_form.h"
#include "project/vb_project.h"
#include "shared/path_procedures.h"
#include "shared/vb_text.h"

namespace tarrowin {

namespace {

// Access refused to open the object: no permission, the command is not available, and the module is
// not open.
constexpr std::int32_t kErrNoPermission = 2601, kErrNotAvailable = 2046, kErrModuleNotOpen = 7961;

class ObjectBatch : public BatchDriver {
 public:
  explicit ObjectBatch(MainObject& main)
      : BatchDriver(main, batchMember(ObjectList::kObjects)), state_(main.state) {}

 protected:
  void resetLists() override;
  bool preflight() override;
  void convertSelection() override;
  std::string summary() override;
  void beforeClosingBox() override;
  std::string progressText() const override;

 private:
  void convertObject();
  bool isFormName() const;
  void convertForm();
  // False when the form was refused.
  bool openForm();
  bool isRefused() const {
    return errorNumber_ == kErrNoPermission || errorNumber_ == kErrNotAvailable ||
           errorNumber_ == kErrModuleNotOpen;
  }
  void convertModule();
  void count(int& kind);
  std::string projectName() const;
  std::string oneObject() const;
  std::string severalObjects() const;

  ConversionState& state_;
  int formCount_ = 0, moduleCount_ = 0;
  bool anySelected_ = false;     // a selected item has been in hand
  bool isForm_ = false;          // the last of them was a form
  bool duplicateFound_ = false;  // a name came twice in a row
};

void ObjectBatch::resetLists() {
  state_.mstrFormNames.reset();
  state_.mstrVbForms.reset();
  state_.mstrVbModules.reset();
  state_.mstrVbClasses.reset();
  state_.mstrBigForms.reset();
}

bool ObjectBatch::preflight() {
  for (const ListItem& item : main_.window.list(ObjectList::kForms)) {
    state_.mstrFormNames.append(item.text);
  }
  return true;
}

std::string ObjectBatch::progressText() const {
  const std::string prefix = main_.window.ProgressBar1[indexOf(member_.list)].value == 1
                                 ? std::string(member_.labelPrefix)
                             : isForm_ ? "Form: "
                                       : "Module: ";
  return prefix + currentName_;
}

void ObjectBatch::convertSelection() {
  showProgress();
  for (std::size_t i = 1; i <= items().size(); ++i) {
    beginItem(i);
    if (items()[i - 1].selected) convertObject();
  }
}

void ObjectBatch::convertObject() {
  main_.user.refresh(main_.window);
  // A form and a module of one name that stand next to each other count as one object.
  if (anySelected_ && currentName_ == selectedName_) {
    duplicateFound_ = true;
    return;
  }
  anySelected_ = true;
  selectedName_ = currentName_;
  isForm_ = isFormName();
  if (isForm_) {
    convertForm();
  } else {
    convertModule();
  }
}

bool ObjectBatch::isFormName() const {
  for (const std::string& name : state_.mstrFormNames) {
    if (name.empty()) return false;
    if (name == selectedName_) return true;
  }
  return false;
}

void ObjectBatch::convertForm() {
  clearPrinterFlags(state_);
  state_.mblnDataRepeater = false;
  if (!openForm()) return;
  statement([&] { state_.frmCurr = state_.gappAccess.Forms(selectedName_); });
  SetupFormNames(main_, selectedName_);
  GetAccFormProps(main_);
  bool bound = false;
  statement([&] { bound = !state_.frmCurr.text("RecordSource").empty(); });
  if (bound) GetVbDataCtlProps(main_);
  CreateVBForm(main_);
  GetAccFormCode(main_);
  statement([&] { main_.files.Close(kOutputFile); });
  count(formCount_);
  noteTooManyControls(state_, selectedName_);
  state_.mstrVbForms.append(state_.gstrFormFile);
}

bool ObjectBatch::openForm() {
  using namespace access_constants;
  const auto doCmd = [&] { return state_.gappAccess.doCmd(); };
  statement([&] { doCmd().OpenForm(selectedName_, acDesign); });
  if (isRefused()) return false;
  bool multiPage = false;
  statement([&] { multiPage = IsMultiPageForm(state_.gappAccess, selectedName_); });
  if (multiPage) {
    statement([&] { doCmd().Close(acForm, selectedName_, acSavePrompt); });
    statement([&] { doCmd().OpenForm(selectedName_, acFormDS); });
  }
  statement([&] { main_.host.SendKeys("{F5}"); });
  return !isRefused();
}

void ObjectBatch::convertModule() {
  statement([&] { state_.gappAccess.doCmd().OpenModule(selectedName_); });
  main_.window.focus = "frmTarrowin";
  if (errorNumber_ == kErrNoPermission || errorNumber_ == kErrModuleNotOpen) return;
  SetupModNames(main_, selectedName_);
  std::int32_t lines = 0;
  statement([&] { lines = state_.gappAccess.Modules(selectedName_).CountOfLines(); });
  if (lines < 1) {
    main_.messageBox(message_style::kInformation,
                     "Module " + selectedName_ + " does not have any code.");
    return;
  }
  GetAccModuleCode(main_);
  count(moduleCount_);
  state_.mstrVbModules.append(state_.gstrModuleFile);
  state_.mblnModuleConverted = true;
}

void ObjectBatch::count(int& kind) {
  ++convertedCount_;
  ++kind;
}

std::string ObjectBatch::projectName() const {
  std::string file = state_.mstrDbName;
  if (formCount_ == 1) file = state_.gstrFormFile;
  if (formCount_ == 0 && moduleCount_ == 1) file = state_.gstrModuleFile;
  return StemOf(file) + ".vbp";
}

void ObjectBatch::beforeClosingBox() {
  if (convertedCount_ > 0) CreateVbProject(main_, projectName());
}

std::string ObjectBatch::summary() {
  std::string text;
  if (convertedCount_ == 0) {
    text = "Unable to convert Access Forms or Modules to Visual Basic.\r\n\r\n";
  } else {
    text = convertedCount_ == 1 ? oneObject() : severalObjects();
    text += "A Visual Basic Project file: " + projectName() +
            " is saved in directory: " + state_.mstrOutputDir + "\r\n\r\n";
  }
  if (duplicateFound_) {
    text +=
        "Note: Duplicate Form and Module names exist in the database. \r\nOnly the Form was "
        "converted.\r\n\r\n";
  }
  return text;
}

// What was converted is told by the file of the last form, which for a lone module is one of an
// earlier batch, or none.
std::string ObjectBatch::oneObject() const {
  const std::string& file = state_.gstrFormFile;
  if (!file.ends_with("frm")) {
    return "Successfully converted Access Module: " + selectedName_ +
           " to Visual Basic Module: " + file + ".\r\n\r\n";
  }
  std::string text = "Successfully converted Access Form: " + selectedName_ +
                     " to Visual Basic Form: " + file + ".\r\n\r\n";
  if (hasTooManyControls(state_)) {
    text += "NOTE: There are" + Str(state_.intNumControls) + " controls in the current Form. " +
            std::string(kControlWarning) + "\r\n\r\n";
  }
  return text;
}

std::string ObjectBatch::severalObjects() const {
  const std::string formWord = formCount_ == 1 ? "Form" : "Forms";
  const std::string moduleWord = moduleCount_ == 1 ? "Module" : "Modules";
  const std::string forms = LTrimStr(formCount_) + " Access " + formWord;
  const std::string head = "Successfully converted ";
  if (formCount_ == 0) {
    return head + LTrimStr(moduleCount_) + " Access " + moduleWord + " to Visual Basic " +
           moduleWord + ". \r\n\r\n";
  }
  const std::string rest = moduleCount_ > 0 ? " and " + LTrimStr(moduleCount_) + " " + moduleWord +
                                                  " to Visual Basic. \r\n\r\n"
                                            : " to Visual Basic " + formWord + ". \r\n\r\n";
  return head + forms + rest + largeFormsNote(state_);
}

}  // namespace

void ConvertObjects(MainObject& main, bool blnAll) { ObjectBatch(main).run(blnAll); }

}  // namespace tarrowin
