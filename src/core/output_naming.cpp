// The naming procedures of forms, designers and modules.
#include "core/output_naming.h"

#include <string>

#include "core/main_object.h"
#include "shared/text_procedures.h"
#include "shared/vb_text.h"

namespace tarrowin {

namespace {

// Names of modules that Access made of macros begin so; the macro's name starts behind it.
constexpr std::string_view kConvertedMacro = "Converted Macro- ";
constexpr std::int32_t kMacroNameStart = 18;

// Runs a naming procedure; its first failing statement ends it with its own box.
template <class Body>
void named(MainObject& main, std::string_view procedure, Body&& body) {
  try {
    body();
  } catch (const VbError& error) {
    main.errorBox(procedure, error);
  }
}

void deleteOldFile(FileSlots& files, const std::string& path) {
  if (!files.Dir(path).empty()) files.Kill(path);
}

// Names, deletes and opens the output file of a form or designer.
void openFormFile(MainObject& main, std::string_view name, std::string_view prefix,
                  std::string_view extension) {
  ConversionState& state = main.state;
  state.intDataCtlNum = 0;
  state.intAdoCtlNum = 0;
  state.mstrObjName = Trim(name);
  state.mstrBaseName = MakeVBName(std::string(state.mstrObjName));
  state.mstrFormFile = Trim(state.mstrBaseName) + std::string(extension);
  const std::string path = state.mstrOutputDir + std::string(prefix) + state.mstrFormFile;
  deleteOldFile(main.files, path);
  state.gstrFormFile = state.mstrFormFile;
  main.files.Open(path, FileMode::kAppend, kOutputFile);
}

}  // namespace

void SetupFormNames(MainObject& main, std::string_view strObjName) {
  named(main, "SetupFormNames", [&] {
    const ConversionState& state = main.state;
    const bool control = state.mblnUserControl;
    openFormFile(main, strObjName, control ? "ctl" : "",
                 control ? ".ctl" : (state.mblnReportMode ? ".dsr" : ".frm"));
  });
}

void SetupDesignerName(MainObject& main, std::string_view strObjName) {
  named(main, "SetupDesignerName", [&] { openFormFile(main, strObjName, "de", ".dsr"); });
}

void SetupModNames(MainObject& main, std::string_view ModName) {
  named(main, "SetupModNames", [&] {
    ConversionState& state = main.state;
    state.intDataCtlNum = 0;
    state.mstrModName = Trim(ModName);
    const bool standard = state.gappAccess.Modules(state.mstrModName).Type() == 0;
    const bool fromMacro = InStr(state.mstrModName, kConvertedMacro) > 0;
    state.mstrBaseName = MakeVBName(fromMacro ? "Macro_" + Mid(state.mstrModName, kMacroNameStart)
                                              : state.mstrModName);
    state.mstrModFile = Trim(state.mstrBaseName) + (standard ? ".bas" : ".cls");
    if (!standard) state.mstrVbClasses.append(state.mstrModFile);
    deleteOldFile(main.files, state.mstrOutputDir + state.mstrModFile);
    state.gstrModuleFile = state.mstrModFile;
  });
}

}  // namespace tarrowin
