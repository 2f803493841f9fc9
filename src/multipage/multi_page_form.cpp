// Finds page breaks.
#include "multipage/multi_page_form.h"

#include "shared/value_tests.h"

namespace tarrowin {

bool IsMultiPageForm(const Application& application, std::string_view name) {
  const Collection<LateBound> controls(toObject(application.Forms(name).get("Controls")));
  const std::int32_t count = controls.Count();
  for (std::int32_t i = 0; i < count; ++i) {
    if (equals(controls(i).get("ControlType"), access_constants::acPageBreak)) return true;
  }
  return false;
}

}  // namespace tarrowin
