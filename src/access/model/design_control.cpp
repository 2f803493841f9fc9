// Controls, and the members that follow from what holds what.
#include <utility>

#include "access/model/design_errors.h"
#include "access/model/design_objects.h"

namespace tarrowin {

namespace {

constexpr std::int32_t kSubform = 112, kTabControl = 123, kPage = 124;

// Whether the control at each position stands somewhere inside the holder.
class DescendantSearch {
 public:
  DescendantSearch(const std::vector<ControlModel>& controls, std::size_t holder)
      : controls_(controls), known_(controls.size(), State::kUnknown) {
    known_[holder] = State::kOutside;
    holder_ = holder;
  }

  bool isInside(std::size_t control) {
    path_.clear();
    State state = State::kOutside;
    std::size_t at = control;
    while (true) {
      if (known_[at] != State::kUnknown) {
        state = known_[at];
        break;
      }
      path_.push_back(at);
      const std::size_t parent = controls_[at].parent;
      if (parent == holder_) state = State::kInside;
      if (parent == holder_ || parent == ControlModel::kNoParent) break;
      at = parent;
    }
    for (const std::size_t passed : path_) known_[passed] = state;
    return state == State::kInside;
  }

 private:
  enum class State : char { kUnknown, kInside, kOutside };
  const std::vector<ControlModel>& controls_;
  std::vector<State> known_;
  std::vector<std::size_t> path_;
  std::size_t holder_;
};

class Control : public DesignObject {
 public:
  Control(std::shared_ptr<Session> session, std::shared_ptr<OpenDesign> open, std::size_t control)
      : DesignObject(std::move(session), std::move(open)), control_(control) {}

 protected:
  Value read(const MemberUse& use) override {
    const ControlModel& control = self();
    const Recorded<Value>* recorded = control.properties.valueOf(use.key);
    if (recorded && recorded->error()) recorded->error()->raise(use.name);
    switch (use.member()) {
      case Member::kName:
        return control.name;
      case Member::kControlType:
        return control.type;
      case Member::kParent:
        if (control.parent == ControlModel::kNoParent) return makeDesign(sessionRef(), openRef());
        return makeControl(sessionRef(), openRef(), control.parent);
      case Member::kControls:
        return collectionOrItem(controlsAt(descendants()), use);
      case Member::kPages:
        if (control.type != kTabControl) raise(kErrNoSuchMember, use.name);
        return collectionOrItem(controlsAt(pages()), use);
      case Member::kForm:
        return subform(model().forms, "Form.", false);
      case Member::kReport:
        return subform(model().reports, "Report.", true);
      case Member::kProperties:
        return collectionOrItem(propertyCollection(sessionRef(), allProperties()), use);
      default:
        break;
    }
    if (!recorded) raise(kErrNoSuchMember, use.name);
    return recorded->read(use.name);
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

  Value collectionOrItem(CollectionSource source, const MemberUse& use) {
    if (!use.arguments.empty()) return collectionItem(source, use.argument(0));
    return makeDesignCollection(sessionRef(), openRef(), std::move(source));
  }

  CollectionSource controlsAt(std::vector<std::size_t> positions) {
    return controlCollection(sessionRef(), openRef(), std::move(positions), design_error::kNoField);
  }

  std::vector<std::size_t> descendants() const {
    DescendantSearch search(design().controls, control_);
    std::vector<std::size_t> result;
    for (std::size_t i = 0; i < design().controls.size(); ++i)
      if (search.isInside(i)) result.push_back(i);
    return result;
  }

  std::vector<std::size_t> pages() const {
    std::vector<std::size_t> result;
    for (std::size_t i = 0; i < design().controls.size(); ++i)
      if (design().controls[i].parent == control_ && design().controls[i].type == kPage)
        result.push_back(i);
    return result;
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
