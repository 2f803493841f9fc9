// What both restructurings of a multi-page form share: the source form, its pages, the new form and
// the copy of a control. All positions are twips.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/main_object.h"
#include "core/statement.h"
#include "shared/value_tests.h"

namespace tarrowin {

// The source form of a restructuring, opened hidden, and where its pages begin.
class PageSource {
 public:
  PageSource(MainObject& main, std::string_view name) : main_(main), name_(name) {}

  // Closes the form, opens it again and reads its page breaks.
  void open(Procedure& procedure);
  // Opens it once more: making a new form takes the focus from it.
  void reopen(Procedure& procedure);

  std::size_t pages() const { return aintPageTops_.size(); }
  // Whether a control at that Top stands on the page, 0-based. The breaks count in the order of the
  // form's controls; the page behind the last one has no lower end.
  bool isOnPage(std::size_t page, std::int32_t top) const;
  // Top on the page of a control of the Detail; one above the page's bound keeps its own.
  std::int32_t topOnPage(std::size_t page, std::int32_t top) const;
  bool isLastPage(std::size_t page) const { return page > 0 && aintPageTops_[page] == 0; }

  // Hands over the controls one by one, without the page breaks.
  template <class Visit>
  void forEachControl(Procedure& procedure, Visit visit) const {
    walk(procedure, false, visit);
  }

 private:
  void readPageTops(Procedure& procedure);

  // The page breaks, or all other controls; one of unknown type is neither.
  template <class Visit>
  void walk(Procedure& procedure, bool breaks, Visit visit) const {
    Collection<LateBound> controls;
    std::int32_t count = 0;
    procedure.statement([&] {
      controls = Collection<LateBound>(toObject(form_.get("Controls")));
      count = controls.Count();
    });
    for (std::int32_t i = 0; i < count; ++i) {
      LateBound control;
      bool isWanted = false;
      procedure.statement([&] {
        control = controls(i);
        const Value type = control.get("ControlType");
        isWanted = !type.isNull() && equals(type, access_constants::acPageBreak) == breaks;
      });
      if (isWanted) visit(control);
    }
  }

  MainObject& main_;
  std::string name_;
  LateBound form_;
  std::vector<std::int16_t> aintPageTops_;  // Top of each page break, and 0 behind
};

// Gives the new form what the template's copy lacks: a module of its own, where the file format
// knows that, and a Detail that Visual Basic can show.
void finishNewForm(MainObject& main, Procedure& procedure, const LateBound& newForm);

// Saves the new form and shows it in Access's database window.
void saveNewForm(MainObject& main, Procedure& procedure, std::string_view newName);

}  // namespace tarrowin
