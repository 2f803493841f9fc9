// The table of actions.
// The order of arguments in a macro is that of Access's documentation of each action; the DoCmd
// method of the same name takes them in the same order, documented there parameter by parameter.
// What differs stands as a remark at its row.
#include "access/macro/action_table.h"

#include <algorithm>
#include <iterator>

#include "access/macro/command_constants.h"

namespace tarrowin {

namespace {

using enum ArgumentKind;

// The numbers are those of the enumerations that the parameters of the methods are declared with:
// AcObjectType, AcDataObjectType, AcOutputObjectType, AcSendObjectType, AcFormView, AcView,
// AcOpenDataMode, AcWindowMode, AcCloseSave, AcRecord, AcFindMatch, AcSearchDirection, AcFindField,
// AcPrintRange, AcPrintQuality, AcQuitOption, AcDataTransferType, AcTextTransferType,
// AcShowToolbar, AcDataAccessPageView, AcExportQuality, VbMsgBoxStyle. An empty field of a list is
// -1, which the methods take for "left out".
constexpr ActionChoice kObjectTypes[] = {
    {-1, ""},         {0, "acTable"},           {1, "acQuery"},
    {2, "acForm"},    {3, "acReport"},          {4, "acMacro"},
    {5, "acModule"},  {6, "acDataAccessPage"},  {7, "acServerView"},
    {8, "acDiagram"}, {9, "acStoredProcedure"}, {10, "acFunction"}};
constexpr ActionChoice kDataObjectTypes[] = {{-1, ""},
                                             {0, "acDataTable"},
                                             {1, "acDataQuery"},
                                             {2, "acDataForm"},
                                             {3, "acDataReport"},
                                             {7, "acDataServerView"},
                                             {9, "acDataStoredProcedure"},
                                             {10, "acDataFunction"}};
constexpr ActionChoice kOutputObjectTypes[] = {{-1, ""},
                                               {0, "acOutputTable"},
                                               {1, "acOutputQuery"},
                                               {2, "acOutputForm"},
                                               {3, "acOutputReport"},
                                               {5, "acOutputModule"},
                                               {6, "acOutputDataAccessPage"},
                                               {7, "acOutputServerView"},
                                               {9, "acOutputStoredProcedure"},
                                               {10, "acOutputFunction"}};
constexpr ActionChoice kSendObjectTypes[] = {{-1, ""},
                                             {0, "acSendTable"},
                                             {1, "acSendQuery"},
                                             {2, "acSendForm"},
                                             {3, "acSendReport"},
                                             {5, "acSendModule"},
                                             {6, "acSendDataAccessPage"}};
constexpr ActionChoice kFormViews[] = {{0, "acNormal"},         {1, "acDesign"},
                                       {2, "acPreview"},        {3, "acFormDS"},
                                       {4, "acFormPivotTable"}, {5, "acFormPivotChart"}};
constexpr ActionChoice kViews[] = {
    {0, "acViewNormal"},     {1, "acViewDesign"}, {2, "acViewPreview"}, {3, "acViewPivotTable"},
    {4, "acViewPivotChart"}, {5, "acViewReport"}, {6, "acViewLayout"}};
// The data modes of a form are written with the names that they share with tables and queries.
constexpr ActionChoice kDataModes[] = {{-1, ""}, {0, "acAdd"}, {1, "acEdit"}, {2, "acReadOnly"}};
constexpr ActionChoice kWindowModes[] = {
    {0, "acNormal"}, {1, "acHidden"}, {2, "acIcon"}, {3, "acDialog"}};
constexpr ActionChoice kCloseSaves[] = {{-1, ""}, {0, ""}, {1, "acSaveYes"}, {2, "acSaveNo"}};
constexpr ActionChoice kRecords[] = {{0, "acPrevious"}, {1, "acNext"}, {2, "acFirst"},
                                     {3, "acLast"},     {4, "acGoTo"}, {5, "acNewRec"}};
constexpr ActionChoice kFindMatches[] = {{0, "acAnywhere"}, {1, "acEntire"}, {2, "acStart"}};
constexpr ActionChoice kFindDirections[] = {{0, "acUp"}, {1, "acDown"}, {2, "acSearchAll"}};
constexpr ActionChoice kFindFields[] = {{-1, "acCurrent"}, {0, "acAll"}};
constexpr ActionChoice kPrintRanges[] = {{0, "acPrintAll"}, {1, "acSelection"}, {2, "acPages"}};
constexpr ActionChoice kPrintQualities[] = {
    {0, "acHigh"}, {1, "acMedium"}, {2, "acLow"}, {3, "acDraft"}};
constexpr ActionChoice kQuitOptions[] = {
    {0, "acQuitPrompt"}, {1, "acQuitSaveAll"}, {2, "acQuitSaveNone"}};
constexpr ActionChoice kTransferTypes[] = {{0, "acImport"}, {1, "acExport"}, {2, "acLink"}};
constexpr ActionChoice kTextTransferTypes[] = {
    {0, "acImportDelim"}, {1, "acImportFixed"}, {2, "acExportDelim"}, {3, "acExportFixed"},
    {4, "acExportMerge"}, {5, "acLinkDelim"},   {6, "acLinkFixed"},   {7, "acImportHTML"},
    {8, "acExportHTML"},  {9, "acLinkHTML"}};
constexpr ActionChoice kToolbarShows[] = {
    {0, "acToolbarYes"}, {1, "acToolbarWhereApprop"}, {2, "acToolbarNo"}};
constexpr ActionChoice kMenuFlags[] = {
    {0, "acMenuUngray"}, {1, "acMenuGray"}, {2, "acMenuUncheck"}, {3, "acMenuCheck"}};
constexpr ActionChoice kPageViews[] = {{0, "acDataAccessPageBrowse"},
                                       {1, "acDataAccessPageDesign"}};
constexpr ActionChoice kExportQualities[] = {{0, "acExportQualityPrint"},
                                             {1, "acExportQualityScreen"}};
// The macro's list has the icons in an order of its own: None, Critical, Warning?, Warning!,
// Information.
constexpr ActionChoice kMessageTypes[] = {{0, "vbOKOnly"},
                                          {1, "vbCritical"},
                                          {2, "vbQuestion"},
                                          {3, "vbExclamation"},
                                          {4, "vbInformation"}};

constexpr ActionArgument text{kText}, later{kLaterText}, number{kNumber}, yesNo{kYesNo},
    expression{kExpression}, target{kTarget}, call{kCall};
constexpr ActionArgument choice(std::span<const ActionChoice> choices) {
  return {kChoice, choices};
}

// clang-format off
constexpr ActionRow kRows[] = {
    // AddMenu: Menu Name, Menu Macro Name, Status Bar Text.
    {1, "AddMenu", "DoCmd.AddMenu {*}", {text, text, text}},
    // ApplyFilter: Filter Name, Where Condition; Control Name from Access 2010 on.
    {3, "ApplyFilter", "DoCmd.ApplyFilter {*}", {text, text, later}},
    // Beep: Visual Basic has a statement of its own.
    {4, "Beep", "Beep", {}},
    {5, "CancelEvent", "DoCmd.CancelEvent", {}},
    // Close: Object Type, Object Name, Save; Prompt is what the method does without it.
    {6, "Close", "DoCmd.Close {*}", {choice(kObjectTypes), text, choice(kCloseSaves)}},
    // CopyObject: Destination Database, New Name, Source Object Type, Source Object Name.
    {7, "CopyObject", "DoCmd.CopyObject {*}", {text, text, choice(kObjectTypes), text}},
    // DoMenuItem: Menu Bar, Menu Name, Command, Subcommand, and the version of the menus. All are
    // places in menus, which depend on that version: they are written as numbers.
    {8, "DoMenuItem", "DoCmd.DoMenuItem {*}", {number, number, number, number, number}},
    // Echo: Echo On, Status Bar Text.
    {9, "Echo", "DoCmd.Echo {*}", {yesNo, text}},
    {11, "FindNext", "DoCmd.FindNext", {}},
    // FindRecord: Find What, Match, Match Case, Search, Search As Formatted, Only Current Field,
    // Find First.
    {12, "FindRecord", "DoCmd.FindRecord {*}", {text, choice(kFindMatches), yesNo, choice(kFindDirections), yesNo, choice(kFindFields), yesNo}},
    {13, "GoToControl", "DoCmd.GoToControl {*}", {text}},
    // GoToPage: Page Number, Right, Down.
    {14, "GoToPage", "DoCmd.GoToPage {*}", {number, number, number}},
    // GoToRecord: Object Type, Object Name, Record, Offset.
    {15, "GoToRecord", "DoCmd.GoToRecord {*}", {choice(kDataObjectTypes), text, choice(kRecords), number}},
    {17, "Hourglass", "DoCmd.Hourglass {*}", {yesNo}},
    {19, "Maximize", "DoCmd.Maximize", {}},
    {20, "Minimize", "DoCmd.Minimize", {}},
    // MoveSize: Right, Down, Width, Height.
    {21, "MoveSize", "DoCmd.MoveSize {*}", {number, number, number, number}},
    // MsgBox: Message, Beep, Type, Title; the function takes prompt, buttons, title.
    {22, "MsgBox", "{2?}Beep\nMsgBox {1}, {3}, {4}", {text, yesNo, choice(kMessageTypes), text}},
    // OpenForm: Form Name, View, Filter Name, Where Condition, Data Mode, Window Mode.
    {23, "OpenForm", "DoCmd.OpenForm {*}", {text, choice(kFormViews), text, text, choice(kDataModes), choice(kWindowModes)}},
    // OpenQuery, OpenTable: name, View, Data Mode.
    {24, "OpenQuery", "DoCmd.OpenQuery {*}", {text, choice(kViews), choice(kDataModes)}},
    {25, "OpenTable", "DoCmd.OpenTable {*}", {text, choice(kViews), choice(kDataModes)}},
    // PrintOut: Print Range, Page From, Page To, Print Quality, Copies, Collate Copies.
    {26, "PrintOut", "DoCmd.PrintOut {*}", {choice(kPrintRanges), number, number, choice(kPrintQualities), number, yesNo}},
    {27, "Quit", "DoCmd.Quit {*}", {choice(kQuitOptions)}},
    {28, "Requery", "DoCmd.Requery {*}", {text}},
    // RepaintObject: Object Type, Object Name.
    {29, "RepaintObject", "DoCmd.RepaintObject {*}", {choice(kObjectTypes), text}},
    // Rename: New Name, Object Type, Old Name.
    {30, "Rename", "DoCmd.Rename {*}", {text, choice(kObjectTypes), text}},
    {31, "Restore", "DoCmd.Restore", {}},
    // RunApp: Command Line. There is no such method; Shell takes it, and 1 for a normal window.
    {32, "RunApp", "Call Shell({1}, 1)", {text}},
    // RunCode: Function Name, with its arguments. There is no such method.
    {33, "RunCode", "Call {1}", {call}},
    // RunMacro: Macro Name, Repeat Count, Repeat Expression, which the method takes as text.
    {34, "RunMacro", "DoCmd.RunMacro {*}", {text, number, text}},
    // RunSQL: SQL Statement, Use Transaction, which is written as a number.
    {35, "RunSQL", "DoCmd.RunSQL {*}", {text, number}},
    // SelectObject: Object Type, Object Name, In Database Window.
    {37, "SelectObject", "DoCmd.SelectObject {*}", {choice(kObjectTypes), text, yesNo}},
    // SendKeys: Keystrokes, Wait. There is no such method but a statement of Visual Basic.
    {38, "SendKeys", "SendKeys {*}", {text, yesNo}},
    // SetValue: Item, Expression. There is no such method.
    {40, "SetValue", "{1} = {2}", {target, expression}},
    {41, "SetWarnings", "DoCmd.SetWarnings {*}", {yesNo}},
    {43, "ShowAllRecords", "DoCmd.ShowAllRecords", {}},
    // StopAllMacros, StopMacro: no such methods.
    {44, "StopAllMacros", "End", {}},
    {45, "StopMacro", "Exit Function", {}},
    // OpenReport: Report Name, View, Filter Name, Where Condition; Window Mode from 2002 on.
    {46, "OpenReport", "DoCmd.OpenReport {*}", {text, choice(kViews), text, text, choice(kWindowModes)}},
    // TransferDatabase: Transfer Type, Database Type, Database Name, Object Type, Source,
    // Destination, Structure Only.
    {47, "TransferDatabase", "DoCmd.TransferDatabase {*}", {choice(kTransferTypes), text, text, choice(kObjectTypes), text, text, yesNo}},
    // TransferSpreadsheet: Transfer Type, Spreadsheet Type, Table Name, File Name, Has Field
    // Names, Range. The list of spreadsheet types grew with each version: it is written as a number.
    {48, "TransferSpreadsheet", "DoCmd.TransferSpreadsheet {*}", {choice(kTransferTypes), number, text, text, yesNo, text}},
    // TransferText: Transfer Type, name of the saved layout, Table Name, File Name, Has Field Names, HTML
    // Table Name; Code Page from 2000 on.
    {49, "TransferText", "DoCmd.TransferText {*}", {choice(kTextTransferTypes), text, text, text, yesNo, text, number}},
    // OutputTo: Object Type, Object Name, Output Format, Output File, Auto Start, Template File;
    // Encoding from 2000, Output Quality from 2007 on.
    {51, "OutputTo", "DoCmd.OutputTo {*}", {choice(kOutputObjectTypes), text, text, text, yesNo, text, number, choice(kExportQualities)}},
    // DeleteObject: Object Type, Object Name.
    {52, "DeleteObject", "DoCmd.DeleteObject {*}", {choice(kObjectTypes), text}},
    // OpenModule: Module Name, Procedure Name.
    {53, "OpenModule", "DoCmd.OpenModule {*}", {text, text}},
    // SendObject: Object Type, Object Name, Output Format, To, Cc, Bcc, Subject, Message Text, Edit
    // Message, Template File.
    {54, "SendObject", "DoCmd.SendObject {*}", {choice(kSendObjectTypes), text, text, text, text, text, text, text, yesNo, text}},
    // ShowToolbar: Toolbar Name, Show.
    {55, "ShowToolbar", "DoCmd.ShowToolbar {*}", {text, choice(kToolbarShows)}},
    // Save: Object Type, Object Name.
    {56, "Save", "DoCmd.Save {*}", {choice(kObjectTypes), text}},
    // SetMenuItem: Menu Index, Command Index, Subcommand Index, Flag.
    {57, "SetMenuItem", "DoCmd.SetMenuItem {*}", {number, number, number, choice(kMenuFlags)}},
    {58, "RunCommand", "DoCmd.RunCommand {*}", {choice(kCommandConstants)}},
    // OpenDataAccessPage: Data Access Page Name, View.
    {59, "OpenDataAccessPage", "DoCmd.OpenDataAccessPage {*}", {text, choice(kPageViews)}},
    // OpenView, OpenStoredProcedure, OpenFunction: name, View, Data Mode.
    {60, "OpenView", "DoCmd.OpenView {*}", {text, choice(kViews), choice(kDataModes)}},
    {61, "OpenDiagram", "DoCmd.OpenDiagram {*}", {text}},
    {62, "OpenStoredProcedure", "DoCmd.OpenStoredProcedure {*}", {text, choice(kViews), choice(kDataModes)}},
    // TransferSQLDatabase: Server, Database, Use Trusted Connection, Login, Password, Transfer Copy
    // Data.
    {63, "TransferSQLDatabase", "DoCmd.TransferSQLDatabase {*}", {text, text, yesNo, text, text, yesNo}},
    // CopyDatabaseFile: Database File Name, Overwrite Existing File, Disconnect All Users.
    {64, "CopyDatabaseFile", "DoCmd.CopyDatabaseFile {*}", {text, yesNo, yesNo}},
    {65, "OpenFunction", "DoCmd.OpenFunction {*}", {text, choice(kViews), choice(kDataModes)}},
};
// clang-format on

char lower(char letter) {
  return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

bool sameWord(std::string_view left, std::string_view right) {
  return std::ranges::equal(left, right, {}, lower, lower);
}

}  // namespace

std::size_t ActionRow::argumentCount() const {
  const auto end = std::ranges::find(arguments, kNone, &ActionArgument::kind);
  return static_cast<std::size_t>(end - std::begin(arguments));
}

std::span<const ActionRow> actionRows() { return kRows; }

const ActionRow* findAction(std::string_view name) {
  const auto* const found = std::ranges::find_if(
      kRows, [name](const ActionRow& row) { return sameWord(row.name, name); });
  return found == std::end(kRows) ? nullptr : found;
}

const ActionRow* findAction(std::uint16_t code) {
  const auto* const found = std::ranges::find(kRows, code, &ActionRow::code);
  return found == std::end(kRows) ? nullptr : found;
}

}  // namespace tarrowin
