// Opening a database: the dialog, Access, the version, the lists, the error table.
#include "core/database_opening.h"

#include <algorithm>
#include <string>

#include "core/library_paths.h"
#include "core/main_object.h"
#include "core/object_lists.h"
#include "core/statement.h"
#include "help/how_to.h"
#include "shared/path_procedures.h"
#include "shared/vb_text.h"

namespace tarrowin {

namespace {

// What the opening does about an error number.
enum class OpeningReaction {
  kGoOn,           // at the next statement, silently
  kNoAccess,       // Access cannot be started: hourglass off, failed, go on
  kOtherAccess,    // says that another version of Access is in the way; the ending
  kEnding,         // the ending, without a message
  kNoProperty,     // a property is missing: the first form becomes the start form; go on
  kNewerDatabase,  // says that the database is too new; the ending
  kLinkGone,       // the automation link is gone: Access is told to end, failed, go on
  kNoDatabase,     // says that the file is no database that can be read; failed, go on
  kUnexpected,     // the box with the number; failed, go on
};

struct OpeningErrorRow {
  std::int32_t number;
  OpeningReaction reaction;
};

constexpr std::int32_t hresult(std::uint32_t value) { return static_cast<std::int32_t>(value); }

using enum OpeningReaction;
constexpr OpeningErrorRow kOpeningErrors[] = {
    {13, kGoOn},
    {91, kGoOn},
    {2176, kGoOn},
    {2455, kGoOn},
    {2476, kGoOn},
    {7867, kGoOn},
    {429, kNoAccess},
    {462, kOtherAccess},
    {hresult(0x80010108), kOtherAccess},
    {hresult(0x800706D1), kOtherAccess},
    {2467, kEnding},
    {3270, kNoProperty},
    {7866, kNewerDatabase},
    {7952, kLinkGone},
    {hresult(0x7FF8F942), kLinkGone},
    {hresult(0x800706BA), kLinkGone},
    {hresult(0x80004005), kNoDatabase},
};

constexpr std::string_view kParagraph = "\r\n\r\n";
constexpr int kDefaultPointer = 0;
constexpr int kHourglassPointer = 11;

class Opening {
 public:
  explicit Opening(MainObject& main)
      : main_(main),
        state_(main.state),
        procedure_([this](const VbError& error) { return onError(error); }) {}

  void run() {
    procedure_.run([this] { open(); });
  }

 private:
  template <class Statement>
  bool statement(Statement&& statement) {
    return procedure_.statement(std::forward<Statement>(statement));
  }

  void open();
  bool choosePath();
  void releaseOldDatabase();
  bool fileIsThere();
  bool isFolder(const std::string& path);
  bool isExportFolder();
  void openInAccess();
  void checkVersion();
  void showDatabase();
  void fillLists();
  void chooseStartForm();
  void finish();

  // The ending of a refused opening, from inside the body.
  [[noreturn]] void refuse();
  void box(int style, const std::string& text) { main_.messageBox(style, text); }
  Resume onError(const VbError& error);
  // The ending from inside the error handler, where nothing may fail any more.
  Resume endFromHandler();
  const std::string& firstForm() const { return state_.mstrFormNames[1]; }

  MainObject& main_;
  ConversionState& state_;
  Procedure procedure_;
  std::string path_;
  std::string versionText_;
  bool readingStartForm_ = false;
};

void Opening::open() {
  state_.mblnBadAttachedTables = false;
  state_.mblnOpenFailed = false;
  refreshHowTo(main_.window, true);
  if (!choosePath()) return;
  if (path_ == state_.gstrDbPath) {
    box(message_style::kInformation,
        "The database that you are attempting to open is already open.");
    return;
  }
  releaseOldDatabase();
  if (!fileIsThere()) return;
  // Only a failure of the opening itself counts, not one of the old database's release.
  state_.mblnOpenFailed = false;
  openInAccess();
  if (state_.mblnOpenFailed) refuse();
  checkVersion();
  statement([&] {
    if (main_.host.IsAccessRunning()) state_.mblnOpenFailed = false;
  });
  showDatabase();
  fillLists();
  chooseStartForm();
  finish();
}

bool Opening::choosePath() {
  OpenDialog& dialog = main_.window.CmnOpenDlg;
  dialog.fileName.clear();
  dialog.dialogTitle = "Open a Microsoft Access Database";
  dialog.filter = "Access MDB Files (*.mdb)|*.mdb";
  dialog.initDir = state_.mstrLastDbPath;
  dialog.defaultExt = "*.mdb";
  path_ = main_.user.openFile(dialog);
  if (path_.empty() || path_.find('*') != std::string::npos) return false;
  // A folder may be written with a separator behind it.
  while (path_.size() > 1 && path_.ends_with('/') && isFolder(path_)) path_.pop_back();
  // The dialog leaves the current directory at the chosen file's.
  ignoringErrors([&] { main_.files.ChDir(DirectoryOf(path_)); });
  return true;
}

void Opening::releaseOldDatabase() {
  if (!state_.gappAccess) return;
  statement([&] { state_.gappAccess.CloseCurrentDatabase(); });
  statement([&] { state_.gappAccess.Quit(access_constants::acQuitSaveAll); });
  state_.gappAccess = {};
}

bool Opening::fileIsThere() {
  state_.gstrDbFile = FileNameOf(path_);
  bool missing = false;
  statement([&] { missing = main_.files.Dir(state_.gstrDbFile).empty(); });
  missing = missing && !isExportFolder();
  if (missing) {
    box(message_style::kInformation,
        "Unable to open database " + state_.gstrDbFile +
            ".  The selected file is not a Microsoft Access database, or the database may be "
            "corrupted.");
  }
  return !missing;
}

bool Opening::isFolder(const std::string& path) {
  std::int32_t attributes = 0;
  ignoringErrors([&] { attributes = main_.files.GetAttr(path); });
  return (attributes & kAttrDirectory) != 0;
}

// Dir finds no folders; one of exported objects is opened like a database all the same.
bool Opening::isExportFolder() {
  bool isExport = false;
  if (isFolder(state_.gstrDbFile))
    ignoringErrors([&] {
      const Value arguments[] = {Value(path_)};
      isExport = toBoolean(main_.host.object()->call("IsExportFolder", arguments));
    });
  return isExport;
}

void Opening::openInAccess() {
  main_.window.mousePointer = kHourglassPointer;
  statement([&] {
    main_.host.selectDatabase(path_);
    state_.gappAccess = main_.host.CreateAccessApp("Access.Application");
  });
  statement([&] { state_.gappAccess.setVisible(false); });
  statement([&] { main_.host.DoEvents(); });
  // With the Shift key down no start-up code of the database runs.
  statement([&] { main_.host.holdShiftKey(); });
  statement([&] { state_.gappAccess.OpenCurrentDatabase(path_, true); });
  statement([&] { main_.host.releaseShiftKey(); });
}

void Opening::checkVersion() {
  std::string version;
  statement([&] {
    version = joined(state_.gappAccess.CurrentDb().Properties()("AccessVersion").value());
  });
  std::int16_t major = 0;
  statement([&] {
    const std::int32_t dot = InStr(version, ".");
    major = CInt(dot > 0 ? Left(version, dot - 1) : version);
  });
  if (major >= 1 && major <= 6) {
    box(message_style::kCritical,
        "The current database is an earlier version of Microsoft Access." +
            std::string(kParagraph) +
            "It is highly recommended that you first convert the database to your current "
            "version of Microsoft Access.");
    refuse();
  }
  if (major < 7 || major > 11) {
    box(message_style::kInformation,
        "The Tarrowin can open Microsoft Access 97, 2000, 2002 or 2003 databases (.MDB) files "
        "only.");
    refuse();
  }
  versionText_ = "Access v" + version;
  state_.mblnAccess97 = major == 7;
}

void Opening::showDatabase() {
  main_.window.caption =
      std::string(kProgramTitle) + " - [" + state_.gstrDbFile + "] " + versionText_;
  main_.user.captionChanged(main_.window);
  state_.gstrDbPath = path_;
  main_.window.lblCurDb.caption = path_;
  state_.mstrLastDbPath = path_;
}

void Opening::fillLists() {
  for (auto& list : main_.window.lists) list.clear();
  statement([&] { state_.mdbCurr = state_.gappAccess.CurrentDb(); });
  statement([&] { main_.window.lblCurDb.caption = state_.mdbCurr.Name(); });
  main_.window.mousePointer = kHourglassPointer;
  GetQueryNames(main_);
  EnableQryButtons(main_);
  GetFormNames(main_);
  EnableFrmButtons(main_);
  GetMacroNames(main_);
  EnableMacButtons(main_);
  GetModuleNames(main_);
  EnableModButtons(main_);
  GetReportNames(main_);
  EnableRptButtons(main_);
  GetObjectNames(main_);
  EnableObjButtons(main_);
  statement([&] { state_.mstrDbFullName = state_.mdbCurr.Name(); });
  state_.mstrDbName = FileNameOf(state_.mstrDbFullName);
}

void Opening::chooseStartForm() {
  constexpr std::string_view kFormPrefix = "Form.";
  std::string form;
  readingStartForm_ = true;
  statement([&] { form = joined(state_.mdbCurr.Properties()("StartUpForm").value()); });
  readingStartForm_ = false;
  if (form.empty()) form = firstForm();
  if (form.starts_with(kFormPrefix)) form.erase(0, kFormPrefix.size());
  main_.window.cboFormNames = form;
}

void Opening::finish() {
  main_.window.lblCurDb.caption = path_;
  main_.window.txtCurDir = main_.files.CurDir();
  FindDLLPath(main_, kMsderun);
  FindDLLPath(main_, kMsado);
  main_.window.mousePointer = kDefaultPointer;
  main_.user.listsFilled(main_.window);
}

void Opening::refuse() {
  statement([&] { state_.gappAccess.CloseCurrentDatabase(); });
  statement([&] { state_.gappAccess.Quit(access_constants::acQuitSaveAll); });
  state_.gappAccess = {};
  state_.mblnOpenFailed = true;
  state_.gstrDbPath.clear();
  main_.window.mousePointer = kDefaultPointer;
  procedure_.leave();
}

Resume Opening::endFromHandler() {
  ignoringErrors([&] { state_.gappAccess.Quit(access_constants::acQuitSaveAll); });
  state_.gappAccess = {};
  state_.mblnOpenFailed = true;
  state_.gstrDbPath.clear();
  main_.window.mousePointer = kDefaultPointer;
  ignoringErrors([&] { main_.host.releaseShiftKey(); });
  return Resume::kLeave;
}

Resume Opening::onError(const VbError& error) {
  const std::string paragraph(kParagraph);
  const auto row = std::find_if(
      std::begin(kOpeningErrors), std::end(kOpeningErrors),
      [&](const OpeningErrorRow& candidate) { return candidate.number == error.number(); });
  switch (row == std::end(kOpeningErrors) ? kUnexpected : row->reaction) {
    case kGoOn:
      return Resume::kNext;
    case kNoAccess:
      main_.window.mousePointer = kDefaultPointer;
      state_.mblnOpenFailed = true;
      return Resume::kNext;
    case kOtherAccess:
      box(message_style::kCritical,
          error.description() + paragraph +
              "The Tarrowin can only open Microsoft Access databases using the currently "
              "installed version of Access." +
              paragraph +
              "If you have more than one version of Microsoft Access installed, open the default "
              "or last installed version of Microsoft Access first.");
      return endFromHandler();
    case kEnding:
      return endFromHandler();
    case kNoProperty:
      if (readingStartForm_) main_.window.cboFormNames = firstForm();
      return Resume::kNext;
    case kNewerDatabase:
      box(message_style::kInformation,
          error.description() + paragraph +
              "The Tarrowin cannot open Microsoft Access databases that are newer than the "
              "currently installed version of Access." +
              paragraph +
              "The Tarrowin cannot open Microsoft Access version 2.0 or earlier databases." +
              paragraph +
              "The Tarrowin can open Microsoft Access 97, 2000, 2002 or 2003 databases (.MDB) "
              "only.");
      return endFromHandler();
    case kLinkGone:
      ignoringErrors([&] { main_.host.endOrphanedAccess(); });
      state_.mblnOpenFailed = true;
      return Resume::kNext;
    case kNoDatabase:
      box(message_style::kCritical,
          "Error opening database.  You don't have read permission for the objects in this "
          "database or the database is not a Microsoft Access 97, 2000, 2002 or 2003 version." +
              paragraph +
              "The Tarrowin can open Microsoft Access 97, 2000, 2002 or 2003 (.MDB) databases "
              "only.");
      state_.mblnOpenFailed = true;
      return Resume::kNext;
    case kUnexpected:
      break;
  }
  box(message_style::kCritical,
      "CmdOpen_Click() - Error #" + LTrimStr(error.number()) + "\r\n" + error.description() +
          paragraph + "Please note this error if you are unable to resolve the problem.");
  state_.mblnOpenFailed = true;
  return Resume::kNext;
}

}  // namespace

void cmdOpen_Click(MainObject& main) { Opening(main).run(); }

}  // namespace tarrowin
