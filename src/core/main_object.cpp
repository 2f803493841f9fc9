// Boxes with the program's title, and the clock.
#include "core/main_object.h"

#include <cmath>
#include <ctime>

#include "shared/vb_text.h"

namespace tarrowin {

MainObject::MainObject(User& theUser, FileSlots& theFiles, AccessHost theHost,
                       std::function<Date()> theClock)
    : user(theUser), files(theFiles), host(std::move(theHost)), Now(std::move(theClock)) {}

Answer MainObject::messageBox(int style, std::string_view text) {
  return user.messageBox(style, text, kProgramTitle);
}

void MainObject::errorBox(std::string_view procedure, const VbError& error,
                          std::string_view named) {
  messageBox(message_style::kCritical, std::string(procedure) + "(" + std::string(named) +
                                           ") - Error #" + LTrimStr(error.number()) + "\r\n" +
                                           error.description());
}

void MainObject::controlErrorBox(std::string_view procedure, std::string_view name,
                                 const VbError& error) {
  messageBox(message_style::kCritical, std::string(procedure) + "(" + std::string(name) +
                                           ") - Error #" + LTrimStr(error.number()) + " " +
                                           error.description());
}

double MainObject::Time() const {
  const double now = Now().days;
  return now - std::floor(now);
}

Date systemNow() {
  constexpr double kSecondsPerDay = 86400;
  // 1970-01-01 as a date value.
  constexpr double kUnixEpoch = 25569;
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  const std::time_t localSeconds = now + local.tm_gmtoff;
  return Date{kUnixEpoch + static_cast<double>(localSeconds) / kSecondsPerDay};
}

}  // namespace tarrowin
