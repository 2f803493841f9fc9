// The walk through the topics.
#include "help/topic_tree.h"

#include <algorithm>
#include <cstddef>
#include <string>

#include "core/main_object.h"
#include "help/disp_help.h"

namespace tarrowin {

namespace {

const Topic& topicOf(TopicId id) { return *std::ranges::find(helpTopics(), id, &Topic::id); }

std::string textOf(const Topic& topic) {
  return topic.composeText ? topic.composeText() : std::string(topic.text);
}

}  // namespace

std::optional<TopicId> showBalloon(MainObject& main, std::string_view heading,
                                   std::string_view text, const TopicLabels& labels,
                                   const TopicParagraphs& paragraphs) {
  // All five each time, so that nothing of the balloon before remains.
  for (std::size_t i = 0; i < labels.size(); ++i) {
    main.state.gastrBalloonLabels[i + 1] = labels[i].text;
    main.state.gastrBalloonChecks[i + 1] = paragraphs[i];
  }
  const int chosen = DispHelp(main, heading, text);
  if (chosen < 1 || chosen > static_cast<int>(labels.size())) return std::nullopt;
  const TopicLabel& label = labels[static_cast<std::size_t>(chosen - 1)];
  if (label.text.empty()) return std::nullopt;
  return label.leadsTo;
}

void showTopic(MainObject& main, TopicId id) {
  std::optional<TopicId> next = id;
  while (next) {
    const Topic& topic = topicOf(*next);
    next = showBalloon(main, topic.heading, textOf(topic), topic.labels, topic.paragraphs);
  }
}

}  // namespace tarrowin
