// ConvertReports: its questions, its loop, its project, its summary.
#include "core/report_batch.h"

#include <string>

#include "codeconv/form_code.h"
#include "core/batch_driver.h"
#include "core/library_paths.h"
#include "core/output_naming.h"
#include "project/vb_project.h"
#include "reports/data_environment.h"
#include "reports/data_report.h"
#include "shared/path_procedures.h"
#include "shared/vb_text.h"

namespace tarrowin {

namespace {

// Access refused to open the report.
constexpr std::int32_t kErrNoPermission = 2601;

// The second question misspells its file, and is known by it.
constexpr std::string_view kLocateMsderun = "Locate the MSDERUN.DLL file for you?";
constexpr std::string_view kLocateMsado = "Locate the MSADAO15.DLL file for you?";

class ReportBatch : public BatchDriver {
 public:
  explicit ReportBatch(MainObject& main)
      : BatchDriver(main, batchMember(ObjectList::kReports)), state_(main.state) {}

 protected:
  void resetLists() override { state_.mstrVbReports.reset(); }
  bool preflight() override;
  void convertSelection() override;
  std::string summary() override;
  void closingStep() override { state_.mblnReportMode = false; }

 private:
  void locate(int library, const std::string& path, std::string_view question);
  void convertReport();
  bool openReport();
  void closeReport();
  void writeReport();
  void writeProject();

  ConversionState& state_;
  std::string project_;  // the project that was written; empty for none
};

bool ReportBatch::preflight() {
  locate(kMsderun, state_.mstrMsderunPath, kLocateMsderun);
  locate(kMsado, state_.mstrMsadoPath, kLocateMsado);
  state_.mblnReportMode = true;
  state_.gblnProjectNeeded = false;
  return true;
}

void ReportBatch::locate(int library, const std::string& path, std::string_view question) {
  if (!path.empty()) return;
  if (main_.messageBox(message_style::kYesNoQuestion, question) == Answer::kYes) {
    FindDLLPaths(main_, library);
  } else {
    cmdFindPath_Click(main_, library);
  }
}

void ReportBatch::convertSelection() {
  showProgress();
  for (std::size_t i = 1; i <= items().size(); ++i) {
    beginItem(i);
    if (!items()[i - 1].selected) continue;
    selectedName_ = currentName_;
    main_.user.refresh(main_.window);
    convertReport();
  }
  if (convertedCount_ > 0) writeProject();
}

void ReportBatch::convertReport() {
  if (!openReport()) return;
  statement([&] { state_.mrptCurr = state_.gappAccess.Reports(selectedName_); });
  SetupDesignerName(main_, selectedName_);
  bool blnOk = false;
  GetDesignerReportProps(main_, blnOk);
  if (blnOk) writeReport();
  closeReport();
  if (!blnOk) return;
  ++convertedCount_;
  state_.mstrVbReports.append(state_.gstrFormFile);
}

bool ReportBatch::openReport() {
  const auto access = [&] { return state_.gappAccess.doCmd(); };
  statement([&] { access().Echo(false); });
  statement([&] { access().SetWarnings(false); });
  statement([&] { access().OpenReport(selectedName_, access_constants::acViewDesign); });
  const bool refused = errorNumber_ == kErrNoPermission;
  statement([&] { access().Minimize(); });
  statement([&] { access().SetWarnings(true); });
  statement([&] { access().Echo(true); });
  return !refused;
}

void ReportBatch::writeReport() {
  SetupFormNames(main_, selectedName_);
  GetAccDataReportProps(main_);
  state_.gblnProjectNeeded = true;
  GetAccFormCode(main_);
  statement([&] { main_.files.Close(kOutputFile); });
}

void ReportBatch::closeReport() {
  statement([&] {
    state_.gappAccess.doCmd().Close(access_constants::acReport, selectedName_,
                                    access_constants::acSaveNo);
  });
}

void ReportBatch::writeProject() {
  const bool one = convertedCount_ == 1;
  if (one && !state_.gblnProjectNeeded) return;
  project_ = one ? StemOf(state_.gstrFormFile) + ".vbp" : StemOf(state_.mstrDbName) + "Reports.vbp";
  main_.window.lblPct.caption = "Creating Visual Basic Project...";
  main_.user.refresh(main_.window);
  CreateVbProject(main_, project_);
}

std::string ReportBatch::summary() {
  const auto paragraph = [](const std::string& text) { return text + "\r\n\r\n"; };
  if (convertedCount_ == 0)
    return paragraph("Unable to convert Access Reports to Visual Basic Reports.");
  std::string text;
  if (convertedCount_ == 1) {
    text = paragraph("Successfully converted Access Report: " + selectedName_ +
                     " to Visual Basic Report: " + state_.gstrFormFile + ".");
  } else {
    text = paragraph("Successfully converted " + LTrimStr(convertedCount_) +
                     " Access Reports to Visual Basic Reports. ");
  }
  const std::string& directory = state_.mstrOutputDir;
  text += paragraph(project_.empty() ? "Converted Report is saved in directory: " + directory
                                     : "A Visual Basic Project file: " + project_ +
                                           " is saved in directory: " + directory);
  if (state_.mblnBadAttachedTables) {
    text += paragraph(
        "NOTE: \r\nThe current database tables are Attached to or pointing to invalid source "
        "tables.\r\n\r\nThe Reports may not have converted correctly.");
  }
  return text;
}

}  // namespace

void ConvertReports(MainObject& main, bool blnAll) { ReportBatch(main).run(blnAll); }

}  // namespace tarrowin
