// The table of references and the text around it.
#include "core/access_references.h"

#include <array>
#include <string>

#include "core/main_object.h"
#include "core/statement.h"
#include "shared/vb_text.h"

namespace tarrowin {

namespace {

// File, tabs, name. The zero of "DA0" belongs to its row.
constexpr std::array<std::string_view, 9> kReferences = {
    "VBE6.DLL\t\tVisual Basic for Applications",
    "MSACC9.OLB\t\tMicrosoft Access 9.0 Object Library",
    "MSO9.DLL\t\tMicrosoft Office 9.0 Object Library",
    "DAO360.DLL\t\tMicrosoft DA0 3.6 Object Library",
    "stdole2.tlb\t\tOLE Automation",
    "COMCTL32.OCX\tMicrosoft Windows Common Controls 5.0 (SP2)",
    "COMDLG32.OCX\tMicrosoft Common Dialog Control 6.0 (SP3)",
    "TABCTL32.OCX\tMicrosoft Tabbed Dialog Control 6.0",
    "VBE6EXT.OLB\t\tMicrosoft Visual Basic for Applications Extensibility 5.3",
};

constexpr std::string_view kIntroduction =
    "To ensure that the Tarrowin displays correctly, select the following References, \r\n"
    "in order of priority, from the current database.\r\n\r\n"
    "       Filename\t\tReference\r\n\r\n";

constexpr std::string_view kClosing =
    "\r\nTo view and select the current References, open a Form in Code view or a Module in \r\n"
    "Design view and select the References/Tools menu item (Alt-TR). Select a Reference \r\n"
    "from the displayed list or click the Browse button to locate any missing files.\r\n\r\n"
    "Refer to the References section in the Readme.txt file for more information.";

Collection<LateBound> referencesOf(const Application& access) {
  return Collection<LateBound>(toObject(access.get("References")));
}

std::int32_t countOfAccess(const Application& access) {
  const LateBound reference = referencesOf(access)("Access");
  return Collection<LateBound>(toObject(reference.get("Collection"))).Count();
}

// References whose file is known.
std::size_t countOfFound(const Application& access) {
  std::size_t found = 0;
  ignoringErrors([&] {
    const Collection<LateBound> references = referencesOf(access);
    const std::int32_t count = references.Count();
    for (std::int32_t i = 0; i < count; ++i) {
      if (holds([&] { return !references(i).text("FullPath").empty(); })) ++found;
    }
  });
  return found;
}

// One row for each reference found; behind the table's last one a number alone.
std::string rows(std::size_t count) {
  std::string text;
  for (std::size_t i = 1; i <= count; ++i) {
    if (i < 10) text += "  ";
    text += std::to_string(i) + " - ";
    if (i <= kReferences.size()) text += kReferences[i - 1];
    text += kCrLf;
  }
  return text;
}

}  // namespace

void CheckAccessRefs(MainObject& main) {
  const Application& access = main.state.gappAccess;
  std::int32_t count = 0;
  ignoringErrors([&] { count = countOfAccess(access); });
  if (count == static_cast<std::int32_t>(kReferences.size())) return;
  main.messageBox(message_style::kInformation,
                  std::string(kIntroduction) + rows(countOfFound(access)) + std::string(kClosing));
}

}  // namespace tarrowin
