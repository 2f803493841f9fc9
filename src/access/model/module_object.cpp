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
  // What answers Name, Type and CountOfLines, each when it is asked for.
  struct Facts {
    std::function<std::string()> name;
    std::function<std::int32_t()> type;
    std::function<std::int32_t()> countOfLines;
  };
  ModuleObject(std::shared_ptr<Session> session, Facts facts)
      : SessionObject(std::move(session)), facts_(std::move(facts)) {}

 protected:
  Value read(const MemberUse& use) override {
    switch (use.member()) {
      case Member::kName:
        return facts_.name();
      case Member::kType:
        return facts_.type();
      case Member::kCountOfLines:
        return facts_.countOfLines();
      default:
        raise(kErrNoSuchMember, use.name);
    }
  }

 private:
  Facts facts_;
};

std::int32_t linesOf(const std::optional<std::int32_t>& recorded, const std::string& text) {
  return recorded ? *recorded : countLines(text);
}

const std::string* classModuleText(const NamedList<DesignModel>& designs, std::string_view prefix,
                                   std::string_view moduleName, const CaseFolding& folding) {
  if (!folding.startsWith(moduleName, prefix)) return nullptr;
  moduleName.remove_prefix(prefix.size());
  const DesignModel* design = designs.find(moduleName, folding);
  if (!design) return nullptr;
  if (design->exportError) design->exportError->raise(moduleName);
  const std::optional<std::string>& module = design->module.get();
  return module ? &*module : nullptr;
}

}  // namespace

ObjectRef makeModule(std::shared_ptr<Session> session, const ModuleModel& module) {
  return std::make_shared<ModuleObject>(
      std::move(session),
      ModuleObject::Facts{
          [&module] { return module.name; }, [&module] { return module.type.get(); },
          [&module] { return linesOf(module.countOfLines.get(), module.text.get()); }});
}

ObjectRef makeClassModule(std::shared_ptr<Session> session, std::shared_ptr<OpenDesign> open) {
  return std::make_shared<ModuleObject>(
      std::move(session), ModuleObject::Facts{[open] {
                                                const auto prefix =
                                                    open->isReport() ? kReportPrefix : kFormPrefix;
                                                return std::string(prefix) + open->design().name;
                                              },
                                              [] { return kClassModule; },
                                              [open] {
                                                const DesignModel& design = open->design();
                                                return linesOf(design.countOfLines.get(),
                                                               design.module.get().value_or(""));
                                              }});
}

const std::string& moduleText(const DatabaseModel& database, std::string_view name) {
  if (const ModuleModel* module = database.modules.find(name, database.folding)) {
    if (module->exportError) module->exportError->raise(name);
    return module->text.get();
  }
  const std::string* text = classModuleText(database.forms, kFormPrefix, name, database.folding);
  if (!text) text = classModuleText(database.reports, kReportPrefix, name, database.folding);
  if (!text) raise(kErrInvalidObjectType, name);
  return *text;
}

}  // namespace tarrowin
