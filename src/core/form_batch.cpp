// ConvertForms: its loop, its projects, its summary.
#include "core/form_batch.h"

#include <string>

#include "codeconv/form_code.h"
#include "core/batch_driver.h"
#include "core/output_naming.h"
#include "forms/data_controls.h"
#include "forms/data_repeater.h"
#include "forms/form_writer.h"
#include "forms/user_control.h"
#include "multipage/multi_page_form.h"
#include "project/activex_project.h"
#include "project/vb_project.h"
#include "shared/path_procedures.h"
#include "shared/value_tests.h"
#include "shared/vb_text.h"

namespace tarrowin {

namespace {

// Access refused to open the form: no permission, and the command is not available.
constexpr std::int32_t kErrNoPermission = 2601, kErrNotAvailable = 2046;
// Form.DefaultView of continuous forms.
constexpr std::int32_t kContinuousForms = 1;
// The choices of optContinuous.
constexpr int kDataGrid = 0;
// More control names than this on a form are more than Visual Basic takes.
constexpr std::int32_t kMostControls = 254;

constexpr std::string_view kTooManyControls =
    "This exceeds the Visual Basic limit of 254 control names for a Form. Too many controls on a "
    "Form may cause Visual Basic to crash. Refer to the online Help for more information.";

std::string paragraph(const std::string& text) { return text + "\r\n\r\n"; }

class FormBatch : public BatchDriver {
 public:
  explicit FormBatch(MainObject& main)
      : BatchDriver(main, batchMember(ObjectList::kForms)), state_(main.state) {}

 protected:
  void resetLists() override;
  void convertSelection() override;
  std::string summary() override;

 private:
  void convertForm();
  bool openForm();
  void clearFlags();
  bool isMultiPage();
  void tellMultiPage();
  void convertContinuousForm();
  void writeForm();
  void writeDataControl();
  void noteControls();
  void writeProjects();
  std::string oneForm() const;
  std::string severalForms() const;
  std::string projectSentence() const;
  std::string bigFormsNote() const;

  ConversionState& state_;
  int continuousCount_ = 0;  // forms that became a user control
  std::string project_;      // the project that was written; empty for none
};

void FormBatch::resetLists() {
  state_.mstrVbForms.reset();
  state_.mstrVbUserControls.reset();
  state_.mstrBigForms.reset();
  state_.gblnProjectNeeded = false;
}

void FormBatch::convertSelection() {
  showProgress();
  for (std::size_t i = 1; i <= items().size(); ++i) {
    beginItem(i);
    if (items()[i - 1].selected) convertForm();
  }
  if (convertedCount_ > 0) writeProjects();
}

void FormBatch::clearFlags() {
  state_.mblnUserControl = false;
  state_.blnHasPictures = false;
  state_.blnFillCombos = false;
  state_.blnFillLists = false;
}

void FormBatch::convertForm() {
  clearFlags();
  state_.mblnDataRepeater = false;
  selectedName_ = currentName_;
  main_.user.refresh(main_.window);
  if (!openForm()) return;
  if (isMultiPage()) return tellMultiPage();
  bool continuous = false;
  statement([&] { continuous = equals(state_.frmCurr.get("DefaultView"), kContinuousForms); });
  if (continuous && main_.window.optContinuous != kDataGrid) convertContinuousForm();
  writeForm();
}

bool FormBatch::openForm() {
  statement([&] { state_.gappAccess.doCmd().OpenForm(selectedName_, access_constants::acDesign); });
  if (errorNumber_ == kErrNoPermission || errorNumber_ == kErrNotAvailable) return false;
  statement([&] { state_.frmCurr = state_.gappAccess.Forms(selectedName_); });
  return true;
}

bool FormBatch::isMultiPage() {
  bool multiPage = false;
  statement([&] { multiPage = IsMultiPageForm(state_.gappAccess, selectedName_); });
  return multiPage;
}

// This version cannot restructure the form inside the database; it is not converted.
void FormBatch::tellMultiPage() {
  main_.messageBox(message_style::kInformation,
                   "Form " + selectedName_ +
                       " is a multi-page Form. This version of Tarrowin cannot convert multi-page "
                       "Forms yet.");
  statement([&] {
    state_.gappAccess.doCmd().Close(access_constants::acForm, selectedName_,
                                    access_constants::acSaveNo);
  });
}

// The user control that a DataRepeater repeats; the form that hosts it follows as any form.
void FormBatch::convertContinuousForm() {
  state_.mblnUserControl = true;
  state_.mblnDataRepeater = true;
  SetupFormNames(main_, selectedName_);
  GetAccFormProps(main_);
  CreateVBForm(main_);
  CreateVBUserControl(main_);
  statement([&] { main_.files.Close(kOutputFile); });
  ++continuousCount_;
  state_.mstrVbUserControls.append(state_.gstrFormFile);
}

void FormBatch::writeForm() {
  state_.astrComboSources.reset();
  state_.astrListSources.reset();
  clearFlags();
  SetupFormNames(main_, selectedName_);
  GetAccFormProps(main_);
  writeDataControl();
  CreateVBForm(main_);
  GetAccFormCode(main_);
  statement([&] { main_.files.Close(kOutputFile); });
  statement([&] {
    state_.gappAccess.doCmd().Close(access_constants::acForm, selectedName_,
                                    access_constants::acSaveNo);
  });
  ++convertedCount_;
  noteControls();
  state_.mstrVbForms.append(state_.gstrFormFile);
}

void FormBatch::writeDataControl() {
  if (state_.mblnDataRepeater) {
    GetDataRepeaterProps(main_);
    state_.mblnAdoDataCtl = true;
    state_.gblnProjectNeeded = true;
    CreateAdoDataCtl(main_, state_.frmCurr);
    return;
  }
  bool bound = false;
  statement([&] { bound = !Trim(state_.frmCurr.text("RecordSource")).empty(); });
  if (bound) GetVbDataCtlProps(main_);
}

void FormBatch::noteControls() {
  if (state_.intNumControls <= kMostControls) return;
  state_.mstrBigForms.append(selectedName_ + " has" + Str(state_.intNumControls) + " controls.");
}

void FormBatch::writeProjects() {
  const bool one = convertedCount_ == 1;
  if (one && !state_.gblnProjectNeeded && continuousCount_ != 1) return;
  project_ = StemOf(one ? state_.gstrFormFile : state_.mstrDbName) + ".vbp";
  CreateVbProject(main_, project_);
  if (continuousCount_ > 0) CreateVbActiveXProject(main_, project_);
}

std::string FormBatch::summary() {
  if (convertedCount_ == 0) {
    return paragraph("Unable to convert Access Forms to Visual Basic Forms.");
  }
  return convertedCount_ == 1 ? oneForm() : severalForms();
}

std::string FormBatch::projectSentence() const {
  return paragraph("A Visual Basic Project file: " + project_ +
                   " is saved in directory: " + state_.mstrOutputDir);
}

std::string FormBatch::oneForm() const {
  std::string text = paragraph("Successfully converted Access Form: " + selectedName_ +
                               " to Visual Basic Form: " + state_.gstrFormFile + ".");
  if (project_.empty()) {
    text += paragraph("Converted Form is saved in directory: " + state_.mstrOutputDir);
  } else {
    if (continuousCount_ == 1) {
      text += paragraph(
          "The current Form is a Continuous Form. A Visual Basic project Group is automatically "
          "created.");
    }
    text += projectSentence();
  }
  if (state_.intNumControls > kMostControls) {
    text += paragraph("NOTE: There are" + Str(state_.intNumControls) +
                      " controls in the current Form. " + std::string(kTooManyControls));
  }
  return text;
}

std::string FormBatch::severalForms() const {
  std::string text = paragraph("Successfully converted " + LTrimStr(convertedCount_) +
                               " Access Forms to Visual Basic Forms. ");
  if (continuousCount_ > 0) {
    text += paragraph(
        "One or more Forms is a Continuous Form. A Visual Basic project Group is automatically "
        "created.");
  }
  text += projectSentence();
  if (state_.mstrBigForms.count() > 0) text += bigFormsNote();
  return text;
}

std::string FormBatch::bigFormsNote() const {
  const std::int32_t count = state_.mstrBigForms.count();
  std::string text = paragraph(count == 1 ? "NOTE: The following Form contains too many controls..."
                                          : "NOTE: The following" + Str(count) +
                                                " Forms contain too many controls...");
  for (const std::string& note : state_.mstrBigForms) text += "Form " + note + "\r\n";
  return text + "\r\n" + paragraph(std::string(kTooManyControls));
}

}  // namespace

void ConvertForms(MainObject& main, bool blnAll) { FormBatch(main).run(blnAll); }

}  // namespace tarrowin
