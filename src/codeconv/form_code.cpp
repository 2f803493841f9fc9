// The steps of a form's code and its error table.
#include "codeconv/form_code.h"

#include "codeconv/code_procedure.h"
#include "codeconv/generated_statements.h"
#include "codeconv/line_rewriter.h"
#include "shared/value_tests.h"
#include "shared/vb_text.h"

namespace tarrowin {

namespace {

using namespace code_error;

// RPC_E_SERVERFAULT: the automation server threw an exception.
constexpr auto kServerFault = static_cast<std::int32_t>(0x80010105u);

constexpr CodeErrorRow kErrorRows[] = {
    {9, kSilent, Resume::kNext},
    {53, kSilent, Resume::kNext},
    {438, kSilent, Resume::kNext},
    {2046, kSilent, Resume::kNext},
    {kServerFault, kSilent, Resume::kNext},
    {52, kCloseExport, Resume::kNext},
    {54, kCloseExport, Resume::kNext},
    {55, kCloseExport | kCloseOutput | kDeleteExport, Resume::kRetry},
    {62, kCloseExport | kCloseOutput, Resume::kNext},
    {2517, kCloseOutput, Resume::kLeave},
};
constexpr CodeErrorTable kErrors = {kErrorRows, {0, kBox, Resume::kNext}};

// CurrentDb.Version of Access 97, whose code is not converted.
constexpr double kAccess97Version = 3.0;

class FormCode {
 public:
  explicit FormCode(MainObject& main)
      : state_(main.state),
        procedure_(main, kErrors, [this](const VbError& error) { return boxText(error); }),
        generated_(main.state, [this](std::string_view line) { procedure_.print(line); }),
        rewriter_(
            CodeKind::kForm, main.state, [this](std::string_view line) { procedure_.print(line); },
            [this](FormHeader header) { afterHeader(header); }) {}

  void write() {
    procedure_.run([this] { steps(); });
  }

 private:
  void steps();
  bool hasCodeToExport();
  void closeObject();
  void afterHeader(FormHeader header);
  void appendFormLoad();
  std::string boxText(const VbError& error) const;

  ConversionState& state_;
  CodeProcedure procedure_;
  GeneratedStatements generated_;
  LineRewriter rewriter_;
  bool openSeen_ = false, loadSeen_ = false;
};

void FormCode::steps() {
  const std::string prefix = state_.mblnReportMode ? "Report_" : "Form_";
  procedure_.setExportFile(state_.mstrOutputDir + prefix + state_.mstrFormFile);
  const bool exported = hasCodeToExport();
  if (exported) procedure_.exportModule(prefix + state_.mstrObjName);
  closeObject();
  if (!exported && !generated_.isDue()) {
    procedure_.close(kExportFile);
    procedure_.close(kOutputFile);
    return;
  }
  // Without an export an empty file stands in for it.
  procedure_.openExport(exported ? FileMode::kInput : FileMode::kOutput);
  procedure_.readLines([this] { procedure_.statement([this] { rewriter_.rewrite(); }); });
  if (!openSeen_ && !loadSeen_) appendFormLoad();
  state_.astrComboSources.reset();
  state_.astrListSources.reset();
  procedure_.close(kExportFile);
  procedure_.deleteExport();
  procedure_.close(kOutputFile);
}

bool FormCode::hasCodeToExport() {
  if (state_.mblnReportMode) return false;
  bool has = false;
  procedure_.statement([&] {
    has = isTrue(state_.frmCurr.get("HasModule")) &&
          Val(state_.gappAccess.CurrentDb().text("Version")) > kAccess97Version;
  });
  return has;
}

void FormCode::closeObject() {
  procedure_.statement([this] {
    state_.gappAccess.doCmd().Close(
        state_.mblnReportMode ? access_constants::acReport : access_constants::acForm,
        state_.mstrObjName, access_constants::acSaveNo);
  });
}

void FormCode::afterHeader(FormHeader header) {
  (header == FormHeader::kOpen ? openSeen_ : loadSeen_) = true;
  generated_.write();
}

void FormCode::appendFormLoad() {
  // The export is read once more to its end; nothing comes of it but its errors.
  procedure_.close(kExportFile);
  procedure_.openExport(FileMode::kInput);
  procedure_.readLines([] {});
  if (!generated_.isDue()) return;
  procedure_.print("Option Explicit");
  procedure_.print("Private Sub Form_Load()");
  generated_.write([this] { return procedure_.lastErrorNumber() != kErrSubscript; });
  procedure_.print("End Sub");
}

std::string FormCode::boxText(const VbError& error) const {
  const std::string kind = state_.mblnReportMode ? "Report: " : "Form: ";
  return "GetAccFormCode(" + kind + state_.mstrObjName + " - Object: " + state_.strCtlName +
         ") - Error #" + LTrimStr(error.number()) + "\r\n" + error.description();
}

}  // namespace

void GetAccFormCode(MainObject& main) { FormCode(main).write(); }

}  // namespace tarrowin
