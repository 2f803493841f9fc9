// Children counted and placed behind each other, descendants collected from them.
#include "access/model/control_index.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace tarrowin {

namespace {

constexpr std::int32_t kPage = 124;

// How many lists a control may stand in on the average before all are dropped and made anew. Access
// nests no deeper than label, button, option group, page, tab control; only what no Access made
// reaches this, and it shall not take memory with the square of its controls.
constexpr std::size_t kKeptLevels = 16;

ControlList shared(std::vector<std::size_t> list) {
  return std::make_shared<const std::vector<std::size_t>>(std::move(list));
}

// The index of the control in an ascending list, SIZE_MAX where it is not there.
std::size_t indexIn(const std::vector<std::size_t>& list, std::size_t control) {
  const auto found = std::ranges::lower_bound(list, control);
  if (found == list.end() || *found != control) return SIZE_MAX;
  return static_cast<std::size_t>(found - list.begin());
}

}  // namespace

ControlList ControlIndex::all() {
  if (!all_) {
    std::vector<std::size_t> positions(controls_.size());
    std::iota(positions.begin(), positions.end(), std::size_t{0});
    all_ = shared(std::move(positions));
  }
  return all_;
}

void ControlIndex::findChildren() {
  if (!firstChild_.empty()) return;
  firstChild_.assign(controls_.size() + 1, 0);
  for (const ControlModel& control : controls_)
    if (control.parent != ControlModel::kNoParent) ++firstChild_[control.parent + 1];
  std::partial_sum(firstChild_.begin(), firstChild_.end(), firstChild_.begin());
  children_.resize(firstChild_.back());
  std::vector<std::size_t> next = firstChild_;
  for (std::size_t i = 0; i < controls_.size(); ++i)
    if (controls_[i].parent != ControlModel::kNoParent) children_[next[controls_[i].parent]++] = i;
}

template <class Action>
void ControlIndex::forEachChild(std::size_t control, Action action) {
  findChildren();
  for (std::size_t i = firstChild_[control]; i < firstChild_[control + 1]; ++i)
    action(children_[i]);
}

// Every control is the child of one other, so each is met once, and the holder alone can be met
// again where it is inside itself.
std::vector<std::size_t> ControlIndex::collectInside(std::size_t control) {
  std::vector<std::size_t> found;
  const auto add = [&](std::size_t child) {
    if (child != control) found.push_back(child);
  };
  forEachChild(control, add);
  for (std::size_t i = 0; i < found.size(); ++i) forEachChild(found[i], add);
  std::ranges::sort(found);
  return found;
}

ControlList ControlIndex::inside(std::size_t control) {
  if (const auto known = inside_.find(control); known != inside_.end()) return known->second;
  ControlList list = shared(collectInside(control));
  keptInside_ += list->size();
  if (keptInside_ > kKeptLevels * controls_.size()) {
    inside_.clear();
    keptInside_ = list->size();
  }
  inside_.emplace(control, list);
  return list;
}

ControlList ControlIndex::pagesOf(std::size_t tabControl) {
  ControlList& pages = pages_[tabControl];
  if (!pages) {
    std::vector<std::size_t> found;
    forEachChild(tabControl, [&](std::size_t child) {
      if (controls_[child].type == kPage) found.push_back(child);
    });
    pages = shared(std::move(found));
  }
  return pages;
}

ControlList ControlIndex::ofSection(std::int32_t number) {
  if (!bySection_) {
    bySection_.emplace();
    for (std::size_t i = 0; i < controls_.size(); ++i) {
      const Recorded<Value>* section =
          controls_[i].properties.valueOf(static_cast<NameId>(Member::kSection));
      const Value* value = section ? section->ifRead() : nullptr;
      if (!value || !value->longInteger()) continue;
      auto& list = (*bySection_)[*value->longInteger()];
      if (!list) list = std::make_shared<std::vector<std::size_t>>();
      list->push_back(i);
    }
  }
  const auto found = bySection_->find(number);
  return found == bySection_->end() ? shared({}) : found->second;
}

std::size_t ControlIndex::find(const std::vector<std::size_t>& list, std::string_view name,
                               const CaseFolding& folding) {
  if (!byFoldedName_) {
    byFoldedName_.emplace();
    for (std::size_t i = 0; i < controls_.size(); ++i)
      (*byFoldedName_)[folding.fold(controls_[i].name)].push_back(i);
  }
  const auto named = byFoldedName_->find(folding.fold(name));
  if (named == byFoldedName_->end()) return SIZE_MAX;
  std::size_t alike = SIZE_MAX;
  for (const std::size_t control : named->second) {
    const std::size_t index = indexIn(list, control);
    if (index == SIZE_MAX) continue;
    if (controls_[control].name == name) return index;
    if (alike == SIZE_MAX) alike = index;
  }
  return alike;
}

}  // namespace tarrowin
