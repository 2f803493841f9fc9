// The online help: one balloon with a heading, a text and up to five labels.
#pragma once

#include <string_view>

namespace tarrowin {

struct MainObject;

// Shows one balloon with the labels of gastrBalloonLabels, or else the paragraphs of
// gastrBalloonChecks, each up to the first empty one. Gives the number of the label that the user
// chose, from 1, or 0 when none was. Where no balloon can be shown an information box says so.
int DispHelp(MainObject& main, std::string_view heading, std::string_view text);

}  // namespace tarrowin
