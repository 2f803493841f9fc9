// What the preview of a form shows: the blank form Form1, the controls added to it, and where each
// stands. Plain data that the window draws and the command line prints.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "shared/value.h"

namespace tarrowin {

// Each property once, in the order in which they were written first.
struct PreviewProperties {
  std::vector<std::pair<std::string, Value>> properties;

  // What was written last to that property, or nullptr.
  const Value* find(std::string_view property) const;
  void put(std::string_view property, Value value);
};

// A control that Controls.Add made on the form, with what was then written to it: "Left" and "Top"
// in twips from the upper left corner of the form or, with a container, of that one ...
struct PreviewControl : PreviewProperties {
  std::string className;  // "VB.TextBox"
  std::string name;       // the Access name with underscores for its blanks
  std::string container;  // name of the control that it was added to; empty: the form
  std::vector<std::string> tabCaptions;  // of a tab strip, in the order of its tabs
};

// A section of the Access form: Access's number, and the height in twips.
struct PreviewSection {
  std::int32_t number;
  std::int32_t height;
};

// The properties are those of Form1: "BorderStyle", "Caption", "Height" and "Width" in twips,
// "Tag".
struct PreviewSurface : PreviewProperties {
  std::string accessName;                // of the Access form
  std::vector<PreviewSection> sections;  // those that could be read
  // In the order in which they were added: each in front of those before it.
  std::vector<PreviewControl> controls;
  // One entry a control on a tab page: the digit of the page and the control's Access name; the
  // first element is there from the start and empty when no control stands on a page.
  std::vector<std::string> mstrTabControls{1};

  // The heights of all sections, in twips.
  std::int64_t totalHeight() const;
};

// Turns the pages as a click on the tab does, the tab counted from 0: sets Visible of the controls
// that stand on pages.
void showTab(PreviewSurface& surface, int tab);

}  // namespace tarrowin
