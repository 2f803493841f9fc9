// References, objects, names and options of a project, in the order of its lines.
#include "project/vb_project.h"

#include <string>

#include "core/library_paths.h"
#include "core/main_object.h"
#include "project/project_writer.h"
#include "project/viewer_form.h"
#include "shared/path_procedures.h"
#include "shared/text_procedures.h"

namespace tarrowin {

namespace {

using Path = std::string (*)(const MainObject&);
using Condition = bool (*)(const ConversionState&);

std::string msderunPath(const MainObject& main) { return main.state.mstrMsderunPath; }
std::string msadoPath(const MainObject& main) { return main.state.mstrMsadoPath; }
std::string daoPath(const MainObject& main) { return main.state.gstrDaoPath; }
std::string officePath(const MainObject& main) {
  const std::string& path = main.state.gstrOfficePath;
  return path.ends_with('\\') ? path : path + '\\';
}

bool always(const ConversionState&) { return true; }
bool ofDataRepeater(const ConversionState& state) { return state.mblnDataRepeater; }
bool ofReports(const ConversionState& state) { return state.mblnReportMode; }
bool daoIsKnown(const ConversionState& state) { return !state.gstrDaoPath.empty(); }

// A type library: what stands before its path and behind it.
struct ReferenceRow {
  Condition due;
  std::string_view head;
  Path path;
  std::string_view tail;
};
// clang-format off
// Behind OLE automation, which every kind of project names first.
constexpr ReferenceRow kReferences[] = {
    {always, "Reference=*\\G{2DF8D04C-5BFA-101B-BDE5-00AA0044DE52}#2.2#0#",
     officePath, "MSO.DLL#Microsoft Office 10.0 Object Library"},
    // The semicolon belongs to the line.
    {ofDataRepeater, "Reference=*\\G{56BF9020-7A2F-11D0-9482-00A0C91110ED}#1.0#0#;",
     GetWindowsSysDir, "MSBIND.DLL#Microsoft Data Binding Collection"},
    {ofReports, "Reference=*\\G{3D5C6BF0-69A3-11D0-B393-00A0C9055D8E}#1.0#0#",
     msderunPath, "msderun.dll#Microsoft Data Environment Instance 6.0"},
    {ofReports, "Reference=*\\G{00000200-0000-0010-8000-00AA006D2EA4}#2.0#0#",
     msadoPath, "msado15.dll#Microsoft ActiveX Data Objects 2.0 Library"},
    {ofReports, "Reference=*\\G{642AC760-AAB4-11D0-8494-00A0C90DC8A9}#1.0#0#",
     GetWindowsSysDir, "MSDBRptR.DLL#Microsoft Data Report Designer v6.0"},
    {ofReports, "Reference=*\\G{6B263850-900B-11D0-9484-00A0C91110ED}#1.0#0#",
     GetWindowsSysDir, "MSSTDFMT.DLL#Microsoft Data Formatting Object Library"},
    {daoIsKnown, "Reference=*\\G{00025E01-0000-0000-C000-000000000046}#5.0#0#",
     daoPath, "#Microsoft DAO 3.6 Object Library"},
};

// A control library and the flag that its controls raise.
struct ObjectRow {
  bool ConversionState::*used;
  std::string_view line;
};
constexpr ObjectRow kObjects[] = {
    {&ConversionState::mblnAdoDataCtl,    "Object={67397AA1-7FB1-11D0-B148-00A0C922E820}#6.0#0; MSADODC.OCX"},
    {&ConversionState::blnUsesCalendar,   "Object={8E27C92E-1264-101C-8A2F-040224009C02}#7.0#0; MSCAL.OCX"},
    {&ConversionState::blnUsesMsComCtl,   "Object={831FDD16-0C5C-11D2-A9FC-0000F8754DA1}#2.0#0; MSCOMCTL.OCX"},
    {&ConversionState::blnUsesComCtl32,   "Object={6B7E6392-850A-101B-AFC0-4210102A8DA7}#1.3#0; COMCTL32.OCX"},
    {&ConversionState::blnUsesComDlg,     "Object={F9043C88-F6F2-101A-A3C9-08002B2F49FB}#1.1#0; COMDLG32.OCX"},
    {&ConversionState::blnUsesDataGrid,   "Object={CDE57A40-8B86-11D0-B3C6-00A0C90AEA82}#1.0#0; MSDATGRD.OCX"},
    {&ConversionState::blnUsesDbList,     "Object={FAEEE763-117E-101B-8933-08002B2F4F5A}#1.1#0; DBLIST32.OCX"},
    {&ConversionState::blnUsesRichText,   "Object={3B7C8863-D78F-101B-B9B5-04021C009402}#1.1#0; RICHTX32.OCX"},
    {&ConversionState::blnUsesTabCtl,     "Object={BDC217C8-ED16-11CD-956C-0000C04E4C0A}#1.1#0; TABCTL32.OCX"},
    {&ConversionState::blnUsesSubControl, "Object={5A1E07C4-3D92-4B6E-9F10-7C2E84D6A1B3}#7.0#0; SBSubControl.ocx"},
    {&ConversionState::mblnDataRepeater,  "Object={5C8CED40-8909-11D0-9483-00A0C91110ED}#1.0#0; MSDATREP.OCX"},
};
// clang-format on

class VbProject {
 public:
  explicit VbProject(MainObject& main)
      : main_(main), state_(main.state), file_(main, "CreateVbProject") {}

  void write(const std::string& strProjFile) {
    file_.open(strProjFile);
    file_.print("Type=Exe");
    printReferences();
    printForms();
    printObjects();
    printModules();
    chooseNames(strProjFile);
    printNames();
    file_.printCompilerLines();
    state_.mstrVbForms.reset();
    state_.mstrVbModules.reset();
    state_.mstrVbClasses.reset();
    file_.close();
    if (state_.mblnReportMode) writeViewerForm(state_, strStart_, file_);
  }

 private:
  void printReferences();
  void printForms();
  void printObjects();
  void printModules();
  void chooseNames(const std::string& strProjFile);
  void printNames();

  MainObject& main_;
  ConversionState& state_;
  ProjectWriter file_;
  std::string strStart_;  // stem of the project's name; in report mode the viewer form
  std::string strPick_;   // the form that starts
};

void VbProject::printReferences() {
  file_.printOleReference();
  // Nobody tells where the Office library is: it is taken for a neighbour of the first library.
  if (state_.gstrOfficePath.empty()) state_.gstrOfficePath = state_.mstrMsderunPath;
  for (const ReferenceRow& row : kReferences) {
    if (!row.due(state_)) continue;
    file_.print(std::string(row.head) + row.path(main_) + std::string(row.tail));
  }
}

void VbProject::printForms() {
  if (!state_.mblnReportMode) {
    for (const std::string& form : state_.mstrVbForms) file_.print("Form=" + form);
    return;
  }
  // All Data Environments precede all Data Reports.
  for (const std::string& report : state_.mstrVbReports) file_.print("Designer=de" + report);
  for (const std::string& report : state_.mstrVbReports) file_.print("Designer=" + report);
}

void VbProject::printObjects() {
  for (const ObjectRow& row : kObjects) {
    if (state_.*row.used) file_.print(row.line);
  }
}

void VbProject::printModules() {
  if (state_.mblnModuleConverted) {
    for (const std::string& module : state_.mstrVbModules) {
      if (module.ends_with("bas")) file_.print("Module=" + StemOf(module) + "; " + module);
    }
  }
  for (const std::string& module : state_.mstrVbClasses) {
    file_.print("Class=" + StemOf(module) + "; " + module);
  }
}

void VbProject::chooseNames(const std::string& strProjFile) {
  const bool oneForm = state_.mstrVbForms.count() == 1;
  const std::string& chosen = main_.window.cboFormNames;
  strStart_ = StemOf(state_.gstrFormFile.empty() ? state_.gstrModuleFile : state_.gstrFormFile);
  // With one form the user's choice holds even when nothing is chosen.
  strPick_ = oneForm || !chosen.empty() ? chosen : strStart_;
  MakeVBName(strPick_);
  if (!oneForm) strStart_ = StemOf(strProjFile);
  if (state_.mblnReportMode && !strStart_.starts_with("frm")) strStart_ = "frm" + strStart_;
}

void VbProject::printNames() {
  if (state_.mblnReportMode) file_.print("Form=" + strStart_ + ".frm");
  file_.print("Startup=" + inQuotes(state_.mblnReportMode ? strStart_ : strPick_));
  file_.print("Command32=" + inQuotes(""));
  file_.print("Name=" + inQuotes(state_.mblnReportMode ? strStart_ : "prj" + strStart_));
  file_.print("HelpContextId=" + inQuotes("0"));
  file_.print("CompatibleMode=" + inQuotes("0"));
}

}  // namespace

void CreateVbProject(MainObject& main, std::string_view strProjFile) {
  VbProject(main).write(std::string(strProjFile));
}

}  // namespace tarrowin
