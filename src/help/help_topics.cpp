// The ways into the online help.
#include "help/help_topics.h"

#include <algorithm>
#include <optional>

#include "help/control_topics.h"
#include "help/topic_tree.h"

namespace tarrowin {

void showMainTopic(MainObject& main) { showTopic(main, TopicId::kMain); }
void showSupportTopic(MainObject& main) { showTopic(main, TopicId::kSupport); }
void showAboutTopic(MainObject& main) { showTopic(main, TopicId::kAbout); }

bool showTopicOf(MainObject& main, std::string_view control, int index) {
  if (control == "Toolbar1") {
    showAboutTopic(main);
    return true;
  }
  const auto rows = controlTopics();
  const auto row = std::ranges::find_if(rows, [&](const ControlTopic& topic) {
    return topic.control == control && (topic.index == kAnyIndex || topic.index == index);
  });
  if (row == rows.end()) return false;
  const std::optional<TopicId> next = showBalloon(main, row->title, textOf(*row), row->labels);
  if (next) showTopic(main, *next);
  return true;
}

}  // namespace tarrowin
