// The form that starts a project of reports: one button, whose code names every report in comments
// for the user to choose from.
#pragma once

#include <string>

#include "core/conversion_state.h"
#include "project/project_writer.h"

namespace tarrowin {

// Writes name + ".frm" over an existing file, for the reports in mstrVbReports.
void writeViewerForm(const ConversionState& state, const std::string& name, ProjectWriter& file);

}  // namespace tarrowin
