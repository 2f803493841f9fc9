// How the controls of a preview lie in and over each other, and in which order the Tab key walks
// them.
#pragma once

#include <cstddef>
#include <vector>

#include "preview/preview_surface.h"

namespace tarrowin {

inline constexpr std::size_t kOnForm = static_cast<std::size_t>(-1);

// For each control the index of the control that holds it, or kOnForm. A container that is missing,
// holds itself or lies too deep gives kOnForm; a container that cannot hold anything (a label
// belongs to its check box in Access) passes its controls on to its own.
std::vector<std::size_t> containersOf(const PreviewSurface& surface);

// The controls that lie directly in a container, by the result of containersOf, the lowest first:
// tab strips, then the drawn controls, then those with a window, each in the order of adding.
// Visual Basic never lets a drawn control cover one with a window. The tab strip alone lies lower
// than it would there, for the controls of its pages stand beside it, not in it.
std::vector<std::vector<std::size_t>> stackingIn(const PreviewSurface& surface,
                                                 const std::vector<std::size_t>& containers);

// The controls that have a TabIndex, in its order: each control joins at the end, and writing its
// TabIndex moves it to that place, before the one that had it.
std::vector<std::size_t> tabOrderOf(const PreviewSurface& surface);

}  // namespace tarrowin
