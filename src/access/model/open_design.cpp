// A form or report while it is open.
#include "access/model/session.h"

namespace tarrowin {

DesignModel& OpenDesign::edit() {
  if (!copy_) {
    copy_ = std::make_unique<DesignModel>(*design_);
    design_ = copy_.get();
    copy_->body.edit();
    body_ = copy_->body.get();
  }
  controlIndex_.reset();
  return *copy_;
}

void OpenDesign::close() {
  if (!open_) return;
  open_ = false;
  for (auto& [control, loaded] : loaded_)
    if (loaded) loaded->close();
  loaded_.clear();
}

ControlIndex& OpenDesign::controlIndex() {
  if (!controlIndex_) controlIndex_.emplace(body_->controls);
  return *controlIndex_;
}

}  // namespace tarrowin
