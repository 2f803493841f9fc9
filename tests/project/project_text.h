// Expected texts of project files, as they are typed in tests.
#pragma once

#include <string>
#include <string_view>

namespace tarrowin::test {

// The lines of a raw string that begins with a line end, each ended by CR LF.
inline std::string asFile(std::string_view lines) {
  std::string text;
  for (const char c : lines.substr(1)) text += c == '\n' ? std::string("\r\n") : std::string(1, c);
  return text;
}

// How every project ends.
inline constexpr std::string_view kCompilerLines = R"(
MajorVer=1
MinorVer=0
RevisionVer=0
AutoIncrementVer=0
ServerSupportFiles=0
VersionCompanyName=""
CompilationType=0
OptimizationType=0
FavorPentiumPro(tm)=0
CodeViewDebugInfo=0
NoAliasing=0
BoundsCheck=0
OverflowCheck=0
FlPointCheck=0
FDIVCheck=0
UnroundedFP=0
StartMode=0
Unattended=0
Retained=0
ThreadPerObject=0
MaxNumberOfThreads=1
)";

}  // namespace tarrowin::test
