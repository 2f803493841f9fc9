// ConvertForms: its loop, its projects, its summary.
#include "core/form_batch.h"

#include <string>

#include "codeconv/form_code.h"
#include "core/batch_driver.h"
#include "core/large_forms.h"
#include "core/output_naming.h"
#include "core/printer_flags.h"
#include "forms/data_controls.h"
#include "forms/data_repeater.h"
#include "forms/form_writer.h"
#include "forms/user_control.h"
#include "multipage/multi_page_form.h"
#include "multipage/new_form.h"
#include "multipage/tab_form.h"
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
// The first choice of optMultiPage: one new form with a tab control.
constexpr int kTabForm = 0;

std::string paragraph(const std::string& text) { return text + "\r\n\r\n"; }

class FormBatch : public BatchDriver {
 public:
  explicit FormBatch(MainObject& main)
      : BatchDriver(main, batchMember(ObjectList::kForms)), state_(main.state) {}

 protected:
  void resetLists() override;
  void convertSelection() override;
  std::string summary() override;
  bool isTimed() const override { return convertedCount_ > 0 || multiPageCount_ > 0; }

 private:
  void convertForm();
  bool openForm();
  bool isMultiPage();
  void restructure();
  void convertContinuousForm();
  void writeForm();
  void writeDataControl();
  void writeProjects();
  std::string oneForm() const;
  std::string severalForms() const;
  std::string projectSentence() const;
  std::string multiPageSentence() const;

  ConversionState& state_;
  int continuousCount_ = 0;  // forms that became a user control
  int multiPageCount_ = 0;   // forms that were restructured inside the database
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

void FormBatch::convertForm() {
  clearPrinterFlags(state_);
  state_.mblnDataRepeater = false;
  selectedName_ = currentName_;
  main_.user.refresh(main_.window);
  if (!openForm()) return;
  if (isMultiPage()) return restructure();
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

bool isTabForm(const MainObject& main) { return main.window.optMultiPage == kTabForm; }

// New forms take its place inside the database, which a later conversion finds there.
void FormBatch::restructure() {
  const bool onlyOne = selectedCount_ == 1;
  if (isTabForm(main_)) {
    CreateNewFormInTab(main_, selectedName_, onlyOne);
  } else {
    CreateNewForm(main_, selectedName_, onlyOne);
  }
  ++multiPageCount_;
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
  clearPrinterFlags(state_);
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
  noteTooManyControls(state_, selectedName_);
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

void FormBatch::writeProjects() {
  const bool one = convertedCount_ == 1;
  if (one && !state_.gblnProjectNeeded && continuousCount_ != 1) return;
  project_ = StemOf(one ? state_.gstrFormFile : state_.mstrDbName) + ".vbp";
  CreateVbProject(main_, project_);
  if (continuousCount_ > 0) CreateVbActiveXProject(main_, project_);
}

std::string FormBatch::summary() {
  if (convertedCount_ == 0 && multiPageCount_ == 0)
    return paragraph("Unable to convert Access Forms to Visual Basic Forms.");
  std::string text;
  if (convertedCount_ > 0) text = convertedCount_ == 1 ? oneForm() : severalForms();
  if (multiPageCount_ > 0) text += multiPageSentence();
  return text;
}

std::string FormBatch::multiPageSentence() const {
  const bool tab = isTabForm(main_), one = multiPageCount_ == 1;
  std::string text;
  if (!one) {
    text = Str(multiPageCount_) + " Multi-page Forms were converted to " +
           (tab ? "Tab Form" : "single Forms") + ".";
  } else if (tab) {
    text = "One Multi-page Form was converted to a Tab Form.";
  } else {
    text = "One Multi-page Form was converted to single Forms.";
  }
  return paragraph(text + "\r\nTo convert " + (one && tab ? "this Form" : "these Forms") +
                   " to Visual Basic, close and then re-open the database again.");
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
  if (hasTooManyControls(state_)) {
    text += paragraph("NOTE: There are" + Str(state_.intNumControls) +
                      " controls in the current Form. " + std::string(kControlLimit) +
                      std::string(kControlWarning));
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
  return text + projectSentence() + largeFormsNote(state_);
}

}  // namespace

void ConvertForms(MainObject& main, bool blnAll) { FormBatch(main).run(blnAll); }

}  // namespace tarrowin
