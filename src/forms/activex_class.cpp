// Class names such as "MSComctlLib.TreeCtrl.2" taken apart.
#include "forms/activex_class.h"

#include "core/statement.h"
#include "shared/vb_text.h"

namespace tarrowin {

namespace {

struct LibraryFlagRow {
  std::string_view shortName;
  bool ConversionState::*flag;
};

constexpr LibraryFlagRow kLibraryFlags[] = {
    {"Adodc", &ConversionState::mblnAdoDataCtl},
    {"Calendar", &ConversionState::blnUsesCalendar},
    {"CommonDialog", &ConversionState::blnUsesComDlg},
    {"DataGrid", &ConversionState::blnUsesDataGrid},
    {"RichText", &ConversionState::blnUsesRichText},
};

}  // namespace

ActiveXClass readActiveXClass(ConversionState& state, const LateBound& ctl) {
  constexpr std::string_view kControlEnding = "Ctrl";
  ActiveXClass result;
  state.gblnProjectNeeded = true;
  ignoringErrors([&] {
    result.shortName = ctl.text("OLEClass");
    if (result.shortName.ends_with(kControlEnding))
      result.shortName.resize(result.shortName.size() - kControlEnding.size());
  });
  std::string libraryClass;
  ignoringErrors([&] { libraryClass = ctl.text("Class"); });
  const std::int32_t dot = InStr(libraryClass, ".");
  if (libraryClass.starts_with("MS")) {
    state.blnUsesMsComCtl = true;
    result.prefix = Left(libraryClass, dot);
  } else {
    state.blnUsesComCtl32 = true;
    ignoringErrors([&] { result.prefix = Left(libraryClass, dot - 1) + "Lib."; });
  }
  return result;
}

void raiseLibraryFlag(ConversionState& state, std::string_view shortName) {
  for (const LibraryFlagRow& row : kLibraryFlags) {
    if (row.shortName == shortName) state.*row.flag = true;
  }
}

}  // namespace tarrowin
