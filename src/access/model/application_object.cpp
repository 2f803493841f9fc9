// Opening and closing a database, and the collections of what is open in it.
#include "access/model/application_object.h"

#include <utility>

#include "access/database_source.h"
#include "access/model/dao_objects.h"
#include "access/model/design_errors.h"
#include "access/model/design_objects.h"
#include "access/model/do_cmd_object.h"
#include "access/model/module_object.h"
#include "access/model/new_control.h"
#include "access/model/new_form.h"
#include "access/model/object_keeper.h"
#include "access/model/reference_object.h"

namespace tarrowin {

namespace {

constexpr std::int32_t kErrAlreadyOpen = 7867;
constexpr std::int32_t kErrNoReportOfThatName = 2451;
constexpr std::int32_t kErrNoFormOfThatNumber = 2456, kErrNoReportOfThatNumber = 2457;
constexpr std::int32_t kErrNoModuleOfThatName = 7961, kErrNoModuleOfThatNumber = 7962;

void raiseIfRecorded(const std::optional<RecordedError>& error) {
  if (error) error->raise({});
}

}  // namespace

ApplicationObject::~ApplicationObject() {
  if (session_) session_->close();
}

// An application that has quit is no object any more.
const NameTable& ApplicationObject::names() const {
  if (!running_) raise(kErrObjectNotSet);
  return memberNames();
}

const ApplicationErrors& ApplicationObject::errors() {
  if (!opened_ && (!errors_ || errorsOf_ != host_->selectedDatabase)) {
    errors_ = host_->selectedErrors();
    errorsOf_ = host_->selectedDatabase;
  }
  return *errors_;
}

Value ApplicationObject::read(const MemberUse& use) {
  switch (use.member()) {
    case Member::kName:
      return "Microsoft Access";
    case Member::kVisible:
      raiseIfRecorded(errors().Visible);
      return visible_;
    case Member::kCurrentDb:
      raiseIfRecorded(errors().CurrentDb);
      return session_ ? makeDatabaseObject(session_) : ObjectRef();
    case Member::kDoCmd:
      return makeDoCmd(session_);
    case Member::kForms:
      return designs(false, use);
    case Member::kReports:
      return designs(true, use);
    case Member::kModules:
      return modules(use);
    case Member::kReferences: {
      CollectionSource references = referenceCollection(session_);
      if (!use.arguments.empty()) return collectionItem(references, use.argument(0));
      return makeCollection(session_, std::move(references));
    }
    case Member::kRecordedDocument:
      return recordedDocument(use);
    default:
      raise(kErrNoSuchMember, use.name);
  }
}

Value ApplicationObject::invoke(const MemberUse& use) {
  switch (use.member()) {
    case Member::kOpenCurrentDatabase:
      openCurrentDatabase(toText(use.argument(0)));
      return {};
    case Member::kCloseCurrentDatabase:
      raiseIfRecorded(errors().CloseCurrentDatabase);
      closeCurrentDatabase();
      return {};
    case Member::kQuit:
      raiseIfRecorded(errors().Quit);
      quit();
      return {};
    case Member::kCreateForm:
      return makeDesign(openSession(), createForm(*openSession(), toText(use.argument(1))));
    case Member::kCreateControl:
      return createControl(use);
    case Member::kRefreshDatabaseWindow:
      return {};
    default:
      return read(use);
  }
}

void ApplicationObject::write(const MemberUse& use, const Value& value) {
  if (use.member() != Member::kVisible) raise(kErrNoSuchMember, use.name);
  raiseIfRecorded(errors().Visible);
  visible_ = toBoolean(value);
}

void ApplicationObject::fail(const std::string& path, std::int32_t number,
                             const std::string& reason) {
  host_->openProblem = path + ": " + reason;
  if (number == kErrAutomationFail) throw VbError(number, host_->openProblem);
  raise(number, path);
}

void ApplicationObject::openCurrentDatabase(const std::string& path) {
  host_->openProblem.clear();
  if (session_) raise(kErrAlreadyOpen);
  std::unique_ptr<DatabaseModel> model;
  try {
    model = host_->open(path);
  } catch (const OpenFailure& failure) {
    fail(path, failure.number(), host_->options.codePage.fromUtf8(failure.reason()));
  }
  errors_ = model->errors;
  opened_ = true;
  const std::optional<RecordedError>& recorded = errors_->OpenCurrentDatabase;
  if (!recorded || recorded->number == kErrAlreadyOpen)
    session_ = std::make_shared<Session>(std::move(model));
  if (!recorded) return;
  const VbError error = recorded->asError(path);
  if (!session_) host_->openProblem = path + ": " + error.description();
  throw error;
}

void ApplicationObject::closeCurrentDatabase() {
  if (session_) session_->close();
  session_.reset();
}

void ApplicationObject::quit() {
  closeCurrentDatabase();
  running_ = false;
  host_->application.reset();
}

const std::shared_ptr<Session>& ApplicationObject::openSession() const {
  if (!session_) raise(kErrObjectNotSet);
  return session_;
}

// CreateControl(form, type, section, parent, column, left, top, width, height)
Value ApplicationObject::createControl(const MemberUse& use) {
  const std::shared_ptr<Session>& session = openSession();
  const std::string name = toText(use.argument(0));
  const std::size_t index =
      positionOfName(session->openForms, name, session->model().folding,
                     [](const auto& open) -> const std::string& { return open->source()->name; });
  if (index >= session->openForms.size()) raise(design_error::kNoFormOfThatName, name);
  const std::shared_ptr<OpenDesign> open = session->openForms[index];
  NewControl wanted;
  wanted.type = toLong(use.argument(1));
  wanted.section = toLong(use.argument(2));
  wanted.parent = toText(use.argument(3));
  wanted.columnName = toText(use.argument(4));
  wanted.left = use.argument(5);
  wanted.top = use.argument(6);
  wanted.width = use.argument(7);
  wanted.height = use.argument(8);
  return makeControl(session, open, addControl(*open, session->tree(), wanted));
}

Value ApplicationObject::designs(bool reports, const MemberUse& use) {
  CollectionSource source;
  if (session_) {
    Session* session = session_.get();
    const auto list = [session, reports]() -> const std::vector<std::shared_ptr<OpenDesign>>& {
      return reports ? session->openReports : session->openForms;
    };
    source.count = [list] { return list().size(); };
    source.find = [list, session](std::string_view name) {
      return positionOfName(list(), name, session->model().folding, [](const auto& open) {
        return std::string_view(open->source()->name);
      });
    };
    source.item = [list, owner = session_](std::size_t i) { return makeDesign(owner, list()[i]); };
  } else {
    source.count = [] { return std::size_t{0}; };
    source.find = [](std::string_view) { return SIZE_MAX; };
  }
  source.missingName = [reports](std::string_view name) {
    raise(reports ? kErrNoReportOfThatName : design_error::kNoFormOfThatName, name);
  };
  source.missingIndex = [reports](std::int32_t) {
    raise(reports ? kErrNoReportOfThatNumber : kErrNoFormOfThatNumber);
  };
  if (!use.arguments.empty()) return collectionItem(source, use.argument(0));
  return makeCollection(session_, std::move(source));
}

Value ApplicationObject::modules(const MemberUse& use) {
  CollectionSource source;
  if (session_) {
    Session* session = session_.get();
    source.count = [session] { return session->openModules.size(); };
    source.find = [session](std::string_view name) {
      return positionOfName(
          session->openModules, name, session->model().folding,
          [](const ModuleModel* module) { return std::string_view(module->name); });
    };
    source.item = [owner = session_](std::size_t i) {
      return makeModule(owner, *owner->openModules[i]);
    };
  } else {
    source.count = [] { return std::size_t{0}; };
    source.find = [](std::string_view) { return SIZE_MAX; };
  }
  source.missingName = [](std::string_view name) { raise(kErrNoModuleOfThatName, name); };
  source.missingIndex = [](std::int32_t) { raise(kErrNoModuleOfThatNumber); };
  if (!use.arguments.empty()) return collectionItem(source, use.argument(0));
  return makeCollection(session_, std::move(source));
}

// The recording itself, for a recorder that would otherwise lose what the interface does not show.
Value ApplicationObject::recordedDocument(const MemberUse& use) const {
  if (!session_ || !session_->model().recording || !session_->model().keeper)
    raise(kErrNoSuchMember, use.name);
  return session_->model().keeper->document();
}

}  // namespace tarrowin
