// Sections and group levels.
#include <utility>

#include "access/model/design_objects.h"
#include "access/model/property_writing.h"

namespace tarrowin {

namespace {

class Section : public PropertyOwner {
 public:
  Section(std::shared_ptr<Session> session, std::shared_ptr<OpenDesign> open, std::size_t section)
      : PropertyOwner(std::move(session), std::move(open)), section_(section) {}

 protected:
  Reading tryRead(const MemberUse& use) override {
    const SectionModel& section = body().sections[section_];
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
        return answered(propertiesOrItem(use));
      default:
        return failed(kErrNoSuchMember, use.name);
    }
  }

  void write(const MemberUse& use, const Value& value) override {
    const std::size_t index = properties().find(use.key);
    if (index == PropertyBag::kNotFound) raise(kErrNoSuchMember, use.name);
    if (use.member() == Member::kEventProcPrefix || use.member() == Member::kInSelection)
      raise(design_error::kReadOnlyProperty);
    const NameId name = properties().nameAt(index);
    Value written = writtenValue(kSectionObject, model().names.spelling(name), value);
    open().editBody().sections[section_].properties.set(model().names, name, std::move(written));
  }

  const PropertyBag& properties() const override { return body().sections[section_].properties; }

 private:
  std::size_t section_;
};

class GroupLevel : public PropertyOwner {
 public:
  GroupLevel(std::shared_ptr<Session> session, std::shared_ptr<OpenDesign> open, std::size_t level)
      : PropertyOwner(std::move(session), std::move(open)), level_(level) {}

 protected:
  Reading tryRead(const MemberUse& use) override {
    if (const Recorded<Value>* recorded = properties().valueOf(use.key))
      return readingOf(*recorded, use.name);
    if (use.member() == Member::kParent) return answered(makeDesign(sessionRef(), openRef()));
    if (use.member() != Member::kProperties) return failed(kErrNoSuchMember, use.name);
    return answered(propertiesOrItem(use));
  }

  const PropertyBag& properties() const override { return body().groupLevels[level_]; }

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
