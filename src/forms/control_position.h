// A control's Left or Top on its way into the flat form: read, put below the sections above it,
// taken into its container. In twips.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "core/main_object.h"
#include "forms/parent_chain.h"

namespace tarrowin {

// What differs between the procedures that compute a position.
struct PositionKind {
  std::string_view property;  // "Left" or "Top"
  // Tells of an error that is not usual at the end of a chain of Parents.
  void (*errorBox)(MainObject& main, const VbError& error);
};

// A row of the tables of containers.
struct CorrectionRow;

// Each read is a statement of its own. What does not fit gives 32767 at that point; what cannot be
// read otherwise counts as 0.
class ControlPosition {
 public:
  ControlPosition(MainObject& main, const LateBound& ctl, const PositionKind& kind)
      : main_(main), ctl_(ctl), kind_(kind) {}

  // The control's own position, below what the sections above take.
  void readOwn(std::int64_t offset);
  // The own position by the control's Section; above gives the height of the sections above it.
  // Section 1 counts from the top of the window, and in a frame or on a tab page the container
  // carries the stack. A control on none of the sections counts from 0.
  void readStacked(std::span<const std::int32_t> sections,
                   std::int64_t (*above)(const ConversionState& state, std::int32_t section));

  // Takes the position into the container that holds the control.
  void correctLeft();
  void correctTop();

  std::int64_t result() const { return result_; }

 private:
  void correct(std::span<const CorrectionRow> rows, std::int64_t inactivePage);
  void readParents();
  std::int32_t ownType();
  void onError(const VbError& error);
  template <class Statement>
  void guarded(Statement&& statement);

  MainObject& main_;
  const LateBound& ctl_;
  const PositionKind& kind_;
  std::int64_t result_ = 0;
  std::optional<std::int32_t> type_;  // the control's own, once a row has asked for it
  std::int32_t types_[ParentChain::kLinks] = {};
  std::int64_t positions_[ParentChain::kLinks] = {};
};

}  // namespace tarrowin
