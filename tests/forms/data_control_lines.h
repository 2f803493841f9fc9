// The lines of a VB.Data control for tests, all but the closing one.
#pragma once

#include <string>
#include <vector>

namespace tarrowin::test {

// Of the database Orders.mdb of Access 2000, behind the blanks of strIndent; left and top in twips.
inline std::vector<std::string> dataControlLines(const std::string& indent, const std::string& name,
                                                 int left, int top, const std::string& source) {
  return {indent + "   Begin VB.Data " + name,
          indent + "      Caption           = \"" + name + "\"",
          indent + "      Connect           = \"Access 2000;\"",
          indent + "      DatabaseName      = \"Orders.mdb\"",
          indent + "      DefaultCursorType = 0   ' DefaultCursor",
          indent + "      DefaultType       = 2   ' Use Jet DB engine",
          indent + "      Exclusive         = 0   ' False",
          indent + "      Height            = 330",
          indent + "      Left              = " + std::to_string(left),
          indent + "      Options           = 0",
          indent + "      ReadOnly          = 0   ' False",
          indent + "      RecordsetType     = 1   ' Dynaset",
          indent + "      RecordSource      = \"" + source + "\"",
          indent + "      Top               = " + std::to_string(top),
          indent + "      Visible           = 0   ' False",
          indent + "      Width             = 1440"};
}

}  // namespace tarrowin::test
