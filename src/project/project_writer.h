// Prints the lines of a project file, and what all projects have in common.
#pragma once

#include <string>
#include <string_view>

#include "core/main_object.h"
#include "core/statement.h"

namespace tarrowin {

// A procedure that writes files through the output slot. Each operation is a statement of its own:
// one that fails is told in the procedure's box, and the next one follows.
class ProjectWriter {
 public:
  ProjectWriter(MainObject& main, std::string_view procedure);

  // Opens the file of that name in the output directory, emptied.
  void open(const std::string& fileName);
  // The same after deleting an existing file.
  void replace(const std::string& fileName);
  void print(std::string_view line);
  void close();

  // "Reference=..." of OLE automation.
  void printOleReference();
  // "MajorVer=1" to "MaxNumberOfThreads=1".
  void printCompilerLines();

 private:
  MainObject& main_;
  Procedure procedure_;
};

}  // namespace tarrowin
