// Forms with containers for tests: their controls, and the lines that these become. The controls
// have a position and little else, so that a block is short enough to be read.
#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "forms/form_session.h"

namespace tarrowin::test::container {

using Lines = std::vector<std::string>;

inline Json textBox(std::string_view name, int left, int top, std::string_view parent = "") {
  return control(name, 109, at(left, top), parent);
}

inline Json page(std::string_view name, std::string_view tab, const Json& caption = "") {
  Json properties = at(540, 900);
  properties["Caption"] = caption;
  return control(name, 124, properties, tab);
}

inline Json subform(std::string_view name, std::string_view source, int left = 0, int top = 0,
                    std::string_view parent = "") {
  Json properties = at(left, top);
  properties["SourceObject"] = source;
  properties["Height"] = 1500;
  properties["Width"] = 2500;
  return control(name, 112, properties, parent);
}

// The text box behind the blanks of strIndent.
inline Lines textBoxLines(const std::string& indent, const std::string& name, int left, int top) {
  return {indent + "   Begin VB.TextBox " + name,
          indent + "      BeginProperty Font",
          indent + "      EndProperty",
          indent + "      Left          = " + std::to_string(left),
          indent + "      Top           = " + std::to_string(top),
          indent + "   End   '" + name};
}

// The open frame of a subform.
inline Lines frameLines(const std::string& indent, const std::string& name, int left = 0,
                        int top = 0) {
  return {indent + "   Begin VB.PictureBox " + name, indent + "      Height        = 1500",
          indent + "      Left          = " + std::to_string(left),
          indent + "      Top           = " + std::to_string(top),
          indent + "      Width         = 2500"};
}

inline Lines operator+(Lines left, const Lines& right) {
  left.insert(left.end(), right.begin(), right.end());
  return left;
}

// The controls of a form file: what stands between the header and the closing line.
inline Lines controlLines(const Lines& lines) {
  constexpr std::size_t kHeaderLines = 16;
  Lines body;
  for (std::size_t i = kHeaderLines; i < lines.size(); ++i) {
    if (lines[i].starts_with("End   ' Form ")) break;
    body.push_back(lines[i]);
  }
  return body;
}

// Converts the first of the forms. Boxes of errors remain, that of the result does not.
inline Lines convertAmong(FormSession& session, const std::vector<Json>& forms) {
  session.openForms(forms);
  session.convert({forms.front()["name"].get<std::string>()});
  std::erase_if(session.user.boxes, [](const Box& box) { return box.style != 16; });
  return controlLines(session.lines(session.main.state.gstrFormFile));
}
inline Lines convertFirst(FormSession& session, std::initializer_list<Json> forms) {
  return convertAmong(session, forms);
}

// The lines that begin with the text.
inline Lines linesWith(const Lines& lines, std::string_view start) {
  Lines found;
  for (const std::string& line : lines)
    if (line.starts_with(start)) found.push_back(line);
  return found;
}

// The Begin lines without their blanks.
inline Lines beginnings(const Lines& lines) {
  Lines found;
  for (const std::string& line : lines) {
    const std::size_t start = line.find_first_not_of(' ');
    if (start != std::string::npos && line.compare(start, 6, "Begin ") == 0)
      found.push_back(line.substr(start + 6));
  }
  return found;
}

}  // namespace tarrowin::test::container
