// What all objects of the model share, and collections.
#include "access/model/model_object.h"

#include <utility>

namespace tarrowin {

const Value& MemberUse::argument(std::size_t index) const {
  static const Value kMissing;
  return index < arguments.size() ? arguments[index] : kMissing;
}

void NamedObject::write(const MemberUse& use, const Value&) { raise(kErrNoSuchMember, use.name); }

ObjectRef collectionItem(const CollectionSource& source, const Value& which) {
  if (const std::string* name = which.text()) {
    const std::size_t index = source.find(*name);
    if (index >= source.count()) source.missingName(*name);
    return source.item(index);
  }
  const std::int32_t index = toLong(which);
  if (index < 0 || static_cast<std::size_t>(index) >= source.count()) source.missingIndex(index);
  return source.item(static_cast<std::size_t>(index));
}

Value readCollection(const CollectionSource& source, const MemberUse& use) {
  switch (use.member()) {
    case Member::kCount:
      return static_cast<std::int32_t>(source.count());
    case Member::kDefault:
    case Member::kItem:
      return collectionItem(source, use.argument(0));
    case Member::kRefresh:
      return {};
    default:
      raise(kErrNoSuchMember, use.name);
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
