// The conversion state: the members that drivers and generators share, under their own names,
// grouped by who uses them, each group with its lifetime.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/access_objects.h"
#include "shared/growing_list.h"

namespace tarrowin {

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
  bool mblnReportMode = false;   // a report is being converted
  bool mblnUserControl = false;  // the user control of a continuous form is being written
  GrowingList mstrVbClasses;     // file name of each class module
  // At least one module was converted; no driver ever clears it.
  bool mblnModuleConverted = false;

  // The line of code in hand, changed in place by its rule, and the method of its DoCmd call. A
  // line that cannot be read leaves the one before.
  std::string strCodeLine, strDoCmdMethod;

  // The form or report in hand: one object.
  LateBound frmCurr;       // as it is open in Access
  std::string strCtlName;  // output name of the control printed last

  // What the control printers leave for the code of a form. The flags hold until the next object
  // of ConvertForms and ConvertObjects, the statements until the next form, the item lists until
  // the code has been written.
  bool blnHasPictures = false;   // a statement stands in astrPictureCode
  bool blnFillCombos = false;    // an entry stands in astrComboSources
  bool blnFillLists = false;     // an entry stands in astrListSources
  GrowingList astrPictureCode;   // whole statements: imgLogo.Picture = LoadPicture("...")
  GrowingList astrComboSources;  // control name + ";" + items with ";" between them
  GrowingList astrListSources;   // likewise

  // Scratch list of the SQL text analysis, filled from element 0 on; two elements after a reset.
  std::vector<std::string> gstrSourceTables{2};
};

}  // namespace tarrowin
