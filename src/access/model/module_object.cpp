// Standard and class modules, and the text of either.
#include "access/model/module_object.h"

#include <utility>

namespace tarrowin {

namespace {

constexpr std::int32_t kErrInvalidObjectType = 2487;
constexpr std::int32_t kClassModule = 1;
constexpr std::string_view kFormPrefix = "Form_", kReportPrefix = "Report_";

class ModuleObject : public SessionObject {
 public:
  // Reads Name, Type and CountOfLines when asked.
  struct Facts {
    std::string name;
    std::int32_t type;
    std::int32_t countOfLines;
  };
  ModuleObject(std::shared_ptr<Session> session, std::function<Facts()> facts)
      : SessionObject(std::move(session)), facts_(std::move(facts)) {}

 protected:
  Value read(const MemberUse& use) override {
    switch (use.member()) {
      case Member::kName:
        return facts_().name;
      case Member::kType:
        return facts_().type;
      case Member::kCountOfLines:
        return facts_().countOfLines;
      default:
        raise(kErrNoSuchMember, use.name);
    }
  }

 private:
  std::function<Facts()> facts_;
};

const std::string* classModuleText(const NamedList<DesignModel>& designs, std::string_view prefix,
                                   std::string_view moduleName, const CaseFolding& folding) {
  if (!folding.startsWith(moduleName, prefix)) return nullptr;
  moduleName.remove_prefix(prefix.size());
  const DesignModel* design = designs.find(moduleName, folding);
  if (!design) return nullptr;
  if (design->exportError) design->exportError->raise(moduleName);
  return design->module ? &*design->module : nullptr;
}

}  // namespace

ObjectRef makeModule(std::shared_ptr<Session> session, const ModuleModel& module) {
  return std::make_shared<ModuleObject>(std::move(session), [&module] {
    return ModuleObject::Facts{
        module.name, module.type,
        module.countOfLines ? *module.countOfLines : countLines(module.text)};
  });
}

ObjectRef makeClassModule(std::shared_ptr<Session> session, std::shared_ptr<OpenDesign> open) {
  return std::make_shared<ModuleObject>(std::move(session), [open = std::move(open)] {
    const DesignModel& design = open->design();
    const std::string_view prefix = open->isReport() ? kReportPrefix : kFormPrefix;
    return ModuleObject::Facts{
        std::string(prefix) + design.name, kClassModule,
        design.countOfLines ? *design.countOfLines : countLines(design.module.value_or(""))};
  });
}

const std::string& moduleText(const DatabaseModel& database, std::string_view name) {
  if (const ModuleModel* module = database.modules.find(name, database.folding)) {
    if (module->exportError) module->exportError->raise(name);
    return module->text;
  }
  const std::string* text = classModuleText(database.forms, kFormPrefix, name, database.folding);
  if (!text) text = classModuleText(database.reports, kReportPrefix, name, database.folding);
  if (!text) raise(kErrInvalidObjectType, name);
  return *text;
}

}  // namespace tarrowin
