// A subform control, by the view of its form.
#include <string>

#include "forms/containers.h"
#include "forms/control_printers.h"
#include "forms/data_controls.h"
#include "forms/embedded_design.h"
#include "forms/section_heights.h"
#include "shared/value_tests.h"
#include "shared/vb_number.h"
#include "shared/vb_text.h"

namespace tarrowin {

namespace {

// What the height of a subform's control is larger than its sections, in twips.
constexpr std::int16_t kMargin = 120;

// Access's Form.DefaultView; what cannot be read shows as a sheet.
enum class View { kSingle, kContinuous, kSheet };
constexpr std::int32_t kSingleForm = 0, kContinuousForms = 1;

class SubForm : public EmbeddedDesign {
 public:
  SubForm(MainObject& main, const LateBound& ctl) : EmbeddedDesign(main, ctl, kEmbeddedForm) {}

 protected:
  void readHeights() override {
    const SectionHeights heights = subFormHeights(state_);
    readSectionHeights(procedure_, form_, heights);
    statement([&] { state_.intSubTotalHeight = sumOfHeights(heights, kMargin); });
  }

  void print() override {
    if (isBound()) GetSubFormDataCtlProps(main_);
    switch (readView()) {
      case View::kSingle:
        printFrame();
        break;
      case View::kContinuous:
        if (!state_.mblnUserControl) printSheet();
        break;
      case View::kSheet:
        printSheet();
        break;
    }
    close("      End   ' ");
  }

  void renameDuplicate() override {
    const std::int32_t number = addInt16(state_.intSubDepth, state_.intSubCount);
    state_.strCtlName += "_Dup" + LTrimStr(number);
  }

  void errorBox(const std::string& name, const VbError& error) override {
    main_.controlErrorBox("GetSubFormProps", name, error);
  }

 private:
  bool isBound() {
    bool bound = false;
    statement([&] { bound = !form_.text("RecordSource").empty(); });
    return bound;
  }

  View readView() {
    View view = View::kSheet;
    statement([&] {
      const Value number = form_.get("DefaultView");
      if (equals(number, kSingleForm)) view = View::kSingle;
      if (equals(number, kContinuousForms)) view = View::kContinuous;
    });
    return view;
  }

  void printSheet() {
    state_.mblnAdoDataCtl = true;
    state_.gblnProjectNeeded = true;
    state_.blnUsesDataGrid = true;
    CreateAdoDataCtl(main_, form_);
    PrintSubFormAsSheet(main_, ctl_);
  }
};

}  // namespace

void GetSubFormProps(MainObject& main, const LateBound& ctl) { SubForm(main, ctl).run(); }

}  // namespace tarrowin
