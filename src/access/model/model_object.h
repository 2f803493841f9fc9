// The base of the model's objects: names become members here.
#pragma once

#include <memory>
#include <string_view>
#include <utility>

#include "access/model/session.h"
#include "core/access_object.h"

namespace tarrowin {

// One use of a member.
struct MemberUse {
  NameId key = kNoName;   // in the object's name table
  std::string_view name;  // as it was written
  Arguments arguments;

  Member member() const { return static_cast<Member>(key); }
  // An argument that the caller may have left out: Empty then.
  const Value& argument(std::size_t index) const;
};

// The two outcomes of a read; an error gets the standard text of its number.
inline Reading answered(Value value) { return {std::move(value), std::nullopt}; }
inline Reading failed(std::int32_t number, std::string_view name = {}) {
  return {{}, VbError::standard(number, name)};
}
// The outcome that is recorded, the name standing in an error's text.
inline Reading readingOf(const Recorded<Value>& recorded, std::string_view name) {
  if (const RecordedError* error = recorded.error()) return {{}, error->asError(name)};
  return {*recorded.ifRead(), std::nullopt};
}

// Answers get and call alike, since automation does not tell them apart for members with arguments.
class NamedObject : public AccessObject {
 public:
  Value get(std::string_view name, Arguments arguments = {}) final {
    return read({names().find(name), name, arguments});
  }
  Reading tryGet(std::string_view name, Arguments arguments = {}) final;
  Value call(std::string_view name, Arguments arguments = {}) final {
    return invoke({names().find(name), name, arguments});
  }
  void put(std::string_view name, const Value& value) final {
    write({names().find(name), name, {}}, value);
  }

 protected:
  // The table that turns names into keys.
  virtual const NameTable& names() const { return memberNames(); }
  virtual Value read(const MemberUse& use) = 0;
  // The same, where errors that are the rule come back in the reading. Others may be raised here.
  virtual Reading tryRead(const MemberUse& use) { return answered(read(use)); }
  virtual Value invoke(const MemberUse& use) { return read(use); }
  virtual void write(const MemberUse& use, const Value& value);
};

// An object of an open database.
class SessionObject : public NamedObject {
 protected:
  explicit SessionObject(std::shared_ptr<Session> session) : session_(std::move(session)) {}

  const NameTable& names() const override { return session_->model().names; }
  const DatabaseModel& model() const { return session_->model(); }
  Session& session() const { return *session_; }
  const std::shared_ptr<Session>& sessionRef() const { return session_; }

 private:
  std::shared_ptr<Session> session_;
};

// What a collection needs to know of its items.
struct CollectionSource {
  std::function<std::size_t()> count;
  std::function<ObjectRef(std::size_t index)> item;
  // The position of a name, NamedList<>::kNotFound for none.
  std::function<std::size_t(std::string_view name)> find;
  // Raises for a name, or for a number that is no index.
  std::function<void(std::string_view name)> missingName;
  std::function<void(std::int32_t index)> missingIndex;
};

// A collection: Count, Item and the default member by 0-based index or name, Refresh. Alive with
// its session; one without a session lives for ever.
ObjectRef makeCollection(std::shared_ptr<Session> session, CollectionSource source);

// One item of a collection by the argument given: a text is a name, a number an index. The source
// is a CollectionSource, or has its members as functions.
template <class Source>
ObjectRef collectionItem(const Source& source, const Value& which) {
  if (const std::string* name = which.text()) {
    const std::size_t index = source.find(*name);
    if (index >= source.count()) source.missingName(*name);
    return source.item(index);
  }
  const std::int32_t index = toLong(which);
  if (index < 0 || static_cast<std::size_t>(index) >= source.count()) source.missingIndex(index);
  return source.item(static_cast<std::size_t>(index));
}

// The members that every collection has: Count, Item, Refresh.
template <class Source>
Value readCollection(const Source& source, const MemberUse& use) {
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

// Raises 3265 for DAO's collections.
CollectionSource daoCollection(std::function<std::size_t()> count,
                               std::function<ObjectRef(std::size_t)> item,
                               std::function<std::size_t(std::string_view)> find);

// The same over a list of the tree, whose address holds as long as the database is open.
template <class T>
CollectionSource daoCollection(const NamedList<T>& list, const CaseFolding& folding,
                               std::function<ObjectRef(std::size_t)> item) {
  return daoCollection(
      [&list] { return list.size(); }, std::move(item),
      [&list, &folding](std::string_view name) { return list.indexOf(name, folding); });
}

// The position of the element with that name in a short list, an exact match first.
template <class List, class NameOf>
std::size_t positionOfName(const List& list, std::string_view name, const CaseFolding& folding,
                           NameOf nameOf) {
  std::size_t alike = SIZE_MAX;
  for (std::size_t i = 0; i < list.size(); ++i) {
    if (nameOf(list[i]) == name) return i;
    if (alike == SIZE_MAX && folding.equal(nameOf(list[i]), name)) alike = i;
  }
  return alike;
}

}  // namespace tarrowin
