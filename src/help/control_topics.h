// The right mouse button as data: what the balloon of each control of the main window says.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "help/topic.h"

namespace tarrowin {

// A row for the whole control, whatever the index.
inline constexpr int kAnyIndex = -1;

// How many objects of a kind are recommended for one batch.
struct BatchSize {
  std::string_view plural;  // Forms
  int databaseSize;         // advice is given above this number of objects
  int batchSize;
};

struct ControlTopic {
  std::string_view control;
  int index;  // of an element of a control array, or a tab of tabSelect
  std::string_view title;
  std::string_view text;
  const BatchSize* batchSize = nullptr;  // a last paragraph about it
  TopicLabels labels{};
};

// In their order of search: a row for any index stands behind those for single ones.
std::span<const ControlTopic> controlTopics();

// The row's text, and its recommendation in a paragraph of its own.
std::string textOf(const ControlTopic& topic);

}  // namespace tarrowin
