// A subreport has no view to choose from: it is a data control and a frame.
#include "forms/subreport.h"

#include "core/report_heights.h"
#include "forms/data_controls.h"
#include "forms/embedded_design.h"
#include "forms/section_heights.h"

namespace tarrowin {

namespace {

class SubReport : public EmbeddedDesign {
 public:
  SubReport(MainObject& main, const LateBound& ctl) : EmbeddedDesign(main, ctl, kEmbeddedReport) {}

 protected:
  // The kinds of controls that forms alone know are placed by the sections that forms have.
  void readHeights() override {
    ReportHeights& heights = state_.intSubRptHeights;
    readReportHeights(procedure_, form_, heights);
    copyHeights(heights, subFormHeights(state_));
    statement([&] { state_.intSubTotalHeight = sumOfReportHeights(heights); });
  }

  // A report that could not be had has no data either.
  void print() override {
    if (form_) GetSubFormDataCtlProps(main_);
    printFrame();
    close("   End   ' ");
  }

  // A name that repeats with its ending is another that repeats.
  void renameDuplicate() override {
    do {
      state_.strCtlName += "_Dup";
    } while (state_.astrCtlNames.contains(state_.strCtlName));
  }

  void errorBox(const std::string& name, const VbError& error) override {
    main_.errorBox("GetSubreportProps", error, name);
  }
};

}  // namespace

void GetSubReportProps(MainObject& main, const LateBound& ctl) { SubReport(main, ctl).run(); }

}  // namespace tarrowin
