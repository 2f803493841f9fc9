// DAO's QueryDef and its parameters.
#include <utility>

#include "access/model/dao_objects.h"

namespace tarrowin {

namespace {

class ParameterObject : public SessionObject {
 public:
  ParameterObject(std::shared_ptr<Session> session, std::size_t query, std::size_t parameter)
      : SessionObject(std::move(session)), query_(query), parameter_(parameter) {}

 protected:
  Value read(const MemberUse& use) override {
    const ParameterModel& parameter = session().parametersOf(query_)[parameter_];
    switch (use.member()) {
      case Member::kName:
        return parameter.name;
      case Member::kType:
        return parameter.type;
      case Member::kDefault:
      case Member::kValue: {
        const Value* value = session().parameterValue(query_, parameter_);
        return value ? *value : Value(Value::Null{});
      }
      default:
        raise(kErrNoSuchMember, use.name);
    }
  }

  void write(const MemberUse& use, const Value& value) override {
    if (use.member() != Member::kValue && use.member() != Member::kDefault)
      raise(kErrNoSuchMember, use.name);
    session().setParameterValue(query_, parameter_, value);
  }

 private:
  std::size_t query_, parameter_;
};

class QueryDef : public SessionObject {
 public:
  QueryDef(std::shared_ptr<Session> session, std::size_t query)
      : SessionObject(std::move(session)), query_(query) {}

 protected:
  Value read(const MemberUse& use) override {
    const QueryModel& query = model().queries[query_];
    switch (use.member()) {
      case Member::kName:
        return query.name;
      case Member::kSQL:
        return query.sql.get().read(query.name);
      case Member::kParameters:
        return parameters(use);
      case Member::kFields: {
        const ObjectRef fields = makeFields(sessionRef(), session().queryFields(query_));
        return use.arguments.empty() ? Value(fields) : fields->get("", use.arguments);
      }
      case Member::kType:
        if (query.type) return *query.type;
        raise(kErrNoSuchMember, use.name);
      case Member::kConnect:
        if (const auto& connect = query.connect.get()) return *connect;
        raise(kErrNoSuchMember, use.name);
      default:
        raise(kErrNoSuchMember, use.name);
    }
  }

  Value invoke(const MemberUse& use) override {
    switch (use.member()) {
      case Member::kOpenRecordset:
        return makeRecordset(sessionRef(), model().queries[query_].name,
                             {session().openQuery(query_), {}});
      case Member::kClose:
        return {};
      default:
        return read(use);
    }
  }

 private:
  Value parameters(const MemberUse& use) {
    const std::vector<ParameterModel>* list = &session().parametersOf(query_);
    const CaseFolding* folding = &model().folding;
    CollectionSource source = daoCollection(
        [list] { return list->size(); },
        [owner = sessionRef(), query = query_](std::size_t i) {
          return std::make_shared<ParameterObject>(owner, query, i);
        },
        [list, folding](std::string_view name) {
          return positionOfName(*list, name, *folding,
                                [](const ParameterModel& parameter) { return parameter.name; });
        });
    if (!use.arguments.empty()) return collectionItem(source, use.argument(0));
    return makeCollection(sessionRef(), std::move(source));
  }

  std::size_t query_;
};

}  // namespace

ObjectRef makeQueryDef(std::shared_ptr<Session> session, std::size_t query) {
  return std::make_shared<QueryDef>(std::move(session), query);
}

}  // namespace tarrowin
