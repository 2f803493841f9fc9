// The lines of the viewer form.
#include "project/viewer_form.h"

#include "shared/text_procedures.h"

namespace tarrowin {

namespace {

// The keyword in capitals and small letters: this form says "Version 5.0", unlike all others.
constexpr std::string_view kVersionLine = "Version 5.0";
// Behind "Begin VB.Form " and the name.
constexpr std::string_view kFormLines[] = {
    "   BorderStyle = 1        'Fixed Single",
    "   Caption = \"View Report\"",
    "   ClientHeight = 3195",
    "   ClientLeft = 45",
    "   ClientTop = 330",
    "   ClientWidth = 4680",
    "   LinkTopic = \"Form1\"",
    "   MaxButton = 0           'False",
    "   MinButton = -1          'True",
    "   ScaleHeight = 3195",
    "   ScaleWidth = 4680",
    "   StartUpPosition = 3    'Windows Default",
    "   Begin VB.CommandButton cmdViewReport",
    "      Caption = \"&View Report\"",
    "      Height = 495",
    "      Left = 1440",
    "      TabIndex = 0",
    "      Top = 1080",
    "      Width = 1335",
    "   End",
    "End",
    "Private Sub cmdViewReport_Click()",
    "   ' If a Report is based on a Parameter Query, type the required parameters. For example...",
    "   ' DataEnvironment1.Command1_Grouping '1995/01/01', '1995/12/31'",
    "   ' Uncomment the following line only for a Parameter Query...",
};

std::string withoutExtension(std::string designerFile) {
  constexpr std::string_view kExtension = ".dsr";
  const std::size_t found = designerFile.find(kExtension);
  if (found != std::string::npos) designerFile.erase(found, kExtension.size());
  return designerFile;
}

// The entry below the upper bound: the last one, or the unused one of an empty list.
const std::string& lastOf(const GrowingList& list) { return list[list.upperBound() - 1]; }

}  // namespace

void writeViewerForm(const ConversionState& state, const std::string& name, ProjectWriter& file) {
  const GrowingList& reports = state.mstrVbReports;
  file.replace(name + ".frm");
  file.print(kVersionLine);
  file.print("Begin VB.Form " + name);
  for (const std::string_view line : kFormLines) file.print(line);
  file.print("   ' " + withoutExtension("de" + lastOf(reports)) + "." + state.strDataMember +
             " '1995/01/01', '1995/12/31'");
  file.print("");
  file.print("   ' Uncomment the appropriate line to display the desired Report");
  for (const std::string& report : reports) {
    file.print("   ' " + withoutExtension(report) + ".Show");
  }
  file.print("End Sub");
  file.close();
}

}  // namespace tarrowin
