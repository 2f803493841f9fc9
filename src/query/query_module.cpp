// Names, text and file of a converted query.
#include "query/query_module.h"

#include "core/main_object.h"
#include "core/statement.h"
#include "shared/text_procedures.h"
#include "shared/vb_text.h"

namespace tarrowin {

namespace {

constexpr std::string_view kModuleExtension = ".bas";

// Length of ".mdb", which the name of the single file goes without.
constexpr int kDatabaseExtensionLength = 4;

void deleteIfThere(FileSlots& files, const std::string& path) {
  if (!files.Dir(path).empty()) files.Kill(path);
}

Resume onWriteError(MainObject& main, const VbError& error, const std::string& path,
                    bool& retried) {
  FileSlots& files = main.files;
  // A file that stays open under another number would be tried for ever.
  const bool openElsewhere = error.number() == kErrFileAlreadyOpen && retried;
  switch (openElsewhere ? 0 : error.number()) {
    case kErrBadFileName:
    case kErrBadFileMode:
      ignoringErrors([&] { files.Close(kOutputFile); });
      return Resume::kLeave;
    case kErrFileAlreadyOpen:
      retried = true;
      ignoringErrors([&] { files.Close(kOutputFile); });
      ignoringErrors([&] { deleteIfThere(files, path); });
      return Resume::kRetry;
    case kErrPastEndOfFile:
      ignoringErrors([&] { files.Close(kOutputFile); });
      return Resume::kNext;
    case kErrFileNotFound:
    case kErrNoSuchMember:
    case 2046:
      return Resume::kNext;
    default:
      main.messageBox(message_style::kCritical, "WriteSQLQuery(" + main.state.gstrQueryFile +
                                                    ") - Error #" + LTrimStr(error.number()) + " " +
                                                    error.description());
      ignoringErrors([&] { files.Close(kOutputFile); });
      return Resume::kLeave;
  }
}

}  // namespace

void SetupQueryNames(MainObject& main, std::string_view strQryName) {
  ConversionState& state = main.state;
  FileSlots& files = main.files;
  try {
    state.intDataCtlNum = 0;
    state.intAdoCtlNum = 0;
    state.mstrQryName = Trim(strQryName);
    state.mstrBaseName = MakeVBName(std::string(state.mstrQryName));
    state.mstrModFile = Trim(state.mstrBaseName) + std::string(kModuleExtension);
    deleteIfThere(files, state.mstrOutputDir + state.mstrModFile);
    state.gstrQueryFile = state.mstrModFile;
    if (!state.mblnFirstQuery) return;
    const auto stemLength =
        static_cast<std::int32_t>(state.mstrDbName.size()) - kDatabaseExtensionLength;
    state.mstrQueriesFile = Left(state.mstrDbName, stemLength) + "Queries.bas";
    files.Open(state.mstrOutputDir + state.mstrQueriesFile, FileMode::kOutput, kOutputFile);
  } catch (const VbError& error) {
    main.errorBox("SetupQueryNames", error);
  }
}

void cutToProcedureName(std::string& fileName) {
  if (const auto dot = fileName.find('.'); dot != std::string::npos) fileName.resize(dot);
}

std::string queryModuleText(std::string_view procedureName, std::string sql) {
  RemoveLineBreaks(sql);
  DoubleToSingleQuotes(sql);
  std::string text;
  text.reserve(procedureName.size() + sql.size() + 64);
  text.append("Sub ").append(procedureName).append("()\r\n");
  text.append("Dim strSQL as String\r\n");
  text.append("   strSQL = \"").append(sql).append("\"\r\n");
  text.append("End Sub");
  return text;
}

void WriteSQLQuery(MainObject& main, const std::string& text) {
  FileSlots& files = main.files;
  const std::string path = main.state.mstrOutputDir + main.state.mstrModFile;
  bool retried = false;
  Procedure procedure(
      [&](const VbError& error) { return onWriteError(main, error, path, retried); });
  procedure.run([&] {
    procedure.statement([&] { files.Open(path, FileMode::kOutput, kOutputFile); });
    procedure.statement([&] { files.Print(kOutputFile, text); });
    procedure.statement([&] { files.Close(kOutputFile); });
  });
}

}  // namespace tarrowin
