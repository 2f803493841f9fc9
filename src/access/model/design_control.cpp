// Controls, and the members that follow from what holds what.
#include <utility>

#include "access/model/design_objects.h"
#include "access/model/property_writing.h"

namespace tarrowin {

namespace {

constexpr std::int32_t kSubform = 112, kTabControl = 123;
constexpr std::size_t kLongestName = 64;

class Control : public PropertyOwner {
 public:
  Control(std::shared_ptr<Session> session, std::shared_ptr<OpenDesign> open, std::size_t control)
      : PropertyOwner(std::move(session), std::move(open)), control_(control) {}

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
        return answered(propertiesOrItem(use));
      default:
        break;
    }
    if (!recorded) return failed(kErrNoSuchMember, use.name);
    return readingOf(*recorded, use.name);
  }

  void write(const MemberUse& use, const Value& value) override {
    if (use.member() == Member::kName) return rename(toText(value));
    if (use.member() == Member::kControlType) raise(design_error::kReadOnlyProperty);
    const std::size_t index = properties().find(use.key);
    if (index == PropertyBag::kNotFound) raise(kErrNoSuchMember, use.name);
    switch (use.member()) {
      case Member::kControlName:
        return rename(toText(value));
      case Member::kEventProcPrefix:
      case Member::kPageIndex:
      case Member::kInSelection:
        raise(design_error::kReadOnlyProperty);
      default:
        break;
    }
    const NameId name = properties().nameAt(index);
    Value written = writtenValue(self().type, model().names.spelling(name), value);
    open().editBody().controls[control_].properties.set(model().names, name, std::move(written));
  }

  const PropertyBag& properties() const override { return self().properties; }
  std::vector<Member> derivedProperties() const override {
    std::vector<Member> derived;
    for (const Member member : {Member::kName, Member::kControlType})
      if (!self().properties.valueOf(static_cast<NameId>(member))) derived.push_back(member);
    return derived;
  }

 private:
  const ControlModel& self() const { return body().controls[control_]; }

  ObjectRef parent() const {
    const std::size_t holder = self().parent;
    if (holder == ControlModel::kNoParent) return makeDesign(sessionRef(), openRef());
    return makeControl(sessionRef(), openRef(), holder);
  }

  // A name is of one control, and the properties that repeat it follow.
  void rename(const std::string& name) {
    if (name.empty() || name.size() > kLongestName) raise(design_error::kInvalidSetting);
    const auto& controls = body().controls;
    for (std::size_t i = 0; i < controls.size(); ++i)
      if (i != control_ && model().folding.equal(controls[i].name, name))
        raise(design_error::kControlNameTaken, name);
    ControlModel& control = open().editBody().controls[control_];
    control.name = name;
    const auto repeat = [&](Member member, const std::string& text) {
      const NameId key = static_cast<NameId>(member);
      if (control.properties.valueOf(key)) control.properties.set(model().names, key, Value(text));
    };
    repeat(Member::kName, name);
    repeat(Member::kControlName, name);
    repeat(Member::kEventProcPrefix, eventPrefixOf(name));
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
      loaded = load(*design, isReport);
    return makeDesign(sessionRef(), loaded);
  }

  // What cannot be read is not there for the form around it.
  static std::shared_ptr<OpenDesign> load(const DesignModel& design, bool isReport) {
    try {
      return std::make_shared<OpenDesign>(design, isReport);
    } catch (const VbError&) {
      raise(design_error::kObjectClosed);
    }
  }

  std::size_t control_;
};

}  // namespace

ObjectRef makeControl(std::shared_ptr<Session> session, std::shared_ptr<OpenDesign> open,
                      std::size_t control) {
  return std::make_shared<Control>(std::move(session), std::move(open), control);
}

}  // namespace tarrowin
