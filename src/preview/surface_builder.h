// From an open Access form to the surface that previews it.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "core/conversion_state.h"
#include "preview/preview_data.h"
#include "preview/preview_surface.h"
#include "preview/property_copies.h"

namespace tarrowin {

// Its steps raise VbError where not told otherwise.
//
// Choices where the rules leave room:
// - A control with no class of its own, an ActiveX control without a Class among them, cannot be
//   added: 711. Two names that are the same but for blanks and underscores, or for case: 727.
// - The members of an option group are added to its frame, at their distance from its upper left
//   corner. What is nested deeper stands in the outermost frame.
// - Pages become the tabs of the strip; a page that no tab control holds is a line.
class SurfaceBuilder {
 public:
  using Progress = std::function<void(std::int32_t done, std::int32_t count)>;

  SurfaceBuilder(const ConversionState& state, LateBound form, std::string_view name);

  // The heights of the sections; one that cannot be read is left out.
  void readSections();
  // Data1, for a form with a record source.
  void addDataControl();
  // The controls, each with all that stands in it. Told before each control of the form.
  void addControls(const Progress& progress);
  // What Form1 takes over from the Access form.
  void setUpForm();
  // Of controls on pages only those of the first one show.
  void showFirstPage();

  const PreviewSurface& surface() const { return surface_; }

 private:
  using Page = std::optional<std::int32_t>;  // the index of the page that a control stands on
  // The frame of an option group.
  struct Frame {
    std::string name;
    PreviewOrigin origin;
  };

  std::optional<Value> formProperty(std::string_view name) const;
  bool isLeftToContainer(const LateBound& ctl, const std::string& name) const;
  // The controls inside one that have no place yet.
  template <class Action>
  void forEachMember(const LateBound& container, Action action);
  void addWithMembers(const LateBound& ctl, const std::string& name, Page page);
  void addGroup(const LateBound& ctl, const std::string& name, Page page);
  void addTabControl(const LateBound& ctl, const std::string& name);
  PreviewControl& add(const LateBound& ctl, const std::string& name, std::int32_t type,
                      const Frame& frame, Page page);
  void addToSurface(PreviewControl control);
  void recordOnPage(std::int32_t page, const std::string& name);

  const ConversionState& state_;
  LateBound form_;
  PreviewSurface surface_;
  std::optional<PreviewRecordset> data_;
  std::set<std::string> placed_;  // Access names of the controls that were added
  std::set<std::string> taken_;   // names on Form1, in lower case
};

}  // namespace tarrowin
