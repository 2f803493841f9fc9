// The limit and its texts.
#include "core/large_forms.h"

#include "shared/vb_text.h"

namespace tarrowin {

namespace {
constexpr std::int32_t kMostControls = 254;
}  // namespace

bool hasTooManyControls(const ConversionState& state) {
  return state.intNumControls > kMostControls;
}

void noteTooManyControls(ConversionState& state, std::string_view name) {
  if (!hasTooManyControls(state)) return;
  state.mstrBigForms.append(std::string(name) + " has" + Str(state.intNumControls) + " controls.");
}

std::string largeFormsNote(const ConversionState& state) {
  const std::int32_t count = state.mstrBigForms.count();
  if (count == 0) return {};
  std::string text =
      count == 1 ? "NOTE: The following Form contains too many controls..."
                 : "NOTE: The following" + Str(count) + " Forms contain too many controls...";
  text += "\r\n\r\n";
  for (const std::string& note : state.mstrBigForms) text += "Form " + note + "\r\n";
  return text + "\r\n" + std::string(kControlLimit) + std::string(kControlWarning) + "\r\n\r\n";
}

}  // namespace tarrowin
