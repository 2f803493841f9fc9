// The collections of a design. Its controls as a source.
#include <string>
#include <utility>

#include "access/model/design_objects.h"

namespace tarrowin {

namespace {

// Alive with its form or report.
template <class Source>
class DesignCollection : public DesignObject {
 public:
  DesignCollection(std::shared_ptr<Session> session, std::shared_ptr<OpenDesign> open,
                   Source source)
      : DesignObject(std::move(session), std::move(open)), source_(std::move(source)) {}

 protected:
  Reading tryRead(const MemberUse& use) override { return answered(readCollection(source_, use)); }

 private:
  Source source_;
};

}  // namespace

ObjectRef makeDesignCollection(std::shared_ptr<Session> session, std::shared_ptr<OpenDesign> open,
                               CollectionSource source) {
  return std::make_shared<DesignCollection<CollectionSource>>(std::move(session), std::move(open),
                                                              std::move(source));
}

ObjectRef makeDesignCollection(std::shared_ptr<Session> session, std::shared_ptr<OpenDesign> open,
                               ControlSource source) {
  return std::make_shared<DesignCollection<ControlSource>>(std::move(session), std::move(open),
                                                           std::move(source));
}

ObjectRef makeDesignCollection(std::shared_ptr<Session> session, std::shared_ptr<OpenDesign> open,
                               PropertySource source) {
  return std::make_shared<DesignCollection<PropertySource>>(std::move(session), std::move(open),
                                                            std::move(source));
}

ControlSource::ControlSource(std::shared_ptr<Session> session, std::shared_ptr<OpenDesign> open,
                             ControlList controls, std::int32_t pastEnd, std::int32_t missing)
    : session_(std::move(session)),
      open_(std::move(open)),
      controls_(std::move(controls)),
      pastEnd_(pastEnd),
      missing_(missing) {}

ObjectRef ControlSource::item(std::size_t index) const {
  return makeControl(session_, open_, (*controls_)[index]);
}

std::size_t ControlSource::find(std::string_view name) const {
  return open_->controlIndex().find(*controls_, name, session_->model().folding);
}

void ControlSource::missingName(std::string_view name) const { raise(missing_, name); }

void ControlSource::missingIndex(std::int32_t index) const {
  raise(pastEnd_, std::to_string(index));
}

}  // namespace tarrowin
