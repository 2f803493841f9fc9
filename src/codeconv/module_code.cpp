// The steps of a module's conversion and its error table.
#include "codeconv/module_code.h"

#include "codeconv/code_procedure.h"
#include "codeconv/line_rewriter.h"
#include "shared/vb_text.h"

namespace tarrowin {

namespace {

using namespace code_error;

constexpr CodeErrorRow kErrorRows[] = {
    {17, kSilent, Resume::kNext},
    {53, kSilent, Resume::kNext},
    {438, kSilent, Resume::kNext},
    {2046, kSilent, Resume::kNext},
    {52, kCloseExport | kCloseOutput, Resume::kLeave},
    {54, kCloseExport | kCloseOutput, Resume::kLeave},
    {55, kCloseExport | kCloseOutput | kDeleteExport, Resume::kRetry},
    {62, kCloseExport | kCloseOutput, Resume::kNext},
    {2487, kCloseOutput, Resume::kLeave},
    {2517, kCloseOutput, Resume::kLeave},
};
constexpr CodeErrorTable kErrors = {kErrorRows,
                                    {0, kBox | kCloseExport | kCloseOutput, Resume::kNext}};

}  // namespace

void GetAccModuleCode(MainObject& main) {
  ConversionState& state = main.state;
  CodeProcedure procedure(main, kErrors, [&](const VbError& error) {
    return "GetAccModuleCode(" + state.mstrModName + ") - Error #" + LTrimStr(error.number()) +
           " " + error.description();
  });
  LineRewriter rewriter(CodeKind::kModule, state,
                        [&](std::string_view line) { procedure.print(line); });
  procedure.run([&] {
    procedure.statement([&] {
      main.files.Open(state.mstrOutputDir + state.mstrModFile, FileMode::kOutput, kOutputFile);
    });
    procedure.setExportFile(state.mstrOutputDir + "Mod_" + state.mstrModFile);
    std::int32_t lines = 0;
    procedure.statement(
        [&] { lines = state.gappAccess.Modules(state.mstrModName).CountOfLines(); });
    if (lines <= 0) return;
    procedure.exportModule(state.mstrModName);
    procedure.openExport(FileMode::kInput);
    procedure.readLines([&] { procedure.statement([&] { rewriter.rewrite(); }); });
    procedure.close(kExportFile);
    procedure.deleteExport();
    procedure.close(kOutputFile);
  });
}

}  // namespace tarrowin
