// What the preview copies from an Access control to the Visual Basic control that stands for it.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "core/access_objects.h"
#include "preview/preview_data.h"
#include "preview/preview_surface.h"

namespace tarrowin {

// Where the container of a control stands, in twips from the upper left corner of the form.
struct PreviewOrigin {
  std::int64_t left = 0;
  std::int64_t top = 0;
};

struct PropertyCopy {
  const LateBound& source;         // the Access control
  PreviewControl& target;          // what was added for it
  const PreviewSurface& surface;   // whose sections stand above each other
  const PreviewOrigin& container;  // of the target
  PreviewRecordset* data;          // of Data1; nullptr without one
};

// Copies what any control has, and what a tab control has, each property in a statement of its own:
// one that cannot be read, or that the class of the target lacks or does not take, stays unwritten.
void copyControl(const PropertyCopy& copy);
void copyTabControl(const PropertyCopy& copy);

}  // namespace tarrowin
