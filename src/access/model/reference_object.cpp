// References to type libraries, as they are recorded.
#include "access/model/reference_object.h"

#include <utility>

namespace tarrowin {

namespace {

class Reference : public SessionObject {
 public:
  Reference(std::shared_ptr<Session> session, std::size_t index)
      : SessionObject(std::move(session)), index_(index) {}

 protected:
  Value read(const MemberUse& use) override {
    if (use.member() == Member::kCollection)
      return makeCollection(sessionRef(), referenceCollection(sessionRef()));
    const Recorded<Value>* recorded = model().references[index_].valueOf(use.key);
    if (!recorded) raise(kErrNoSuchMember, use.name);
    return recorded->read(use.name);
  }

 private:
  std::size_t index_;
};

std::string_view nameOfReference(const PropertyBag& reference) {
  const Recorded<Value>* name = reference.valueOf(static_cast<NameId>(Member::kName));
  const Value* value = name ? name->ifRead() : nullptr;
  const std::string* text = value ? value->text() : nullptr;
  return text ? std::string_view(*text) : std::string_view();
}

}  // namespace

CollectionSource referenceCollection(std::shared_ptr<Session> session) {
  CollectionSource source;
  source.missingName = [](std::string_view) { raise(kErrSubscript); };
  source.missingIndex = [](std::int32_t) { raise(kErrSubscript); };
  if (!session) {
    source.count = [] { return std::size_t{0}; };
    source.find = [](std::string_view) { return SIZE_MAX; };
    return source;
  }
  const DatabaseModel* database = &session->model();
  source.count = [database] { return database->references.size(); };
  source.find = [database](std::string_view name) {
    return positionOfName(database->references, name, database->folding, nameOfReference);
  };
  source.item = [session = std::move(session)](std::size_t i) {
    return std::make_shared<Reference>(session, i);
  };
  return source;
}

}  // namespace tarrowin
