// The main window's controls as the drivers read and set them: plain data under the controls'
// own names, painted by whichever face shows them.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "core/user.h"

namespace tarrowin {

// The six lists, numbered as the elements of the control array ProgressBar1.
enum class ObjectList { kQueries, kForms, kReports, kMacros, kModules, kObjects };
inline constexpr std::size_t kObjectListCount = 6;
inline constexpr std::array<ObjectList, kObjectListCount> kObjectLists = {
    ObjectList::kQueries, ObjectList::kForms,   ObjectList::kReports,
    ObjectList::kMacros,  ObjectList::kModules, ObjectList::kObjects};
constexpr std::size_t indexOf(ObjectList list) { return static_cast<std::size_t>(list); }

struct Label {
  std::string caption;
  bool visible = false;
};

struct Button {
  std::string toolTip;
  bool enabled = false;
};

struct ListItem {
  std::string text;
  std::string smallIcon;
  bool selected = false;
};

struct ProgressBar {
  int min = 0;
  int max = 100;
  int value = 0;
  bool visible = false;
};

struct MainWindow {
  std::string caption = "Microsoft Access to Visual Basic Tarrowin";
  int mousePointer = 0;  // 0 default, 11 hourglass
  std::string focus;     // name of the control that was given the focus last

  std::string txtCurDir;
  int chkMultiSel = 0;  // 0 or 1
  std::vector<std::string> cboFormNamesItems;
  std::string cboFormNames;  // its text
  int optContinuous = 0;     // index of the chosen option
  int optMultiPage = 0;      // index of the chosen option
  int tabSelect = 0;

  Label lblCurDb{"", true};
  Label lblPct, lblPercent;
  std::array<ProgressBar, kObjectListCount> ProgressBar1;

  // lstQueries, lstForms, lstReports, lstMacros, lstModules, lstObjects.
  std::array<std::vector<ListItem>, kObjectListCount> lists;
  std::vector<ListItem>& list(ObjectList which) { return lists[indexOf(which)]; }
  const std::vector<ListItem>& list(ObjectList which) const { return lists[indexOf(which)]; }

  // Totals below the lists, in their order: lblQueryTime, lblFormTotal, lblReportTime,
  // lblMacroTime, lblModuleTime, lblObjectTime.
  std::array<Label, kObjectListCount> totals = {
      Label{"Total Queries: 0"}, Label{"Total Forms: 0"},   Label{"Total Reports: 0"},
      Label{"Total Macros: 0"},  Label{"Total Modules: 0"}, Label{"Total Forms and Modules: 0"}};
  // Headings above the lists: LblQuerySel, lblFormSel, lblReportSel, LblMacroSel, LblModSel,
  // LblObjSel, with their designed captions.
  std::array<Label, kObjectListCount> headings = {
      Label{"Select Query to Convert", true},
      Label{"Select Form to Convert", true},
      Label{"Select Report to Convert", true},
      Label{"Select Macro to Convert", true},
      Label{"Select Module to Convert", true},
      Label{"Select Form or Module to Convert to Visual Basic Project", true}};
  // cmdConvertQry, cmdConvertFrm, cmdConvertRpt, cmdConvertMac, cmdConvertMod, cmdConvertObj, with
  // their designed tool tips.
  std::array<Button, kObjectListCount> convertButtons = {
      Button{"Convert Selected Queries"}, Button{"Convert Selected Forms"},
      Button{"Convert Selected Reports"}, Button{"Convert Selected Macros"},
      Button{"Convert Selected Modules"}, Button{"Convert Selected Object"}};
  // cmdAllQrys, cmdAllForms, cmdAllReports, cmdAllMacros, cmdAllMods, cmdAllObjs.
  std::array<Button, kObjectListCount> allButtons = {
      Button{"Convert All Queries"}, Button{"Convert All Forms"},   Button{"Convert All Reports"},
      Button{"Convert All Macros"},  Button{"Convert All Modules"}, Button{"Convert All Objects"}};
  Button cmdBrowse{"Browse Folders"};
  Button cmdObjProps;
  std::array<Button, 2> cmdFindPath;
  // Headings of the two library paths, then the paths.
  std::array<Label, 4> lblFindPath = {Label{"msderun.dll File:", true},
                                      Label{"msado15.dll File:", true}, Label{"", true},
                                      Label{"", true}};
  // The one common dialog; what it was last set to stays.
  OpenDialog CmnOpenDlg;

  // The How to tab: the title and the steps of its page, then its pager: the number of the page
  // from 0, and that of the last one.
  Label lblTitle{"Using the Tarrowin", true};
  std::array<Label, 7> lblInfo;
  Label lblCurrentPage, lblLastPage;
  Button cmdPrev{"View Previous Topic"};
  Button cmdNext{"View Next Topic"};
};

}  // namespace tarrowin
