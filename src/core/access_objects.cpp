// The calls of the Access host that are more than one member: attaching, the live check, the keys.
#include "core/access_objects.h"

#include "core/statement.h"

namespace tarrowin {

namespace {
// Window class of the main window of Access.
constexpr std::string_view kMainWindowClass = "OMain";
// WM_USER + 18, which the main window of Access answers once its database is open.
constexpr std::int32_t kLiveCheckMessage = 1042;
// WM_QUIT.
constexpr std::int32_t kQuitMessage = 18;
// keybd_event: virtual key code of the left Shift key, and the flag of a released key.
constexpr std::int32_t kLeftShift = 160, kKeyDown = 0, kKeyUp = 2;
}  // namespace

Application AccessHost::CreateAccessApp(std::string_view className) const {
  Application application;
  const bool attached = ignoringErrors(
      [&] { application = Application(toObject(call("GetObject", {Value(className)}))); });
  if (attached) return application;
  return Application(toObject(call("CreateObject", {Value(className)})));
}

std::int32_t AccessHost::mainWindow() const {
  return toLong(call("FindWindowA", {Value(kMainWindowClass), Value(Value::Null{})}));
}

bool AccessHost::IsAccessRunning() const {
  const std::int32_t window = mainWindow();
  if (window == 0) return false;
  call("SendMessageA", {Value(window), Value(kLiveCheckMessage), Value(0), Value(0)});
  return true;
}

void AccessHost::endOrphanedAccess() const {
  call("SendMessageA", {Value(mainWindow()), Value(kQuitMessage), Value(0), Value(0)});
}

void AccessHost::holdShiftKey() const {
  call("keybd_event", {Value(kLeftShift), Value(0), Value(kKeyDown), Value(0)});
}

void AccessHost::releaseShiftKey() const {
  call("keybd_event", {Value(kLeftShift), Value(0), Value(kKeyUp), Value(0)});
}

}  // namespace tarrowin
