// The handler, and the statements on the temporary export file.
#include "codeconv/code_procedure.h"

#include <algorithm>

namespace tarrowin {

namespace {
// The format of DoCmd.OutputTo.
constexpr std::string_view kTextFormat = "MS-DOS Text (*.txt)";
}  // namespace

CodeProcedure::CodeProcedure(MainObject& main, const CodeErrorTable& table, BoxText boxText)
    : main_(main),
      table_(table),
      boxText_(std::move(boxText)),
      procedure_([this](const VbError& error) { return onError(error); }) {}

void CodeProcedure::setExportFile(std::string path) {
  exportFile_ = std::move(path);
  statement([&] {
    if (!main_.files.Dir(exportFile_).empty()) main_.files.Kill(exportFile_);
  });
}

void CodeProcedure::exportModule(std::string_view moduleName) {
  statement([&] {
    main_.state.gappAccess.doCmd().call(
        "OutputTo", {Value(access_constants::acModule), Value(moduleName), Value(kTextFormat),
                     Value(main_.files.FullPath(exportFile_))});
  });
}

void CodeProcedure::openExport(FileMode mode) {
  statement([&] { main_.files.Open(exportFile_, mode, kExportFile); });
}

void CodeProcedure::close(int fileNumber) {
  statement([&] { main_.files.Close(fileNumber); });
}

void CodeProcedure::deleteExport() {
  statement([&] { main_.files.Kill(exportFile_); });
}

bool CodeProcedure::atEnd() {
  bool end = true;
  statement([&] { end = main_.files.Eof(kExportFile); });
  return end;
}

const CodeErrorRow& CodeProcedure::rowFor(std::int32_t number) const {
  const auto row = std::ranges::find(table_.rows, number, &CodeErrorRow::number);
  return row == table_.rows.end() ? table_.anyOther : *row;
}

Resume CodeProcedure::onError(const VbError& error) {
  using namespace code_error;
  lastErrorNumber_ = error.number();
  const CodeErrorRow* row = &rowFor(error.number());
  // What stays open elsewhere would be tried for ever.
  if (row->then == Resume::kRetry && retried_) row = &table_.anyOther;
  retried_ = row->then == Resume::kRetry;
  if (row->steps & kBox) main_.messageBox(message_style::kCritical, boxText_(error));
  if (row->steps & kCloseExport) ignoringErrors([&] { main_.files.Close(kExportFile); });
  if (row->steps & kCloseOutput) ignoringErrors([&] { main_.files.Close(kOutputFile); });
  if (row->steps & kDeleteExport) ignoringErrors([&] { main_.files.Kill(exportFile_); });
  return row->then;
}

}  // namespace tarrowin
