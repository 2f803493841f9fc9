// The error table.
#include "multipage/restructuring.h"

#include <algorithm>
#include <iterator>

#include "shared/vb_text.h"

namespace tarrowin {

namespace {

constexpr std::int32_t kSilent[] = {438,  2100, 2101, 2104, 2110, 2113, 2125, 2135,
                                    2167, 2184, 2185, 2186, 2187, 2192, 2196, 2220,
                                    2448, 2462, 2467, 2480, 2771, 7751, 7766, 7777};

constexpr std::string_view kBoxTitle = "Create New Form";

}  // namespace

Restructuring::Restructuring(MainObject& main, std::string_view procedure)
    : Procedure([this](const VbError& error) { return onError(error); }),
      main_(main),
      procedure_(procedure) {}

Resume Restructuring::onError(const VbError& error) {
  lastError = error.number();
  if (std::ranges::find(kSilent, lastError) != std::end(kSilent)) return Resume::kNext;
  main_.user.messageBox(message_style::kCritical,
                        std::string(procedure_) + "() - Error #" + LTrimStr(lastError) +
                            " Property Name = " + propertyName + "\r\n" + error.description(),
                        kBoxTitle);
  return Resume::kNext;
}

}  // namespace tarrowin
