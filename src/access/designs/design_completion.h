// What a file keeps of a design, filled up to what Access reports of it in design view.
#pragma once

#include <string>

#include "access/designs/stored_design.h"
#include "access/model/database_model.h"

namespace tarrowin {

// The design of the form or report of that name: every property that Access 2003 has at design
// time, in the order of its type library. A value is the object's own; else, for a control, that of
// the default style of its kind in this design; else the built-in one. Sections carry their
// numbers, controls stand in the order of their blocks, each before those that it holds. Left out
// are controls of kinds that no Access has, with what they hold, group sections without a level of
// their own, and what is nested deeper than Access nests. Raises 2601 for a root that is neither a
// form nor a report. Names new to the table are added to it.
DesignBody completeDesign(const StoredDesign& stored, const std::string& name, NameTable& names);

}  // namespace tarrowin
