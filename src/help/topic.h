// A topic of the online help as data: what its balloon says, and where its labels lead.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace tarrowin {

enum class TopicId {
  kMain,
  kUsing,
  kOverview,
  kObjects,
  kControls,
  kConverted,
  kActiveX,
  kEarlierVersions,
  kHints,
  kVbaCode,
  kTips,
  kConvertedObjects,
  kSelection,
  kDataRepeater,
  kSupport,
  kAbout,
  kSystemInformation,
};

// A line of a balloon that the user may choose, and the topic that it leads to.
struct TopicLabel {
  std::string_view text;
  TopicId leadsTo{};
};

// Up to five, as a balloon has room for; the unused ones at the end are empty.
using TopicLabels = std::array<TopicLabel, 5>;
using TopicParagraphs = std::array<std::string_view, 5>;

// Line ends in texts are CR LF. A topic has labels, or paragraphs that are only read, or neither.
struct Topic {
  TopicId id;
  std::string_view heading;
  std::string_view text;
  TopicLabels labels{};
  TopicParagraphs paragraphs{};
  // Makes the text of a topic that is not the same on every machine; text is then empty.
  std::string (*composeText)() = nullptr;
};

}  // namespace tarrowin
