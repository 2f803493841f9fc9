// The statements that load pictures from their files when the generated form opens.
#pragma once

#include <string_view>

#include "forms/printer_rows.h"

namespace tarrowin {

enum class Picture {
  kNone,      // also when it cannot be read
  kEmbedded,  // such as "(bitmap)"
  kFile,
};

// What the property holds. For a file the statement that loads it into strCtlName joins
// astrPictureCode, and blnHasPictures is set.
Picture storePicture(const PrintedControl& control, std::string_view property);

}  // namespace tarrowin
