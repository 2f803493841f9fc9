// How the controls of a preview lie in and over each other, and in which order the Tab key walks
// them.
#include "shell/preview_arrangement.h"

#include <algorithm>
#include <string>
#include <unordered_map>

#include "shell/preview_look.h"
#include "shell/preview_widgets.h"

namespace tarrowin {
namespace {

// Access nests a button's label in the button in a group; more is damage.
constexpr int kDeepest = 16;

using Indexes = std::unordered_map<std::string, std::size_t>;

std::string folded(std::string name) {
  for (char& letter : name) {
    if (letter >= 'A' && letter <= 'Z') {
      letter = static_cast<char>(letter - 'A' + 'a');
    }
  }
  return name;
}

Indexes indexesByName(const PreviewSurface& surface) {
  Indexes indexes;
  for (std::size_t index = 0; index < surface.controls.size(); ++index) {
    indexes.try_emplace(folded(surface.controls[index].name), index);
  }
  return indexes;
}

std::vector<std::size_t> namedContainers(const PreviewSurface& surface) {
  const Indexes indexes = indexesByName(surface);
  std::vector<std::size_t> named;
  named.reserve(surface.controls.size());
  for (const PreviewControl& control : surface.controls) {
    const auto found =
        control.container.empty() ? indexes.end() : indexes.find(folded(control.container));
    named.push_back(found == indexes.end() ? kOnForm : found->second);
  }
  return named;
}

}  // namespace

std::vector<std::size_t> containersOf(const PreviewSurface& surface) {
  const std::vector<std::size_t> named = namedContainers(surface);
  std::vector<std::size_t> containers(named.size(), kOnForm);
  for (std::size_t index = 0; index < named.size(); ++index) {
    int depth = 0;
    for (std::size_t above = named[index]; above != kOnForm; above = named[above]) {
      if (++depth > kDeepest) {
        containers[index] = kOnForm;
        break;
      }
      if (containers[index] == kOnForm &&
          widgetClassOf(surface.controls[above].className).isContainer) {
        containers[index] = above;
      }
    }
  }
  return containers;
}

std::vector<std::vector<std::size_t>> stackingIn(const PreviewSurface& surface,
                                                 const std::vector<std::size_t>& containers) {
  std::vector<std::vector<std::size_t>> stacking(containers.size() + 1);
  for (std::size_t index = 0; index < containers.size(); ++index) {
    stacking[std::min(containers[index], containers.size())].push_back(index);
  }
  for (std::vector<std::size_t>& level : stacking) {
    std::stable_sort(level.begin(), level.end(), [&](std::size_t left, std::size_t right) {
      return widgetClassOf(surface.controls[left].className).layer <
             widgetClassOf(surface.controls[right].className).layer;
    });
  }
  return stacking;
}

std::vector<std::size_t> tabOrderOf(const PreviewSurface& surface) {
  std::vector<std::size_t> order;
  for (std::size_t index = 0; index < surface.controls.size(); ++index) {
    const PreviewControl& control = surface.controls[index];
    if (!widgetClassOf(control.className).hasTabIndex) {
      continue;
    }
    const double place = numberOf(control.find("TabIndex")).value_or(-1);
    const bool isWritten = place >= 0 && place < static_cast<double>(order.size());
    order.insert(isWritten ? order.begin() + static_cast<std::ptrdiff_t>(place) : order.end(),
                 index);
  }
  return order;
}

}  // namespace tarrowin
