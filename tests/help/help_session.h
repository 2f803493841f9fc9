// A main object whose user sees balloons: their answers are queued, the balloons kept.
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "core/main_object.h"
#include "support/test_session.h"

namespace tarrowin::test {

class BalloonUser : public RecordingUser {
 public:
  std::optional<int> showBalloon(const Balloon& balloon) override {
    balloons.push_back(balloon);
    if (failure) throw *failure;
    if (!hasBalloons) return std::nullopt;
    if (choices.empty()) return 0;
    const int chosen = choices.front();
    choices.pop_front();
    return chosen;
  }

  std::deque<int> choices;  // closed without a choice when empty
  bool hasBalloons = true;
  std::optional<VbError> failure;
  std::vector<Balloon> balloons;
};

struct HelpSession {
  // The headings shown since the last call.
  std::vector<std::string> headings() {
    std::vector<std::string> all;
    for (const Balloon& balloon : user.balloons) all.push_back(balloon.heading);
    user.balloons.clear();
    return all;
  }

  PosixFileSystem fileSystem;
  BalloonUser user;
  FileSlots files{fileSystem, CodePage(), "/"};
  MainObject main{user, files, AccessHost(), [] { return Date{46000.5}; }};
};

// All that a balloon says.
inline std::string wordsOf(const Balloon& balloon) {
  std::string words = balloon.heading + "\r\n" + balloon.text;
  for (const std::string& label : balloon.labels) words += "\r\n" + label;
  return words;
}

// Fails the test unless the text is ASCII whose lines end in CR LF.
inline void expectPlainText(const std::string& text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char character = text[i];
    if (character == '\r') {
      EXPECT_TRUE(i + 1 < text.size() && text[i + 1] == '\n') << text;
    } else if (character == '\n') {
      EXPECT_TRUE(i > 0 && text[i - 1] == '\r') << text;
    } else {
      EXPECT_TRUE(character >= ' ' && character <= '~') << text;
    }
  }
}

}  // namespace tarrowin::test
