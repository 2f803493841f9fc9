// ConvertModules: its loop, its summary, its closing step.
#include "core/module_batch.h"

#include "codeconv/module_code.h"
#include "core/batch_driver.h"
#include "core/output_naming.h"
#include "shared/vb_text.h"

namespace tarrowin {

namespace {

// Access refused to open the module: no permission, and the module is not open.
constexpr std::int32_t kErrNoPermission = 2601, kErrModuleNotOpen = 7961;

class ModuleBatch : public BatchDriver {
 public:
  explicit ModuleBatch(MainObject& main)
      : BatchDriver(main, batchMember(ObjectList::kModules)), state_(main.state) {}

 protected:
  void resetLists() override { state_.mstrVbClasses.reset(); }
  void convertSelection() override;
  std::string summary() override;
  void closingStep() override;

 private:
  void convertModule();

  ConversionState& state_;
};

void ModuleBatch::convertSelection() {
  showProgress();
  for (std::size_t i = 1; i <= items().size(); ++i) {
    beginItem(i);
    if (!items()[i - 1].selected) continue;
    selectedName_ = currentName_;
    main_.user.refresh(main_.window);
    convertModule();
  }
}

void ModuleBatch::convertModule() {
  statement([&] { state_.gappAccess.doCmd().Echo(false); });
  statement([&] { state_.gappAccess.doCmd().OpenModule(selectedName_); });
  statement([&] { state_.gappAccess.doCmd().Echo(true); });
  main_.window.focus = "frmTarrowin";
  if (errorNumber_ == kErrNoPermission || errorNumber_ == kErrModuleNotOpen) return;
  SetupModNames(main_, selectedName_);
  std::int32_t lines = 0;
  statement([&] { lines = state_.gappAccess.Modules(selectedName_).CountOfLines(); });
  if (lines < 1) return;
  GetAccModuleCode(main_);
  ++convertedCount_;
}

std::string ModuleBatch::summary() {
  const std::string& directory = state_.mstrOutputDir;
  if (convertedCount_ == 0) {
    return "Unable to convert Access Modules to Visual Basic Modules.\r\n\r\n";
  }
  if (convertedCount_ == 1) {
    return "Successfully converted Access Module: " + selectedName_ +
           " to Visual Basic Module: " + state_.gstrModuleFile + ".\r\n\r\n" +
           "Converted Module is saved in directory: " + directory + "\r\n\r\n";
  }
  return "Successfully converted " + LTrimStr(convertedCount_) +
         " Access Modules to Visual Basic Modules. \r\n\r\n" +
         "Converted Modules are saved in directory: " + directory + "\r\n\r\n";
}

void ModuleBatch::closingStep() {
  if (convertedCount_ > 0) state_.mblnModuleConverted = true;
  // The list's last item, selected or not; with an empty list no name at all.
  statement([&] {
    state_.gappAccess.doCmd().Close(access_constants::acModule, currentName_,
                                    access_constants::acSaveNo);
  });
}

}  // namespace

void ConvertModules(MainObject& main, bool blnAll) { ModuleBatch(main).run(blnAll); }

}  // namespace tarrowin
