// Opening, closing and exporting objects of the open database.
#include "access/model/do_cmd_object.h"

#include <algorithm>
#include <fstream>
#include <utility>

#include "access/macro/macro_module.h"
#include "access/model/module_object.h"

namespace tarrowin {

namespace {

// acForm, acReport, acMacro, acModule; acOutputModule is acModule too.
constexpr std::int32_t kForm = 2, kReport = 3, kMacro = 4, kModule = 5;
// acSaveYes.
constexpr std::int32_t kSaveYes = 1;
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

  // What is not open is closed already. A new form is kept when the save option says yes; changes
  // to what the database has are dropped, whatever it says.
  void close(const MemberUse& use) {
    Session& open = session();
    if (use.argument(0).isEmpty()) return;
    const std::int32_t type = toLong(use.argument(0));
    const std::string name = nameIn(use, 1);
    const bool save = toLong(use.argument(2)) == kSaveYes;
    if (type == kForm) closeDesign(open.openForms, name, save);
    if (type == kReport) closeDesign(open.openReports, name, save);
    if (type == kModule) {
      const DatabaseModel& database = open.model();
      const ModuleModel* module = database.modules.find(name, database.folding);
      std::erase(open.openModules, module);
    }
  }

  // A form that cannot be saved stays open.
  void closeDesign(std::vector<std::shared_ptr<OpenDesign>>& open, const std::string& name,
                   bool save) {
    const std::size_t index =
        positionOfName(open, name, model().folding,
                       [](const auto& one) -> const std::string& { return one->source()->name; });
    if (index >= open.size()) return;
    const std::shared_ptr<OpenDesign> closed = open[index];
    if (closed->isNew() && save) session().keepForm(closed->design());
    closed->close();
    std::erase(open, closed);
  }

  void select(const MemberUse& use) {
    const DatabaseModel& database = model();
    if (toLong(use.argument(0)) != kMacro) return;
    const Value& name = use.argument(1);
    session().selectedMacro =
        name.text() ? database.macros.find(*name.text(), database.folding) : nullptr;
  }

  // The two commands that are available: one hides the database window, which is not there.
  void runCommand(std::int32_t command) {
    if (command == kWindowHide) return;
    const MacroModel* macro = session_ ? session_->selectedMacro : nullptr;
    if (command != kConvertMacros || !macro)
      raise(kErrCommandNotAvailable, std::to_string(command));
    if (macro->openError) macro->openError->raise(macro->name);
    ModuleModel module;
    module.name = macroModuleName(macro->name);
    module.text =
        macro->module ? *macro->module : macroModuleText(macro->name, macro->actions.get());
    session().keepModule(std::move(module));
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
