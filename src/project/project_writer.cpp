// The statements of a project's procedure, and the lines that all projects share.
#include "project/project_writer.h"

#include "core/library_paths.h"

namespace tarrowin {

namespace {

constexpr std::string_view kCompilerLines[] = {
    "MajorVer=1",          "MinorVer=0",           "RevisionVer=0",
    "AutoIncrementVer=0",  "ServerSupportFiles=0", "VersionCompanyName=\"\"",
    "CompilationType=0",   "OptimizationType=0",   "FavorPentiumPro(tm)=0",
    "CodeViewDebugInfo=0", "NoAliasing=0",         "BoundsCheck=0",
    "OverflowCheck=0",     "FlPointCheck=0",       "FDIVCheck=0",
    "UnroundedFP=0",       "StartMode=0",          "Unattended=0",
    "Retained=0",          "ThreadPerObject=0",    "MaxNumberOfThreads=1",
};

}  // namespace

ProjectWriter::ProjectWriter(MainObject& main, std::string_view procedure)
    : main_(main), procedure_([&main, procedure](const VbError& error) {
        main.errorBox(procedure, error);
        return Resume::kNext;
      }) {}

void ProjectWriter::open(const std::string& fileName) {
  procedure_.statement([&] {
    main_.files.Open(main_.state.mstrOutputDir + fileName, FileMode::kOutput, kOutputFile);
  });
}

void ProjectWriter::replace(const std::string& fileName) {
  procedure_.statement([&] {
    const std::string path = main_.state.mstrOutputDir + fileName;
    if (!main_.files.Dir(path).empty()) main_.files.Kill(path);
  });
  open(fileName);
}

void ProjectWriter::print(std::string_view line) {
  procedure_.statement([&] { main_.files.Print(kOutputFile, line); });
}

void ProjectWriter::close() {
  procedure_.statement([&] { main_.files.Close(kOutputFile); });
}

void ProjectWriter::printOleReference() {
  print("Reference=*\\G{00020430-0000-0000-C000-000000000046}#2.0#0#" + GetWindowsSysDir(main_) +
        "stdole2.tlb#OLE Automation");
}

void ProjectWriter::printCompilerLines() {
  for (const std::string_view line : kCompilerLines) print(line);
}

}  // namespace tarrowin
