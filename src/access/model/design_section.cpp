// Sections and group levels.
#include <utility>

#include "access/model/design_objects.h"

namespace tarrowin {

namespace {

class Section : public DesignObject {
 public:
  Section(std::shared_ptr<Session> session, std::shared_ptr<OpenDesign> open, std::size_t section)
      : DesignObject(std::move(session), std::move(open)), section_(section) {}

 protected:
  Reading tryRead(const MemberUse& use) override {
    const SectionModel& section = design().sections[section_];
    if (const Recorded<Value>* recorded = section.properties.valueOf(use.key))
      return readingOf(*recorded, use.name);
    switch (use.member()) {
      case Member::kParent:
        return answered(makeDesign(sessionRef(), openRef()));
      case Member::kControls:
        return answered(
            collectionOrItem(controlSource(open().controlIndex().ofSection(section.number),
                                           design_error::kObjectClosed),
                             use));
      case Member::kProperties:
        return answered(collectionOrItem(
            propertyCollection(sessionRef(),
                               std::shared_ptr<const PropertyBag>(openRef(), &section.properties)),
            use));
      default:
        return failed(kErrNoSuchMember, use.name);
    }
  }

  void write(const MemberUse& use, const Value& value) override {
    const PropertyBag& properties = design().sections[section_].properties;
    const std::size_t index = properties.find(use.key);
    if (index == PropertyBag::kNotFound) raise(kErrNoSuchMember, use.name);
    const NameId name = properties.nameAt(index);
    open().edit().sections[section_].properties.set(model().names, name, value);
  }

 private:
  std::size_t section_;
};

class GroupLevel : public DesignObject {
 public:
  GroupLevel(std::shared_ptr<Session> session, std::shared_ptr<OpenDesign> open, std::size_t level)
      : DesignObject(std::move(session), std::move(open)), level_(level) {}

 protected:
  Reading tryRead(const MemberUse& use) override {
    const PropertyBag& properties = design().groupLevels[level_];
    if (const Recorded<Value>* recorded = properties.valueOf(use.key))
      return readingOf(*recorded, use.name);
    if (use.member() == Member::kParent) return answered(makeDesign(sessionRef(), openRef()));
    if (use.member() != Member::kProperties) return failed(kErrNoSuchMember, use.name);
    return answered(collectionOrItem(
        propertyCollection(sessionRef(),
                           std::shared_ptr<const PropertyBag>(openRef(), &properties)),
        use));
  }

 private:
  std::size_t level_;
};

}  // namespace

ObjectRef makeSection(std::shared_ptr<Session> session, std::shared_ptr<OpenDesign> open,
                      std::size_t section) {
  return std::make_shared<Section>(std::move(session), std::move(open), section);
}

ObjectRef makeGroupLevel(std::shared_ptr<Session> session, std::shared_ptr<OpenDesign> open,
                         std::size_t level) {
  return std::make_shared<GroupLevel>(std::move(session), std::move(open), level);
}

}  // namespace tarrowin
