// Controls, and the members that follow from what holds what.
#include <utility>

#include "access/model/design_objects.h"

namespace tarrowin {

namespace {

constexpr std::int32_t kSubform = 112, kTabControl = 123;

class Control : public DesignObject {
 public:
  Control(std::shared_ptr<Session> session, std::shared_ptr<OpenDesign> open, std::size_t control)
      : DesignObject(std::move(session), std::move(open)), control_(control) {}

 protected:
  Reading tryRead(const MemberUse& use) override {
    const ControlModel& control = self();
    const Recorded<Value>* recorded = control.properties.valueOf(use.key);
    if (recorded && recorded->error()) return readingOf(*recorded, use.name);
    switch (use.member()) {
      case Member::kName:
        return answered(control.name);
      case Member::kControlType:
        return answered(control.type);
      case Member::kParent:
        return answered(parent());
      case Member::kControls:
        return answered(
            collectionOrItem(controlSource(open().controlIndex().inside(control_)), use));
      case Member::kPages:
        if (control.type != kTabControl) return failed(kErrNoSuchMember, use.name);
        return answered(
            collectionOrItem(controlSource(open().controlIndex().pagesOf(control_)), use));
      case Member::kForm:
        return answered(subform(model().forms, "Form.", false));
      case Member::kReport:
        return answered(subform(model().reports, "Report.", true));
      case Member::kProperties:
        return answered(collectionOrItem(propertyCollection(sessionRef(), allProperties()), use));
      default:
        break;
    }
    if (!recorded) return failed(kErrNoSuchMember, use.name);
    return readingOf(*recorded, use.name);
  }

  void write(const MemberUse& use, const Value& value) override {
    if (use.member() == Member::kName) {
      open().edit().controls[control_].name = toText(value);
      return;
    }
    const std::size_t index = self().properties.find(use.key);
    if (index == PropertyBag::kNotFound) raise(kErrNoSuchMember, use.name);
    const NameId name = self().properties.nameAt(index);
    open().edit().controls[control_].properties.set(model().names, name, value);
  }

 private:
  const ControlModel& self() const { return design().controls[control_]; }

  ObjectRef parent() const {
    const std::size_t holder = self().parent;
    if (holder == ControlModel::kNoParent) return makeDesign(sessionRef(), openRef());
    return makeControl(sessionRef(), openRef(), holder);
  }

  // Name and ControlType, where they are not recorded, then the recorded properties.
  std::shared_ptr<const PropertyBag> allProperties() const {
    const ControlModel& control = self();
    const NameTable& names = model().names;
    auto all = std::make_shared<PropertyBag>();
    const auto addDerived = [&](Member member, Value value) {
      const NameId key = static_cast<NameId>(member);
      if (!control.properties.valueOf(key)) all->set(names, key, std::move(value));
    };
    addDerived(Member::kName, control.name);
    addDerived(Member::kControlType, control.type);
    for (std::size_t i = 0; i < control.properties.size(); ++i)
      all->set(names, control.properties.nameAt(i), control.properties.valueAt(i));
    return all;
  }

  // The form or report that a subform control shows.
  Value subform(const NamedList<DesignModel>& list, std::string_view prefix, bool isReport) {
    if (self().type != kSubform) raise(design_error::kInvalidProperty, "Form/Report");
    const Recorded<Value>* source =
        self().properties.valueOf(static_cast<NameId>(Member::kSourceObject));
    const Value* value = source ? source->ifRead() : nullptr;
    const std::string* text = value ? value->text() : nullptr;
    if (!text) raise(design_error::kObjectClosed);
    std::string_view name = *text;
    if (model().folding.startsWith(name, prefix)) name.remove_prefix(prefix.size());
    const DesignModel* design = list.find(name, model().folding);
    if (!design) raise(design_error::kObjectClosed);
    std::shared_ptr<OpenDesign>& loaded = open().loadedIn(control_);
    if (!loaded || loaded->isReport() != isReport || loaded->source() != design)
      loaded = std::make_shared<OpenDesign>(*design, isReport);
    return makeDesign(sessionRef(), loaded);
  }

  std::size_t control_;
};

}  // namespace

ObjectRef makeControl(std::shared_ptr<Session> session, std::shared_ptr<OpenDesign> open,
                      std::size_t control) {
  return std::make_shared<Control>(std::move(session), std::move(open), control);
}

}  // namespace tarrowin
