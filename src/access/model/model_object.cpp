// What all objects of the model share, and collections.
#include "access/model/model_object.h"

#include <utility>

namespace tarrowin {

const Value& MemberUse::argument(std::size_t index) const {
  static const Value kMissing;
  return index < arguments.size() ? arguments[index] : kMissing;
}

void NamedObject::write(const MemberUse& use, const Value&) { raise(kErrNoSuchMember, use.name); }

Reading NamedObject::tryGet(std::string_view name, Arguments arguments) {
  try {
    return tryRead({names().find(name), name, arguments});
  } catch (const VbError& error) {
    return {{}, error};
  }
}

namespace {

class CollectionObject : public NamedObject {
 public:
  CollectionObject(std::shared_ptr<Session> session, CollectionSource source)
      : session_(std::move(session)), source_(std::move(source)) {}

 protected:
  const NameTable& names() const override {
    return session_ ? session_->model().names : memberNames();
  }

  Value read(const MemberUse& use) override { return readCollection(source_, use); }

 private:
  std::shared_ptr<Session> session_;
  CollectionSource source_;
};

constexpr std::int32_t kErrItemNotFound = 3265;

}  // namespace

ObjectRef makeCollection(std::shared_ptr<Session> session, CollectionSource source) {
  return std::make_shared<CollectionObject>(std::move(session), std::move(source));
}

CollectionSource daoCollection(std::function<std::size_t()> count,
                               std::function<ObjectRef(std::size_t)> item,
                               std::function<std::size_t(std::string_view)> find) {
  return {std::move(count), std::move(item), std::move(find),
          [](std::string_view name) { raise(kErrItemNotFound, name); },
          [](std::int32_t) { raise(kErrItemNotFound); }};
}

}  // namespace tarrowin
