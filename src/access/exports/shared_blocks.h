// Blocks of which older export tools took too many lines, so that two controls share one: the "End"
// of the first and the "Begin" of the second are gone.
#pragma once

#include <vector>

#include "access/exports/text_tree.h"

namespace tarrowin::exports {

struct SingleBlock {
  TextBlock block;
  // Its "Begin" was lost, and its kind with it: a guess.
  bool recovered = false;
};

// The controls of the block, one for each name. What Access writes shows where the next one starts:
// flags and positions stand before the name, and nested controls behind all properties. The kind
// that was lost is told from properties that only some kinds have; it may be any.
std::vector<SingleBlock> partSharedBlock(TextBlock&& block);

}  // namespace tarrowin::exports
