// The conversion state: the members that drivers and generators share, under their own names,
// grouped by who uses them, each group with its lifetime.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "core/access_objects.h"
#include "shared/growing_list.h"
#include "shared/name_list.h"

namespace tarrowin {

// The heights of a report's sections by Access section number, in twips.
using ReportHeights = std::array<std::int16_t, 13>;

// A subform or subreport whose controls are being printed.
struct OpenSubForm {
  LateBound form;
  std::string name;  // what tells it from others
};

// The texts of a help balloon, from 1 to 5.
using BalloonTexts = std::array<std::string, 6>;

// The fields of a source, and the data member that holds each.
struct SourceMembers {
  std::string source;
  std::unordered_map<std::string, std::string> memberOf;  // by field name
};

struct ConversionState {
  // The open database: from one opening to the next.
  Application gappAccess;              // no object while nothing is open
  Database mdbCurr;                    // database of the open file
  std::string gstrDbFile;              // file name as chosen
  std::string gstrDbPath;              // full path as chosen; empty after a failed opening
  std::string mstrDbName;              // Database.Name cut to its file name
  std::string mstrDbFullName;          // Database.Name
  bool mblnAccess97 = false;           // major version 7
  bool mblnOpenFailed = false;         // set by the error handler of the opening
  bool mblnBadAttachedTables = false;  // cleared at the start of every opening

  // The run of the program.
  std::string mstrLastDbPath;  // path of the last successful opening
  std::string mstrOutputDir;   // with a trailing separator after GetOutputDir
  // Where the machine that loads the output has its libraries: directories with their final
  // backslash, empty while unknown, and for DAO the file itself, of which nobody tells.
  std::string mstrMsderunPath, mstrMsadoPath;  // set anew by every opening
  std::string gstrOfficePath;                  // taken from mstrMsderunPath once
  std::string gstrDaoPath;

  // The lists: names as they were found, in list order.
  GrowingList mstrQueryNames, mstrFormNames, mstrMacroNames, mstrModuleNames, mstrReportNames;
  std::int32_t mintQueryCount = 0, mintFormCount = 0, mintReportCount = 0, mintMacroCount = 0,
               mintModuleCount = 0, mintObjectCount = 0;

  // The object in hand; the last one's values stay for the next batch.
  std::string mstrQryName, mstrObjName, mstrModName;  // the Access name, trimmed
  std::string mstrBaseName;                           // the cleaned name
  std::string mstrFormFile, mstrModFile;              // cleaned name with extension
  std::string gstrFormFile, gstrModuleFile;           // copies for the rest of the program
  std::string gstrQueryFile;    // file name of a query, then cut to its procedure name
  std::string mstrQueriesFile;  // the single file of a multiple query conversion
  std::int16_t intDataCtlNum = 0, intAdoCtlNum = 0;  // numbers of the data controls of an object

  // A batch of queries. Left set by a multiple batch that converted at most one query.
  bool mblnFirstQuery = false;
  GrowingList mstrVbQueries;  // procedure name of each converted query

  // Batches of the other kinds.
  bool mblnReportMode = false;     // a report is being converted
  bool mblnUserControl = false;    // the user control of a continuous form is being written
  bool mblnDataRepeater = false;   // the form in hand is converted through a DataRepeater
  bool gblnProjectNeeded = false;  // the batch needs a project; cleared as it starts
  GrowingList mstrVbForms;         // gstrFormFile of each converted form
  GrowingList mstrVbUserControls;  // gstrFormFile of each user control
  GrowingList mstrVbReports;       // gstrFormFile of each converted report
  GrowingList mstrVbModules;       // gstrModuleFile of each module of a project
  GrowingList mstrVbClasses;       // file name of each class module
  GrowingList mstrBigForms;        // note of each form with too many controls
  // At least one module was converted; no driver ever clears it.
  bool mblnModuleConverted = false;

  // What the project needs, a control library each. The printers set them and nothing clears them:
  // they accumulate over all forms of the run.
  bool mblnAdoDataCtl = false;  // also the sign that bound controls refer to an ADO data control
  bool blnUsesCalendar = false, blnUsesMsComCtl = false, blnUsesComCtl32 = false,
       blnUsesComDlg = false, blnUsesDataGrid = false, blnUsesDbList = false,
       blnUsesRichText = false, blnUsesTabCtl = false, blnUsesSubControl = false;
  // A VB.Data control has been written: from then on bound controls print it as their source.
  bool blnDataCtl = false;

  // The line of code in hand, changed in place by its rule, and the method of its DoCmd call. A
  // line that cannot be read leaves the one before.
  std::string strCodeLine, strDoCmdMethod;

  // The form or report in hand: one object.
  LateBound frmCurr;       // as it is open in Access
  std::string strCtlName;  // output name of the control printed last

  // The printing of a form. Positions and sizes are twips.
  std::string strIndent;         // blanks in front of every line of a control: none, three or six
  std::string strFrameName;      // the frame that is open, for its closing line
  std::string strCleanText;      // what the last cleaning of a text gave
  bool blnFirstControl = false;  // the next control of the walk is its first
  bool blnInFrame = false, blnInOptionGroup = false, blnInTab = false;
  std::int32_t intClientHeight = 0;
  std::int32_t intNumControls = 0;  // Controls.Count - 1, and the Count of each subform
  // Heights of Section(1), (3), (0), (4), (2); 0 for one that the form lacks.
  std::int16_t intHeaderHeight = 0, intPageHeaderHeight = 0, intDetailHeight = 0,
               intPageFooterHeight = 0, intFooterHeight = 0;
  std::int16_t intGroupTop = 0;                              // Top of the option group in hand
  std::int16_t intTabPageNum = 0;                            // page in hand, 0-based
  std::int16_t intTabWidth = 0;                              // Width of the tab control in hand
  std::int16_t intPageTopOffset = 0, intPageLeftOffset = 0;  // first page inside its tab control
  NameList astrCtlNames;  // Access names of the form's controls, then of its subforms'
  NameList astrDupNames;  // names of subform controls that astrCtlNames holds
  GrowingList astrDataMembers;

  // Subforms and subreports; the members are shared by all levels of nesting.
  LateBound frmSubCurr;        // the form or report that the subform control shows
  std::string strSubFormName;  // the name by which the subform is reached
  std::int16_t intSubLeft = 0, intSubHeight = 0, intSubWidth = 0;  // of the subform control
  std::int16_t intSubHeaderHeight = 0, intSubPageHeaderHeight = 0, intSubDetailHeight = 0,
               intSubPageFooterHeight = 0, intSubFooterHeight = 0;
  ReportHeights intSubRptHeights{};    // of a subreport, all its sections
  std::int16_t intSubTotalHeight = 0;  // the sum of all and 120
  std::int16_t intSubDepth = 0;        // nested subforms entered
  std::int16_t intSubCount = 0;        // subforms finished
  bool blnInSubForm = false, blnNestedSubForm = false;
  bool blnSubInTab = false;               // the subform stands on a tab page
  bool blnDupFound = false;               // a name clash between subform and form is known
  std::vector<OpenSubForm> openSubForms;  // whose controls are being printed, outermost first

  // What the control printers leave for the code of a form. The flags hold until the next object
  // of ConvertForms and ConvertObjects, the statements until the next form, the item lists until
  // the code has been written.
  bool blnHasPictures = false;   // a statement stands in astrPictureCode
  bool blnFillCombos = false;    // an entry stands in astrComboSources
  bool blnFillLists = false;     // an entry stands in astrListSources
  GrowingList astrPictureCode;   // whole statements: imgLogo.Picture = LoadPicture("...")
  GrowingList astrComboSources;  // control name + ";" + items with ";" between them
  GrowingList astrListSources;   // likewise

  // The report in hand, from one report to the next. Heights are twips.
  LateBound mrptCurr;                        // as it is open in Access
  ReportHeights intRptHeights{};             // 0 for a section that it lacks
  std::int32_t lngReportHeight = 0;          // their sum and a margin, clamped
  std::string strRptCaption;                 // the cleaned caption
  std::string strSectionName;                // the section that is printed next
  std::string strRecordSource;               // of the Data Report; its items may shorten it
  SourceMembers sourceMembers;               // of strRecordSource, once it has been opened
  bool blnParamQuery = false;                // the source is a query with parameters
  bool blnJoinSQL = false;                   // source tables came from the text of the SQL
  std::vector<std::string> strCommandNames;  // names of the commands, and an empty element
  std::vector<std::string> strGroupFields;   // ControlSource of the group levels
  // The grouping member of the last grouped report of the run; nothing clears it.
  std::string strDataMember;

  // Scratch list of the SQL text analysis, filled from element 0 on; two elements after a reset.
  std::vector<std::string> gstrSourceTables{2};

  // The labels and paragraphs of the next help balloon, from 1 to 5: the run.
  BalloonTexts gastrBalloonLabels, gastrBalloonChecks;
};

}  // namespace tarrowin
