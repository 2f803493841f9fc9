// Application.CreateControl on the tree of an open form.
#pragma once

#include <cstdint>
#include <string>

#include "access/model/session.h"

namespace tarrowin {

// The arguments of CreateControl behind the form's name. A size or position that was left out is
// Empty: the control then has that of a new control of its type.
struct NewControl {
  std::int32_t type = 0;
  std::int32_t section = 0;
  std::string parent;      // the control that is to hold it; empty or a form's name: the form
  std::string columnName;  // its ControlSource
  Value left, top, width, height;  // twips
};

// Adds the control and gives its position in the list: the properties of the database's template
// for its type, else Access's own defaults, and a name such as "Text0", numbered on over all
// controls. A tab control comes with two pages. Raises, and adds nothing,
//   2149  a type that Access 2003 does not know and for which there is no template
//   2462  a section that the form lacks (its detail section is always there)
//   2467  a parent that is not there
//   2150  a parent that cannot hold controls
//   2151  a parent that cannot hold this type; a page anywhere but on a tab control
//   2100  a place that is not within 22 inches
std::size_t addControl(OpenDesign& open, DatabaseModel& database, const NewControl& wanted);

}  // namespace tarrowin
