// Forms and reports.
#include <numeric>
#include <utility>

#include "access/model/design_errors.h"
#include "access/model/design_objects.h"
#include "access/model/module_object.h"

namespace tarrowin {

namespace {

class FormOrReport : public DesignObject {
 public:
  FormOrReport(std::shared_ptr<Session> session, std::shared_ptr<OpenDesign> open)
      : DesignObject(std::move(session), std::move(open)) {}

 protected:
  Value read(const MemberUse& use) override {
    const Recorded<Value>* recorded = design().properties.valueOf(use.key);
    if (recorded && recorded->error()) recorded->error()->raise(use.name);
    switch (use.member()) {
      case Member::kName:
        return design().name;
      case Member::kParent:
        raise(design_error::kInvalidParent);
      case Member::kControls:
        return collectionOrItem(controls(), use);
      case Member::kProperties:
        return collectionOrItem(
            propertyCollection(sessionRef(),
                               std::shared_ptr<const PropertyBag>(openRef(), &design().properties)),
            use);
      case Member::kSection:
        return section(use.argument(0));
      case Member::kGroupLevel:
        return groupLevel(use.argument(0));
      case Member::kDefault:
        return defaultMember(use.argument(0));
      default:
        break;
    }
    if (recorded) return recorded->read(use.name);
    switch (use.member()) {
      case Member::kCount:
        return static_cast<std::int32_t>(design().controls.size());
      case Member::kHasModule:
        return design().module.get().has_value();
      case Member::kModule:
        if (design().module.get()) return makeClassModule(sessionRef(), openRef());
        break;
      default:
        break;
    }
    raise(design_error::kNoField, use.name);
  }

  void write(const MemberUse& use, const Value& value) override {
    if (use.member() == Member::kName) raise(design_error::kReadOnlyProperty);
    const std::size_t index = design().properties.find(use.key);
    if (index == PropertyBag::kNotFound) raise(design_error::kNoField, use.name);
    open().edit().properties.set(model().names, design().properties.nameAt(index), value);
  }

 private:
  Value collectionOrItem(CollectionSource source, const MemberUse& use) {
    if (!use.arguments.empty()) return collectionItem(source, use.argument(0));
    return makeDesignCollection(sessionRef(), openRef(), std::move(source));
  }

  CollectionSource controls() {
    std::vector<std::size_t> all(design().controls.size());
    std::iota(all.begin(), all.end(), std::size_t{0});
    return controlCollection(sessionRef(), openRef(), std::move(all), design_error::kNoField);
  }

  Value defaultMember(const Value& which) {
    CollectionSource source = controls();
    if (!open().isReport())
      source.missingName = [](std::string_view name) {
        raise(design_error::kNoFormOfThatName, name);
      };
    return collectionItem(source, which);
  }

  Value section(const Value& which) {
    if (which.text()) raise(design_error::kSectionByText);
    if (which.isEmpty()) raise(design_error::kNoSection);
    const std::int32_t number = toLong(which);
    for (std::size_t i = 0; i < design().sections.size(); ++i)
      if (design().sections[i].number == number) return makeSection(sessionRef(), openRef(), i);
    raise(design_error::kNoSection);
  }

  Value groupLevel(const Value& which) {
    if (which.text()) raise(design_error::kGroupLevelByText);
    if (which.isEmpty()) raise(design_error::kNoGroupLevel);
    const std::int32_t level = toLong(which);
    if (level < 0 || static_cast<std::size_t>(level) >= design().groupLevels.size())
      raise(design_error::kNoGroupLevel);
    return makeGroupLevel(sessionRef(), openRef(), static_cast<std::size_t>(level));
  }
};

}  // namespace

ObjectRef makeDesign(std::shared_ptr<Session> session, std::shared_ptr<OpenDesign> open) {
  return std::make_shared<FormOrReport>(std::move(session), std::move(open));
}

}  // namespace tarrowin
