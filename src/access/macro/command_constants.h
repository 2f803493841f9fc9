// The names of commands that the action RunCommand gives by number: those of the documented
// enumeration AcCommand that work on an open form, report or datasheet, where macros use them. A
// command that is not among them is written as its number, which means the same.
#pragma once

#include "access/macro/action_table.h"

namespace tarrowin {

inline constexpr ActionChoice kCommandConstants[] = {
    {-1, ""},
    {1, "acCmdWindowUnhide"},
    {2, "acCmdWindowHide"},
    {3, "acCmdExit"},
    {4, "acCmdCompactDatabase"},
    {9, "acCmdAppRestore"},
    {10, "acCmdAppMaximize"},
    {11, "acCmdAppMinimize"},
    {18, "acCmdRefresh"},
    {20, "acCmdSave"},
    {21, "acCmdSaveAs"},
    {28, "acCmdRecordsGoToNew"},
    {29, "acCmdReplace"},
    {30, "acCmdFind"},
    {32, "acCmdPageSetup"},
    {38, "acCmdPasteAppend"},
    {50, "acCmdSelectRecord"},
    {54, "acCmdPrintPreview"},
    {58, "acCmdClose"},
    {65, "acCmdRecordsGoToNext"},
    {66, "acCmdRecordsGoToPrevious"},
    {67, "acCmdRecordsGoToFirst"},
    {68, "acCmdRecordsGoToLast"},
    {97, "acCmdSaveRecord"},
    {126, "acCmdCompileAndSaveAllModules"},
    {144, "acCmdRemoveFilterSort"},
    {163, "acCmdSortAscending"},
    {164, "acCmdSortDescending"},
    {183, "acCmdDesignView"},
    {189, "acCmdCut"},
    {190, "acCmdCopy"},
    {191, "acCmdPaste"},
    {207, "acCmdFilterByForm"},
    {208, "acCmdFilterBySelection"},
    {223, "acCmdDeleteRecord"},
    {269, "acCmdSpelling"},
    {277, "acCmdFilterExcludingSelection"},
    {278, "acCmdQuickPrint"},
    {279, "acCmdConvertMacrosToVisualBasic"},
    {281, "acCmdFormView"},
    {282, "acCmdDatasheetView"},
    {292, "acCmdUndo"},
    {333, "acCmdSelectAll"},
    {337, "acCmdDelete"},
    {340, "acCmdPrint"},
};

}  // namespace tarrowin
