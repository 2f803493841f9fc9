// The balloon: its labels or paragraphs, what is said where there is none, and the error box.
#include "help/disp_help.h"

#include <optional>
#include <string>

#include "core/main_object.h"
#include "shared/vb_text.h"

namespace tarrowin {

namespace {

constexpr std::string_view kHelpTitle = "Tarrowin Help";

constexpr std::string_view kNoBalloon =
    "The Access to Visual Basic Tarrowin program requires the "
    "Microsoft Office Assistant Balloon in order to display online Help."
    "Install or activate the Office Assistant to view the online Help topics.";

std::vector<std::string> upToFirstEmpty(const BalloonTexts& texts) {
  std::vector<std::string> filled;
  for (std::size_t i = 1; i < texts.size() && !texts[i].empty(); ++i) filled.push_back(texts[i]);
  return filled;
}

Balloon balloonOf(const ConversionState& state, std::string_view heading, std::string_view text) {
  const BalloonTexts& texts =
      state.gastrBalloonLabels[1].empty() ? state.gastrBalloonChecks : state.gastrBalloonLabels;
  return {std::string(heading), std::string(text), upToFirstEmpty(texts)};
}

}  // namespace

int DispHelp(MainObject& main, std::string_view heading, std::string_view text) {
  // The face shows its own balloon. No Access is started for it: help has to open in an instant,
  // also while nothing is open, and gappAccess goes on meaning the open database.
  try {
    const std::optional<int> chosen = main.user.showBalloon(balloonOf(main.state, heading, text));
    if (!chosen) main.messageBox(message_style::kInformation, kNoBalloon);
    main.window.focus = "frmTarrowin";
    return chosen.value_or(0);
  } catch (const VbError& error) {
    main.user.messageBox(
        message_style::kCritical,
        "DispHelp() - Error #" + LTrimStr(error.number()) + "\r\n" + error.description(),
        kHelpTitle);
    return 0;
  }
}

}  // namespace tarrowin
