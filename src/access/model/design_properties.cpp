// The Properties collection of a form, a section or a control.
#include <utility>

#include "access/model/design_objects.h"

namespace tarrowin {

namespace {

// One property: its value is the owner's, read as it is recorded and written as the owner's member.
class DesignProperty : public DesignObject {
 public:
  struct Place {
    std::string name;
    std::function<Recorded<Value>()> value;
  };
  DesignProperty(std::shared_ptr<Session> session, std::shared_ptr<OpenDesign> open,
                 ObjectRef owner, Place place)
      : DesignObject(std::move(session), std::move(open)),
        owner_(std::move(owner)),
        place_(std::move(place)) {}

 protected:
  Reading tryRead(const MemberUse& use) override {
    switch (use.member()) {
      case Member::kName:
        return answered(place_.name);
      case Member::kDefault:
      case Member::kValue:
        return readingOf(place_.value(), place_.name);
      default:
        return failed(kErrNoSuchMember, use.name);
    }
  }

  void write(const MemberUse& use, const Value& value) override {
    if (use.member() != Member::kDefault && use.member() != Member::kValue)
      raise(kErrNoSuchMember, use.name);
    owner_->put(place_.name, value);
  }

 private:
  ObjectRef owner_;
  Place place_;
};

}  // namespace

Value PropertyOwner::propertiesOrItem(const MemberUse& use) {
  return collectionOrItem(
      PropertySource(std::static_pointer_cast<PropertyOwner>(shared_from_this())), use);
}

PropertySource::PropertySource(std::shared_ptr<PropertyOwner> owner) : owner_(std::move(owner)) {}

std::size_t PropertySource::count() const {
  return owner_->derivedProperties().size() + owner_->properties().size();
}

ObjectRef PropertySource::item(std::size_t index) const {
  const NameTable& names = owner_->model().names;
  const std::vector<Member> derived = owner_->derivedProperties();
  DesignProperty::Place place;
  if (index < derived.size()) {
    place.name = names.spelling(static_cast<NameId>(derived[index]));
    place.value = [owner = owner_, name = place.name] { return owner->get(name); };
  } else {
    const NameId name = owner_->properties().nameAt(index - derived.size());
    place.name = names.spelling(name);
    place.value = [owner = owner_, key = names.keyOf(name)] {
      return *owner->properties().valueOf(key);
    };
  }
  return std::make_shared<DesignProperty>(owner_->sessionRef(), owner_->openRef(), owner_,
                                          std::move(place));
}

std::size_t PropertySource::find(std::string_view name) const {
  const NameId key = owner_->model().names.find(name);
  const std::vector<Member> derived = owner_->derivedProperties();
  for (std::size_t i = 0; i < derived.size(); ++i)
    if (static_cast<NameId>(derived[i]) == key) return i;
  const std::size_t index = owner_->properties().find(key);
  return index == PropertyBag::kNotFound ? SIZE_MAX : index + derived.size();
}

void PropertySource::missingName(std::string_view name) const {
  raise(design_error::kInvalidProperty, name);
}

void PropertySource::missingIndex(std::int32_t) const { raise(design_error::kNoPropertyNumber); }

}  // namespace tarrowin
