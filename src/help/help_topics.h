// The topics of the online help: a menu tree of balloons, entered by the toolbar, and the balloons
// of the right mouse button.
#pragma once

#include <string_view>

namespace tarrowin {

struct MainObject;

void showMainTopic(MainObject& main);
void showSupportTopic(MainObject& main);
void showAboutTopic(MainObject& main);

// The right mouse button on a control of the main window: shows its balloon, and the topic behind
// the label chosen there. The name is the control's own; the index is that of an element of a
// control array, and of tabSelect the tab under the pointer (0 to 6, else -1). False when the
// control has no topic.
bool showTopicOf(MainObject& main, std::string_view control, int index = 0);

}  // namespace tarrowin
