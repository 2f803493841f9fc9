// A form or report while it is open.
#include "access/model/session.h"

namespace tarrowin {

DesignModel& OpenDesign::edit() {
  if (!copy_) {
    copy_ = std::make_unique<DesignModel>(*design_);
    design_ = copy_.get();
  }
  bySection_.reset();
  return *copy_;
}

void OpenDesign::close() {
  if (!open_) return;
  open_ = false;
  for (auto& [control, loaded] : loaded_)
    if (loaded) loaded->close();
  loaded_.clear();
}

const std::vector<std::size_t>& OpenDesign::controlsOfSection(NameId sectionKey,
                                                              std::int32_t number) const {
  if (!bySection_) {
    bySection_.emplace();
    for (std::size_t i = 0; i < design_->controls.size(); ++i) {
      const Recorded<Value>* section = design_->controls[i].properties.valueOf(sectionKey);
      const Value* value = section ? section->ifRead() : nullptr;
      if (value && value->longInteger()) (*bySection_)[*value->longInteger()].push_back(i);
    }
  }
  static const std::vector<std::size_t> kNone;
  const auto found = bySection_->find(number);
  return found == bySection_->end() ? kNone : found->second;
}

}  // namespace tarrowin
