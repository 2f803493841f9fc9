// One row of a macro's sheet, as recordings, text exports and the files of databases all give it.
#pragma once

#include <string>
#include <vector>

namespace tarrowin {

struct MacroAction {
  std::string macroName, condition, action;
  std::vector<std::string> arguments;
  std::string comment;

  bool operator==(const MacroAction&) const = default;
};

// Access 2010 and later add rows that repeat the whole macro as XML, cut into comments: they are no
// part of the sheet.
bool isXmlCopy(const MacroAction& row);

}  // namespace tarrowin
