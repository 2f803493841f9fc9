// The host object: starting and finding the application, and the window calls.
#include "access/access_host.h"

#include <filesystem>
#include <system_error>
#include <utility>

#include "access/exports/folder_catalog.h"
#include "access/model/application_object.h"

namespace tarrowin {

namespace {

constexpr std::int32_t kErrCannotCreateObject = 429;
// Any handle but 0 would do.
constexpr std::int32_t kApplicationWindow = 0x10A;
constexpr std::string_view kMainWindowClass = "OMain";
constexpr std::string_view kApplicationClass = "Access.Application";

class HostObject : public NamedObject {
 public:
  explicit HostObject(HostOptions options) : state_(std::make_shared<HostState>()) {
    state_->options = std::move(options);
  }

 protected:
  Value read(const MemberUse& use) override {
    switch (use.member()) {
      case Member::kSelectedDatabase:
        return state_->selectedDatabase;
      case Member::kOpenProblem:
        return state_->openProblem;
      default:
        raise(kErrNoSuchMember, use.name);
    }
  }

  Value invoke(const MemberUse& use) override {
    switch (use.member()) {
      case Member::kGetObject:
        requireApplicationClass(use);
        if (ObjectRef running = state_->application.lock()) return running;
        raise(kErrCannotCreateObject);
      case Member::kCreateObject:
        return createApplication(use);
      case Member::kkeybd_event:
      case Member::kSendKeys:
      case Member::kDoEvents:
        return {};
      case Member::kIsExportFolder:
        return isExportFolder(toText(use.argument(0)));
      case Member::kFindWindowA:
        return findWindow(use.argument(0));
      case Member::kSendMessageA:
        return std::int32_t{0};
      default:
        return read(use);
    }
  }

  void write(const MemberUse& use, const Value& value) override {
    if (use.member() != Member::kSelectedDatabase) raise(kErrNoSuchMember, use.name);
    state_->selectedDatabase = toText(value);
  }

 private:
  // "Access.Application", or with a version behind another dot.
  static void requireApplicationClass(const MemberUse& use) {
    const std::string name = toText(use.argument(0));
    static const CaseFolding kFolding{CodePage(CodePage::kUtf8)};
    const bool known =
        kFolding.startsWith(name, kApplicationClass) &&
        (name.size() == kApplicationClass.size() || name[kApplicationClass.size()] == '.');
    if (!known) raise(kErrCannotCreateObject, name);
  }

  Value createApplication(const MemberUse& use) {
    requireApplicationClass(use);
    auto application = std::make_shared<ApplicationObject>(state_);
    state_->application = application;
    return ObjectRef(std::move(application));
  }

  bool isExportFolder(const std::string& path) const {
    const std::string folder = state_->diskPath(path);
    std::error_code error;
    return std::filesystem::is_directory(folder, error) && exports::isExport(folder);
  }

  std::int32_t findWindow(const Value& className) const {
    const std::string* name = className.text();
    const bool wanted = name && *name == kMainWindowClass;
    return wanted && !state_->application.expired() ? kApplicationWindow : 0;
  }

  std::shared_ptr<HostState> state_;
};

}  // namespace

ObjectRef createAccessHost(HostOptions options) {
  return std::make_shared<HostObject>(std::move(options));
}

}  // namespace tarrowin
