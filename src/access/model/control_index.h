// Which controls of a design stand inside which, in which section, and under which name: found once
// for the whole design, so that asking costs no more than the answer is long.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "access/model/database_model.h"

namespace tarrowin {

// Positions of controls, ascending. A list is shared by all that ask for it and never changes.
using ControlList = std::shared_ptr<const std::vector<std::size_t>>;

// Of controls that must stay as they are and outlive the index. Each part is built when it is
// asked for the first time. Not for two threads at once.
class ControlIndex {
 public:
  explicit ControlIndex(const std::vector<ControlModel>& controls) : controls_(controls) {}

  ControlList all();
  // The controls inside the control, at whatever depth; never the control itself.
  ControlList inside(std::size_t control);
  // The pages right on the tab control.
  ControlList pagesOf(std::size_t tabControl);
  // The controls whose Section property is the number.
  ControlList ofSection(std::int32_t number);

  // The index in the list, one of this object's, of the control with that name: an exact match
  // first, then the first that matches without regard to case; SIZE_MAX for none.
  std::size_t find(const std::vector<std::size_t>& list, std::string_view name,
                   const CaseFolding& folding);

 private:
  // The children of control i are children_[firstChild_[i]] up to children_[firstChild_[i + 1]].
  void findChildren();
  template <class Action>
  void forEachChild(std::size_t control, Action action);
  std::vector<std::size_t> collectInside(std::size_t control);

  const std::vector<ControlModel>& controls_;
  ControlList all_;
  std::vector<std::size_t> firstChild_, children_;
  std::unordered_map<std::size_t, ControlList> inside_, pages_;
  std::size_t keptInside_ = 0;  // the lengths of the lists of inside_
  std::optional<std::unordered_map<std::int32_t, std::shared_ptr<std::vector<std::size_t>>>>
      bySection_;
  std::optional<std::unordered_map<std::string, std::vector<std::size_t>>> byFoldedName_;
};

}  // namespace tarrowin
