// Forms and reports.
#include <utility>

#include "access/model/design_objects.h"
#include "access/model/module_object.h"
#include "access/model/property_writing.h"

namespace tarrowin {

namespace {

constexpr const char* kNewModuleText = "Option Compare Database\r\n";

class FormOrReport : public PropertyOwner {
 public:
  FormOrReport(std::shared_ptr<Session> session, std::shared_ptr<OpenDesign> open)
      : PropertyOwner(std::move(session), std::move(open)) {}

 protected:
  Reading tryRead(const MemberUse& use) override {
    const Recorded<Value>* recorded = body().properties.valueOf(use.key);
    if (recorded && recorded->error()) return readingOf(*recorded, use.name);
    switch (use.member()) {
      case Member::kName:
        return answered(design().name);
      case Member::kParent:
        return failed(design_error::kInvalidParent);
      case Member::kControls:
        return answered(collectionOrItem(controls(), use));
      case Member::kProperties:
        return answered(propertiesOrItem(use));
      case Member::kSection:
        return answered(section(use.argument(0)));
      case Member::kGroupLevel:
        return answered(groupLevel(use.argument(0)));
      case Member::kDefault:
        return answered(defaultMember(use.argument(0)));
      default:
        break;
    }
    if (recorded) return readingOf(*recorded, use.name);
    switch (use.member()) {
      case Member::kCount:
        return answered(static_cast<std::int32_t>(body().controls.size()));
      case Member::kHasModule:
        return answered(design().module.get().has_value());
      case Member::kModule:
        if (design().module.get()) return answered(makeClassModule(sessionRef(), openRef()));
        break;
      default:
        break;
    }
    return failed(design_error::kNoField, use.name);
  }

  void write(const MemberUse& use, const Value& value) override {
    if (use.member() == Member::kName) raise(design_error::kReadOnlyProperty);
    if (use.member() == Member::kHasModule) return setHasModule(toBoolean(value));
    const std::size_t index = properties().find(use.key);
    if (index == PropertyBag::kNotFound) raise(design_error::kNoField, use.name);
    if (use.member() == Member::kFormName) raise(design_error::kReadOnlyProperty);
    const NameId name = properties().nameAt(index);
    Value written =
        open().isReport() ? value : writtenValue(kFormObject, model().names.spelling(name), value);
    open().editBody().properties.set(model().names, name, std::move(written));
  }

  const PropertyBag& properties() const override { return body().properties; }

 private:
  // A new class module has what Access begins one with; taking it away takes its code.
  void setHasModule(bool hasModule) {
    DesignModel& changed = open().edit();
    PropertyBag& ownProperties = changed.body.edit().properties;
    if (hasModule != changed.module.get().has_value()) {
      changed.module = hasModule ? std::optional<std::string>(kNewModuleText) : std::nullopt;
      changed.countOfLines = std::optional<std::int32_t>();
    }
    if (ownProperties.valueOf(static_cast<NameId>(Member::kHasModule)))
      ownProperties.set(model().names, static_cast<NameId>(Member::kHasModule), Value(hasModule));
  }

  ControlSource controls(std::int32_t missing = design_error::kNoField) {
    return controlSource(open().controlIndex().all(), design_error::kNoField, missing);
  }

  Value defaultMember(const Value& which) {
    return collectionItem(
        controls(open().isReport() ? design_error::kNoField : design_error::kNoFormOfThatName),
        which);
  }

  Value section(const Value& which) {
    if (which.text()) raise(design_error::kSectionByText);
    if (which.isEmpty()) raise(design_error::kNoSection);
    const std::int32_t number = toLong(which);
    for (std::size_t i = 0; i < body().sections.size(); ++i)
      if (body().sections[i].number == number) return makeSection(sessionRef(), openRef(), i);
    raise(design_error::kNoSection);
  }

  Value groupLevel(const Value& which) {
    if (which.text()) raise(design_error::kGroupLevelByText);
    if (which.isEmpty()) raise(design_error::kNoGroupLevel);
    const std::int32_t level = toLong(which);
    if (level < 0 || static_cast<std::size_t>(level) >= body().groupLevels.size())
      raise(design_error::kNoGroupLevel);
    return makeGroupLevel(sessionRef(), openRef(), static_cast<std::size_t>(level));
  }
};

}  // namespace

ObjectRef makeDesign(std::shared_ptr<Session> session, std::shared_ptr<OpenDesign> open) {
  return std::make_shared<FormOrReport>(std::move(session), std::move(open));
}

}  // namespace tarrowin
