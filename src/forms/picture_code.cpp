// The picture test and the statement.
#include "forms/picture_code.h"

#include "core/statement.h"

namespace tarrowin {

Picture storePicture(const PrintedControl& control, std::string_view property) {
  std::string picture;
  ignoringErrors([&] { picture = control.ctl.text(property); });
  if (picture.empty()) return Picture::kNone;
  if (picture.starts_with('(')) return Picture::kEmbedded;
  ConversionState& state = control.state();
  state.astrPictureCode.append(state.strCtlName + ".Picture = LoadPicture(\"" + picture + "\")");
  state.blnHasPictures = true;
  return Picture::kFile;
}

}  // namespace tarrowin
