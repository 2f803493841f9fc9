// Boxes as lines on standard error, and the progress line.
#include "cli/command_user.h"

#include <utility>

namespace tarrowin {

namespace {

// The icon is in the second group of four bits of a style.
constexpr bool isCritical(int style) { return (style & 0xF0) == message_style::kCritical; }

// The text with plain line ends and none at its end.
std::string withPlainLineEnds(std::string_view text) {
  std::string plain;
  plain.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') continue;
    plain += text[i];
  }
  while (plain.ends_with('\n')) plain.pop_back();
  return plain;
}

Answer answerTo(int style) {
  if (!message_style::asksYesNo(style)) return Answer::kOk;
  // The one question with this style is whether to stop the program over a form that Access refuses
  // to open, so that the user can open the database again by hand. Nobody sits here who could, and
  // the other objects may still convert: the form is skipped and counts as not converted.
  return style == message_style::kYesNoCritical ? Answer::kNo : Answer::kYes;
}

std::string_view shownAnswer(Answer answer) {
  if (answer == Answer::kOk) return "";
  return answer == Answer::kYes ? " Yes" : " No";
}

}  // namespace

void CommandUser::beginBatch(std::string_view words, std::size_t selected) {
  words_ = words;
  selected_ = selected;
  reached_ = 0;
  messages_.clear();
  sawFailure_ = false;
}

void CommandUser::endBatch() { console_.endProgress(); }

Answer CommandUser::messageBox(int style, std::string_view text, std::string_view title) {
  static_cast<void>(title);
  std::string shown = withPlainLineEnds(codePage_.toUtf8(text));
  const Answer answer = answerTo(style);
  console_.message(shown + std::string(shownAnswer(answer)));
  messages_.push_back(std::move(shown));
  if (isCritical(style)) sawFailure_ = true;
  return answer;
}

std::string CommandUser::openFile(const OpenDialog& dialog) {
  static_cast<void>(dialog);
  return std::exchange(path_, std::string());
}

void CommandUser::refresh(const MainWindow& window) {
  static_cast<void>(window);
  if (selected_ == 0) return;  // only a batch has a progress line
  ++reached_;
  console_.progress([this] {
    return "Converting " + words_ + ": " + std::to_string(reached_) + " of " +
           std::to_string(selected_);
  });
}

}  // namespace tarrowin
