// What the control printers leave for the code of a form, cleared before each form of a driver.
#pragma once

#include "core/conversion_state.h"

namespace tarrowin {

inline void clearPrinterFlags(ConversionState& state) {
  state.mblnUserControl = false;
  state.blnHasPictures = false;
  state.blnFillCombos = false;
  state.blnFillLists = false;
}

}  // namespace tarrowin
