// The Visual Basic class of an ActiveX control, derived from its Class and OLEClass, and the
// project flags that follow from it.
#pragma once

#include <string>
#include <string_view>

#include "core/main_object.h"

namespace tarrowin {

struct ActiveXClass {
  std::string shortName;  // OLEClass without a trailing "Ctrl"
  std::string prefix;     // the library and a dot; empty for a Class without a dot
};

// Derives the class; sets gblnProjectNeeded and the flag of its common control library. What
// cannot be read is empty.
ActiveXClass readActiveXClass(ConversionState& state, const LateBound& ctl);

// Raises the project flag of a class that brings a library of its own: "Adodc", "Calendar",
// "CommonDialog", "DataGrid", "RichText". Others raise none.
void raiseLibraryFlag(ConversionState& state, std::string_view shortName);

}  // namespace tarrowin
