// Opening, closing and exporting objects of the open database.
#include "access/model/do_cmd_object.h"

#include <algorithm>
#include <fstream>
#include <utility>

#include "access/model/module_object.h"

namespace tarrowin {

namespace {

// acForm, acReport, acMacro, acModule; acOutputModule is acModule too.
constexpr std::int32_t kForm = 2, kReport = 3, kMacro = 4, kModule = 5;
// acCmdWindowHide, acCmdConvertMacrosToVisualBasic.
constexpr std::int32_t kWindowHide = 2, kConvertMacros = 279;

constexpr std::int32_t kErrCommandNotAvailable = 2046;
constexpr std::int32_t kErrNoForm = 2102, kErrNoReport = 2103, kErrNoModule = 2516;
constexpr std::int32_t kErrCannotSaveOutput = 2302;
constexpr std::int32_t kErrInvalidObjectType = 2487;
constexpr std::int32_t kErrFormNameMissing = 2494;

class DoCmdObject : public NamedObject {
 public:
  explicit DoCmdObject(std::shared_ptr<Session> session) : session_(std::move(session)) {}

 protected:
  Value read(const MemberUse& use) override { return invoke(use); }

  Value invoke(const MemberUse& use) override {
    switch (use.member()) {
      case Member::kEcho:
      case Member::kSetWarnings:
      case Member::kMinimize:
      case Member::kHourglass:
        return {};
      case Member::kOpenForm:
        if (nameIn(use, 0).empty()) raise(kErrFormNameMissing);
        openDesign(model().forms, session().openForms, false, nameIn(use, 0), kErrNoForm);
        return {};
      case Member::kOpenReport:
        openDesign(model().reports, session().openReports, true, nameIn(use, 0), kErrNoReport);
        return {};
      case Member::kOpenModule:
        openModule(nameIn(use, 0));
        return {};
      case Member::kClose:
        close(use);
        return {};
      case Member::kSelectObject:
        select(use);
        return {};
      case Member::kRunCommand:
        runCommand(toLong(use.argument(0)));
        return {};
      case Member::kOutputTo:
        outputTo(use);
        return {};
      default:
        raise(kErrNoSuchMember, use.name);
    }
  }

 private:
  Session& session() const {
    if (!session_ || !session_->isOpen()) raise(kErrObjectNotSet);
    return *session_;
  }
  const DatabaseModel& model() const { return session().model(); }

  static std::string nameIn(const MemberUse& use, std::size_t argument) {
    return toText(use.argument(argument));
  }

  void openDesign(const NamedList<DesignModel>& list,
                  std::vector<std::shared_ptr<OpenDesign>>& open, bool isReport,
                  const std::string& name, std::int32_t missing) {
    const DesignModel* design = list.find(name, model().folding);
    if (!design) raise(missing, name);
    if (design->openError) design->openError->raise(design->name);
    for (const auto& known : open)
      if (known->source() == design) return;
    open.push_back(std::make_shared<OpenDesign>(*design, isReport));
  }

  void openModule(const std::string& name) {
    const ModuleModel* module = model().modules.find(name, model().folding);
    if (!module) raise(kErrNoModule, name);
    if (module->openError) module->openError->raise(module->name);
    auto& open = session().openModules;
    if (std::find(open.begin(), open.end(), module) == open.end()) open.push_back(module);
  }

  // What is not open is closed already. Changes are dropped.
  void close(const MemberUse& use) {
    const DatabaseModel& database = model();
    if (use.argument(0).isEmpty()) return;
    const std::int32_t type = toLong(use.argument(0));
    const std::string name = nameIn(use, 1);
    if (type == kForm) closeDesign(database.forms, session().openForms, name);
    if (type == kReport) closeDesign(database.reports, session().openReports, name);
    if (type == kModule) {
      const ModuleModel* module = database.modules.find(name, database.folding);
      std::erase(session().openModules, module);
    }
  }

  void closeDesign(const NamedList<DesignModel>& list,
                   std::vector<std::shared_ptr<OpenDesign>>& open, const std::string& name) {
    const DesignModel* design = list.find(name, model().folding);
    const auto found = std::find_if(open.begin(), open.end(),
                                    [design](const auto& one) { return one->source() == design; });
    if (found == open.end()) return;
    (*found)->close();
    open.erase(found);
  }

  void select(const MemberUse& use) {
    const DatabaseModel& database = model();
    if (toLong(use.argument(0)) != kMacro) return;
    const Value& name = use.argument(1);
    session().selectedMacro =
        name.text() ? database.macros.find(*name.text(), database.folding) : nullptr;
  }

  // Only the command that hides the database window is available, and has nothing to hide.
  void runCommand(std::int32_t command) {
    if (command == kWindowHide) return;
    const MacroModel* macro = session_ ? session_->selectedMacro : nullptr;
    if (command == kConvertMacros && macro && macro->openError)
      macro->openError->raise(macro->name);
    raise(kErrCommandNotAvailable, std::to_string(command));
  }

  // OutputTo acOutputModule, name, format, file: the module's text as it stands in the tree.
  void outputTo(const MemberUse& use) {
    const DatabaseModel& database = model();
    if (use.argument(0).isEmpty() || toLong(use.argument(0)) != kModule)
      raise(kErrInvalidObjectType);
    const std::string& text = moduleText(database, nameIn(use, 1));
    const std::string path = nameIn(use, 3);
    std::ofstream file(database.codePage.toUtf8(path), std::ios::binary | std::ios::trunc);
    file.write(text.data(), static_cast<std::streamsize>(text.size()));
    file.close();
    if (!file)
      throw VbError(kErrCannotSaveOutput,
                    "Microsoft Access can't save the output data to the file '" + path + "'.");
  }

  std::shared_ptr<Session> session_;
};

}  // namespace

ObjectRef makeDoCmd(std::shared_ptr<Session> session) {
  return std::make_shared<DoCmdObject>(std::move(session));
}

}  // namespace tarrowin
