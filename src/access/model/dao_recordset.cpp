// DAO's Recordset, and fields of recordsets and definitions.
#include <utility>

#include "access/model/dao_objects.h"

namespace tarrowin {

namespace {

// DAO's own numbers and texts.
[[noreturn]] void raiseNoCurrentRecord() { throw VbError(3021, "No current record."); }
[[noreturn]] void raiseInvalidOperation() { throw VbError(3219, "Invalid operation."); }
[[noreturn]] void raiseObjectInvalid() { throw VbError(3420, "Object invalid or no longer set."); }

// The fields of a recordset and where it stands.
struct RecordsetState {
  FieldList fields;
  std::function<std::unique_ptr<RowCursor>()> openRows;
  std::unique_ptr<RowCursor> rows;
  bool positioned = false;  // the rows were asked for
  bool atEnd = true;
  bool started = false;  // MoveNext was called
  bool closed = false;

  void requireOpen() const {
    if (closed) raiseObjectInvalid();
  }
  // Most recordsets are opened for their fields alone: the rows wait for the first one who asks.
  void position() {
    if (!positioned) moveFirst();
  }
  void moveFirst() {
    positioned = true;
    rows = openRows ? openRows() : nullptr;
    atEnd = !rows || !rows->next();
    started = false;
  }
  void moveNext() {
    position();
    if (atEnd) raiseNoCurrentRecord();
    started = true;
    atEnd = !rows->next();
  }
};

class FieldObject : public SessionObject {
 public:
  // Without a state of its own the field is one of a definition.
  FieldObject(std::shared_ptr<Session> session, std::shared_ptr<const FieldList> fields,
              std::shared_ptr<RecordsetState> recordset, std::size_t index)
      : SessionObject(std::move(session)),
        fields_(std::move(fields)),
        recordset_(std::move(recordset)),
        index_(index) {}

 protected:
  Value read(const MemberUse& use) override {
    const FieldModel& field = (*fields_)[index_];
    if (recordset_) recordset_->requireOpen();
    switch (use.member()) {
      case Member::kName:
        return field.name;
      case Member::kType:
        return field.type;
      case Member::kSize:
        return field.size;
      case Member::kSourceTable:
        return field.sourceTable;
      case Member::kSourceField:
        return field.sourceField;
      case Member::kDefault:
      case Member::kValue:
        if (!recordset_) raiseInvalidOperation();
        recordset_->position();
        if (recordset_->atEnd) raiseNoCurrentRecord();
        return recordset_->rows->cell(index_).read(field.name);
      default:
        raise(kErrNoSuchMember, use.name);
    }
  }

 private:
  std::shared_ptr<const FieldList> fields_;
  std::shared_ptr<RecordsetState> recordset_;
  std::size_t index_;
};

CollectionSource fieldCollection(std::shared_ptr<Session> session,
                                 std::shared_ptr<const FieldList> fields,
                                 std::shared_ptr<RecordsetState> recordset) {
  const CaseFolding* folding = &session->model().folding;
  return daoCollection([fields] { return fields->size(); },
                       [session, fields, recordset](std::size_t i) {
                         return std::make_shared<FieldObject>(session, fields, recordset, i);
                       },
                       [fields, folding](std::string_view name) {
                         return positionOfName(
                             *fields, name, *folding,
                             [](const FieldModel& field) { return std::string_view(field.name); });
                       });
}

class RecordsetObject : public SessionObject {
 public:
  RecordsetObject(std::shared_ptr<Session> session, std::string name, Session::Opened opened)
      : SessionObject(std::move(session)),
        name_(std::move(name)),
        state_(std::make_shared<RecordsetState>()) {
    state_->fields = std::move(opened.fields);
    state_->openRows = std::move(opened.openRows);
  }

 protected:
  Value read(const MemberUse& use) override {
    state_->requireOpen();
    switch (use.member()) {
      case Member::kName:
        return name_;
      case Member::kFields:
        if (use.arguments.empty()) return makeCollection(sessionRef(), fields());
        return collectionItem(fields(), use.argument(0));
      case Member::kDefault:
        return collectionItem(fields(), use.argument(0));
      case Member::kEOF:
        state_->position();
        return state_->atEnd;
      case Member::kBOF:
        state_->position();
        return state_->atEnd && !state_->started;
      default:
        raise(kErrNoSuchMember, use.name);
    }
  }

  Value invoke(const MemberUse& use) override {
    switch (use.member()) {
      case Member::kClose:
        state_->requireOpen();
        state_->closed = true;
        state_->rows.reset();
        return {};
      case Member::kMoveFirst:
        state_->requireOpen();
        state_->moveFirst();
        if (state_->atEnd) raiseNoCurrentRecord();
        return {};
      case Member::kMoveNext:
        state_->requireOpen();
        state_->moveNext();
        return {};
      default:
        return read(use);
    }
  }

 private:
  CollectionSource fields() {
    return fieldCollection(sessionRef(), {state_, &state_->fields}, state_);
  }

  std::string name_;
  std::shared_ptr<RecordsetState> state_;
};

}  // namespace

ObjectRef makeFields(std::shared_ptr<Session> session, FieldList fields) {
  auto shared = std::make_shared<const FieldList>(std::move(fields));
  CollectionSource source = fieldCollection(session, std::move(shared), nullptr);
  return makeCollection(std::move(session), std::move(source));
}

ObjectRef makeRecordset(std::shared_ptr<Session> session, std::string name,
                        Session::Opened opened) {
  return std::make_shared<RecordsetObject>(std::move(session), std::move(name), std::move(opened));
}

}  // namespace tarrowin
