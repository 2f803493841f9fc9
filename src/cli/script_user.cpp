// The queue of answers and the events.
#include "cli/script_user.h"

#include <utility>

#include "cli/preview_text.h"
#include "core/window_events.h"

namespace tarrowin {

namespace {

std::string_view nameOf(Answer answer) {
  switch (answer) {
    case Answer::kYes:
      return "yes";
    case Answer::kNo:
      return "no";
    case Answer::kOk:
      break;
  }
  return "ok";
}

}  // namespace

ScriptUser::ScriptUser(CodePage codePage, Resolve resolve, Transcript transcript)
    : codePage_(std::move(codePage)),
      resolve_(std::move(resolve)),
      transcript_(std::move(transcript)) {}

void ScriptUser::queueAnswers(const std::deque<std::string>& answers) {
  answers_.insert(answers_.end(), answers.begin(), answers.end());
}

void ScriptUser::reset() {
  answers_.clear();
  chosenPath_.reset();
  ended_ = false;
  caption_ = MainWindow{}.caption;
}

Answer ScriptUser::messageBox(int style, std::string_view text, std::string_view title) {
  const std::string shown = codePage_.toUtf8(text);
  const Answer answer = answerTo(style, shown);
  transcript_({{"event", "message"},
               {"style", style},
               {"title", codePage_.toUtf8(title)},
               {"text", shown},
               {"answer", nameOf(answer)}});
  return answer;
}

Answer ScriptUser::answerTo(int style, std::string_view text) {
  if (!message_style::asksYesNo(style)) {
    if (!answers_.empty() && answers_.front() == "ok") answers_.pop_front();
    return Answer::kOk;
  }
  const Answer byDefault = message_style::defaultIsNo(style) ? Answer::kNo : Answer::kYes;
  if (answers_.empty()) return byDefault;
  const std::string answer = std::move(answers_.front());
  answers_.pop_front();
  if (answer == "yes") return Answer::kYes;
  if (answer == "no") return Answer::kNo;
  warn("the answer \"" + answer + "\" met the question \"" + std::string(text) + "\"");
  return byDefault;
}

void ScriptUser::warn(const std::string& text) {
  transcript_({{"event", "warning"}, {"text", text}});
}

std::string ScriptUser::openFile(const OpenDialog& dialog) {
  static_cast<void>(dialog);
  std::string path;
  if (chosenPath_) {
    path = *std::exchange(chosenPath_, std::nullopt);
  } else if (!answers_.empty()) {
    path = std::move(answers_.front());
    answers_.pop_front();
  }
  return path.empty() ? path : codePage_.fromUtf8(resolve_(path));
}

std::optional<std::string> ScriptUser::browseForFolder(std::string_view title) {
  static_cast<void>(title);
  if (answers_.empty()) return std::nullopt;
  const std::string path = std::move(answers_.front());
  answers_.pop_front();
  if (path.empty()) return std::nullopt;
  return codePage_.fromUtf8(resolve_(path));
}

void ScriptUser::captionChanged(const MainWindow& window) {
  if (window.caption == caption_) return;
  caption_ = window.caption;
  transcript_({{"event", "caption"}, {"text", codePage_.toUtf8(caption_)}});
}

void ScriptUser::listsFilled(const MainWindow& window) {
  Json event = {{"event", "lists"}};
  for (const ObjectList list : {ObjectList::kQueries, ObjectList::kForms, ObjectList::kReports,
                                ObjectList::kMacros, ObjectList::kModules, ObjectList::kObjects}) {
    Json names = Json::array();
    for (const ListItem& item : window.list(list)) names.push_back(codePage_.toUtf8(item.text));
    event[std::string(nameOfList(list))] = std::move(names);
  }
  transcript_(event);
}

void ScriptUser::showPreview(const PreviewSurface& surface) {
  Json event = {{"event", "preview"}};
  event.update(previewJson(surface, codePage_));
  transcript_(event);
}

}  // namespace tarrowin
