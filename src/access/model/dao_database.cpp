// DAO's Database object, its containers, tables and relations.
#include <string>
#include <utility>

#include "access/model/dao_objects.h"
#include "access/model/macro_document.h"

namespace tarrowin {

namespace {

constexpr std::int32_t kErrItemNotFound = 3265;
constexpr std::int32_t kErrPropertyNotFound = 3270;

// An object with a name and nothing more: a document.
class NameOnlyObject : public SessionObject {
 public:
  NameOnlyObject(std::shared_ptr<Session> session, std::string name)
      : SessionObject(std::move(session)), name_(std::move(name)) {}

 protected:
  Value read(const MemberUse& use) override {
    if (use.member() == Member::kName) return name_;
    raise(kErrNoSuchMember, use.name);
  }

 private:
  std::string name_;
};

class PropertyObject : public SessionObject {
 public:
  PropertyObject(std::shared_ptr<Session> session, std::string name, Recorded<Value> value)
      : SessionObject(std::move(session)), name_(std::move(name)), value_(std::move(value)) {}

 protected:
  Value read(const MemberUse& use) override {
    switch (use.member()) {
      case Member::kName:
        return name_;
      case Member::kDefault:
      case Member::kValue:
        return value_.read(name_);
      default:
        raise(kErrNoSuchMember, use.name);
    }
  }

 private:
  std::string name_;
  Recorded<Value> value_;
};

class TableDef : public SessionObject {
 public:
  TableDef(std::shared_ptr<Session> session, std::size_t table)
      : SessionObject(std::move(session)), table_(table) {}

 protected:
  Value read(const MemberUse& use) override {
    const TableModel& table = model().tables[table_];
    switch (use.member()) {
      case Member::kName:
        return table.name;
      case Member::kConnect:
        return table.connect;
      case Member::kFields: {
        const ObjectRef fields = makeFields(sessionRef(), session().fieldsOfTable(table));
        return use.arguments.empty() ? Value(fields) : fields->get("", use.arguments);
      }
      default:
        raise(kErrNoSuchMember, use.name);
    }
  }

 private:
  std::size_t table_;
};

class RelationField : public SessionObject {
 public:
  RelationField(std::shared_ptr<Session> session, const RelationFieldModel& field)
      : SessionObject(std::move(session)), field_(field) {}

 protected:
  Value read(const MemberUse& use) override {
    if (use.member() == Member::kName) return field_.name;
    if (use.member() == Member::kForeignName) return field_.foreignName;
    raise(kErrNoSuchMember, use.name);
  }

 private:
  RelationFieldModel field_;
};

class Relation : public SessionObject {
 public:
  Relation(std::shared_ptr<Session> session, std::size_t relation)
      : SessionObject(std::move(session)), relation_(relation) {}

 protected:
  Value read(const MemberUse& use) override {
    const RelationModel& relation = model().relations[relation_];
    switch (use.member()) {
      case Member::kName:
        return relation.name;
      case Member::kTable:
        return relation.table;
      case Member::kForeignTable:
        return relation.foreignTable;
      case Member::kFields:
        return fields(relation, use);
      default:
        raise(kErrNoSuchMember, use.name);
    }
  }

 private:
  Value fields(const RelationModel& relation, const MemberUse& use) {
    const auto* list = &relation.fields;
    const auto* folding = &model().folding;
    CollectionSource source = daoCollection(
        [list] { return list->size(); },
        [list, owner = sessionRef()](std::size_t i) {
          return std::make_shared<RelationField>(owner, (*list)[i]);
        },
        [list, folding](std::string_view name) {
          return positionOfName(*list, name, *folding,
                                [](const RelationFieldModel& field) { return field.name; });
        });
    if (!use.arguments.empty()) return collectionItem(source, use.argument(0));
    return makeCollection(sessionRef(), std::move(source));
  }

  std::size_t relation_;
};

// A container of documents: the forms, the reports, the macros or the modules.
class Container : public SessionObject {
 public:
  enum class Kind { kForms, kReports, kScripts, kModules };
  static constexpr std::string_view kNames[] = {"Forms", "Reports", "Scripts", "Modules"};

  Container(std::shared_ptr<Session> session, Kind kind)
      : SessionObject(std::move(session)), kind_(kind) {}

 protected:
  Value read(const MemberUse& use) override {
    if (use.member() == Member::kName) return kNames[static_cast<std::size_t>(kind_)];
    if (use.member() != Member::kDocuments) raise(kErrNoSuchMember, use.name);
    CollectionSource source = documents();
    if (!use.arguments.empty()) return collectionItem(source, use.argument(0));
    return makeCollection(sessionRef(), std::move(source));
  }

 private:
  CollectionSource documents() const {
    switch (kind_) {
      case Kind::kForms:
        return documentsOf(model().forms);
      case Kind::kReports:
        return documentsOf(model().reports);
      case Kind::kScripts:
        return daoCollection(
            model().macros, model().folding,
            [owner = sessionRef()](std::size_t i) { return makeMacroDocument(owner, i); });
      default:
        return documentsOf(model().modules);
    }
  }

  template <class T>
  CollectionSource documentsOf(const NamedList<T>& list) const {
    return daoCollection(list, model().folding, [&list, owner = sessionRef()](std::size_t i) {
      return std::make_shared<NameOnlyObject>(owner, list[i].name);
    });
  }

  Kind kind_;
};

class DatabaseObject : public SessionObject {
 public:
  using SessionObject::SessionObject;
  explicit DatabaseObject(std::shared_ptr<Session> session) : SessionObject(std::move(session)) {}

 protected:
  Value read(const MemberUse& use) override {
    switch (use.member()) {
      case Member::kName:
        return model().name;
      case Member::kVersion:
        return model().version;
      case Member::kProperties:
        return collectionOrItem(properties(), use);
      case Member::kQueryDefs:
        return collectionOrItem(
            daoCollection(model().queries, model().folding,
                          [owner = sessionRef()](std::size_t i) { return makeQueryDef(owner, i); }),
            use);
      case Member::kTableDefs:
        return collectionOrItem(itemsOf<TableDef>(model().tables), use);
      case Member::kRelations:
        return collectionOrItem(itemsOf<Relation>(model().relations), use);
      case Member::kContainers:
        return collectionOrItem(containers(), use);
      default:
        raise(kErrNoSuchMember, use.name);
    }
  }

  Value invoke(const MemberUse& use) override {
    if (use.member() != Member::kOpenRecordset) return read(use);
    const std::string source = toText(use.argument(0));
    return makeRecordset(sessionRef(), source, session().openRecordset(source));
  }

 private:
  Value collectionOrItem(CollectionSource source, const MemberUse& use) {
    if (!use.arguments.empty()) return collectionItem(source, use.argument(0));
    return makeCollection(sessionRef(), std::move(source));
  }

  template <class Item, class T>
  CollectionSource itemsOf(const NamedList<T>& list) const {
    return daoCollection(list, model().folding, [owner = sessionRef()](std::size_t i) {
      return std::make_shared<Item>(owner, i);
    });
  }

  CollectionSource properties() const {
    const DatabaseModel* database = &model();
    CollectionSource source = daoCollection(
        [database] { return database->properties.size(); },
        [database, owner = sessionRef()](std::size_t i) {
          return makeProperty(owner, database->names.spelling(database->properties.nameAt(i)),
                              database->properties.valueAt(i));
        },
        [database](std::string_view name) {
          return database->properties.find(database->names.find(name));
        });
    source.missingName = [](std::string_view name) { raise(kErrPropertyNotFound, name); };
    return source;
  }

  CollectionSource containers() const {
    const CaseFolding* folding = &model().folding;
    return daoCollection([] { return std::size(Container::kNames); },
                         [owner = sessionRef()](std::size_t i) {
                           return std::make_shared<Container>(owner,
                                                              static_cast<Container::Kind>(i));
                         },
                         [folding](std::string_view name) {
                           return positionOfName(Container::kNames, name, *folding);
                         });
  }

  static std::size_t positionOfName(std::span<const std::string_view> list, std::string_view name,
                                    const CaseFolding& folding) {
    return tarrowin::positionOfName(list, name, folding,
                                    [](std::string_view text) { return text; });
  }
};

}  // namespace

ObjectRef makeDatabaseObject(std::shared_ptr<Session> session) {
  return std::make_shared<DatabaseObject>(std::move(session));
}

ObjectRef makeProperty(std::shared_ptr<Session> session, std::string name, Recorded<Value> value) {
  return std::make_shared<PropertyObject>(std::move(session), std::move(name), std::move(value));
}

}  // namespace tarrowin
