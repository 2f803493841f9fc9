// The form or report whose controls are being converted.
#pragma once

#include "core/conversion_state.h"

namespace tarrowin {

inline const LateBound& designInHand(const ConversionState& state) {
  return state.mblnReportMode ? state.mrptCurr : state.frmCurr;
}

}  // namespace tarrowin
