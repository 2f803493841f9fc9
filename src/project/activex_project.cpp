// The lines of the control project and of the group.
#include "project/activex_project.h"

#include <string>

#include "core/main_object.h"
#include "project/project_writer.h"
#include "shared/path_procedures.h"
#include "shared/text_procedures.h"

namespace tarrowin {

namespace {

void writeControlProject(const ConversionState& state, const std::string& strProjFile,
                         ProjectWriter& file) {
  const std::string stem = StemOf(strProjFile);
  file.open("ctl" + strProjFile);
  file.print("Type=Control");
  file.printOleReference();
  for (const std::string& control : state.mstrVbUserControls) {
    if (!control.empty()) file.print("UserControl=ctl" + control);
  }
  file.print("Startup=" + inQuotes("(None)"));
  file.print("Command32=" + inQuotes(""));
  file.print("ExeName32=" + inQuotes(stem + ".ocx"));
  file.print("Name=" + inQuotes("prjctl" + stem));
  file.print("HelpContextId=" + inQuotes("0"));
  file.print("CompatibleMode=" + inQuotes("0"));
  file.print("CompatibleEXE32=" + inQuotes(stem + ".ocx"));
  file.printCompilerLines();
  file.print("ThreadingModel=1");
  file.close();
}

// The project of the forms stands here as the one that starts, and nowhere else.
void writeGroup(const std::string& strProjFile, ProjectWriter& file) {
  file.replace(StemOf(strProjFile) + ".vbg");
  file.print("VBGROUP 5.0");
  file.print("StartupProject=" + strProjFile);
  file.print("Project=ctl" + strProjFile);
  file.close();
}

}  // namespace

void CreateVbActiveXProject(MainObject& main, std::string_view strProjFile) {
  ProjectWriter file(main, "CreateVbActiveXProject");
  writeControlProject(main.state, std::string(strProjFile), file);
  writeGroup(std::string(strProjFile), file);
  main.state.mstrVbUserControls.reset();
}

}  // namespace tarrowin
