// ConvertMacros: its sequence of commands, its summary.
#include "core/macro_batch.h"

#include <string>

#include "core/batch_driver.h"
#include "core/object_lists.h"
#include "shared/vb_text.h"

namespace tarrowin {

namespace {

// Access refused to open the macro.
constexpr std::int32_t kErrNoPermission = 2601;

class MacroBatch : public BatchDriver {
 public:
  explicit MacroBatch(MainObject& main)
      : BatchDriver(main, batchMember(ObjectList::kMacros)), access_(main.state.gappAccess) {}

 protected:
  void resetLists() override {}
  void convertSelection() override;
  std::string summary() override;
  // The new modules come into their lists.
  void beforeClosingBox() override { InsertObjectNames(main_); }

 private:
  void convertMacro();

  const Application& access_;
};

void MacroBatch::convertSelection() {
  showProgress();
  for (std::size_t i = 1; i <= items().size(); ++i) {
    beginItem(i);
    if (items()[i - 1].selected) convertMacro();
  }
  // The window stays as it is in the middle of the work.
  if (convertedCount_ == 0) leave();
}

void MacroBatch::convertMacro() {
  using namespace access_constants;
  const auto command = [this](auto&& act) { statement([&] { act(access_.doCmd()); }); };
  command([](const DoCmd& doCmd) { doCmd.Echo(false); });
  command([](const DoCmd& doCmd) { doCmd.SetWarnings(false); });
  // Brings the page of macros to the front.
  command([](const DoCmd& doCmd) { doCmd.SelectObject(acMacro, Value(), true); });
  selectedName_ = currentName_;
  // For the two questions that the conversion asks.
  statement([&] { main_.host.SendKeys("{ENTER 2}"); });
  command([&](const DoCmd& doCmd) { doCmd.SelectObject(acMacro, Value(selectedName_), true); });
  command([](const DoCmd& doCmd) { doCmd.RunCommand(acCmdConvertMacrosToVisualBasic); });
  command([](const DoCmd& doCmd) { doCmd.RunCommand(acCmdWindowHide); });
  command([](const DoCmd& doCmd) { doCmd.SetWarnings(true); });
  command([](const DoCmd& doCmd) { doCmd.Echo(true); });
  main_.user.refresh(main_.window);
  if (errorNumber_ != kErrNoPermission) ++convertedCount_;
}

std::string MacroBatch::summary() {
  if (convertedCount_ == 1) {
    return "Successfully converted Access Macro: " + selectedName_ +
           " to Visual Basic Module: Converted Macro- " + selectedName_ +
           ".\r\n\r\nConverted Macro is saved in the Modules and VB Projects lists.\r\n\r\n";
  }
  return "Successfully converted " + LTrimStr(convertedCount_) +
         " Access Macros to Visual Basic Modules. \r\n\r\nConverted Macros are saved in the "
         "Modules and VB Projects lists.\r\n\r\n";
}

}  // namespace

void ConvertMacros(MainObject& main, bool blnAll) { MacroBatch(main).run(blnAll); }

}  // namespace tarrowin
