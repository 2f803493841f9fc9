// The collections of a design: controls and properties.
#include <utility>

#include "access/model/dao_objects.h"
#include "access/model/design_errors.h"
#include "access/model/design_objects.h"

namespace tarrowin {

namespace {

// Alive with its form or report.
class DesignCollection : public DesignObject {
 public:
  DesignCollection(std::shared_ptr<Session> session, std::shared_ptr<OpenDesign> open,
                   CollectionSource source)
      : DesignObject(std::move(session), std::move(open)), source_(std::move(source)) {}

 protected:
  Value read(const MemberUse& use) override { return readCollection(source_, use); }

 private:
  CollectionSource source_;
};

}  // namespace

const NameTable& DesignObject::names() const {
  const NameTable& table = SessionObject::names();
  if (!open_->isOpen()) raise(design_error::kObjectClosed);
  return table;
}

ObjectRef makeDesignCollection(std::shared_ptr<Session> session, std::shared_ptr<OpenDesign> open,
                               CollectionSource source) {
  return std::make_shared<DesignCollection>(std::move(session), std::move(open), std::move(source));
}

CollectionSource controlCollection(std::shared_ptr<Session> session,
                                   std::shared_ptr<OpenDesign> open,
                                   std::vector<std::size_t> positions, std::int32_t pastEnd) {
  auto shared = std::make_shared<const std::vector<std::size_t>>(std::move(positions));
  const CaseFolding* folding = &session->model().folding;
  CollectionSource source;
  source.count = [shared] { return shared->size(); };
  source.find = [shared, open, folding](std::string_view name) {
    return positionOfName(*shared, name, *folding, [&open](std::size_t control) {
      return std::string_view(open->design().controls[control].name);
    });
  };
  source.item = [shared, session = std::move(session), open](std::size_t i) {
    return makeControl(session, open, (*shared)[i]);
  };
  source.missingName = [](std::string_view name) { raise(design_error::kNoField, name); };
  source.missingIndex = [pastEnd](std::int32_t index) { raise(pastEnd, std::to_string(index)); };
  return source;
}

CollectionSource propertyCollection(std::shared_ptr<Session> session,
                                    std::shared_ptr<const PropertyBag> properties) {
  const NameTable* names = &session->model().names;
  CollectionSource source;
  source.count = [properties] { return properties->size(); };
  source.find = [properties, names](std::string_view name) {
    return properties->find(names->find(name));
  };
  source.item = [properties, names, session = std::move(session)](std::size_t i) {
    return makeProperty(session, names->spelling(properties->nameAt(i)), properties->valueAt(i));
  };
  source.missingName = [](std::string_view name) { raise(design_error::kInvalidProperty, name); };
  source.missingIndex = [](std::int32_t) { raise(design_error::kNoPropertyNumber); };
  return source;
}

}  // namespace tarrowin
