// The menu tree of help topics: the table, and the walk from topic to topic.
#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "help/topic.h"

namespace tarrowin {

struct MainObject;

// Every topic, one row each.
std::span<const Topic> helpTopics();

// Shows the topic, then the one behind the label that the user chose, and so on until the user
// closes a balloon without choosing.
void showTopic(MainObject& main, TopicId id);

// Shows one balloon and gives the topic behind the chosen label; nothing when none was chosen.
std::optional<TopicId> showBalloon(MainObject& main, std::string_view heading,
                                   std::string_view text, const TopicLabels& labels,
                                   const TopicParagraphs& paragraphs = {});

}  // namespace tarrowin
