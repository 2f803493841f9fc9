// Blocks of ADO data controls and grids.
#include "forms/control_printers.h"
#include "forms/printer_case.h"

namespace tarrowin::test {

namespace {

// clang-format off
PrinterCase adoDataCtl() {
  return {"ADODataCtl", PrintADODataCtlProps, 119, Indent::kFontOnly,
          R"({
      "Appearance": 1101, "Enabled": true, "BackColor": 1102, "BOFAction": 1103,
      "EOFAction": 1104, "Caption": "Caption \"A\"\tB ", "CacheSize": 1105,
      "CommandTimeout": 1106, "CommandType": 1107,
      "ConnectionString": "  ConnectionString text ", "ConnectMode": 1108,
      "ConnectionTimeout": 1109, "CusrorType": 1110, "ForeColor": 1111, "Height": 1112,
      "HelpContextID": 1113, "Left": 2000, "LockType": 1114, "MaxRecords": 1115,
      "Orientation": 1116, "OLEDBString": "  OLEDBString text ",
      "OLEDBFile": "  OLEDBFile text ", "Password": "  Password text ",
      "RecordSource": "  RecordSource text ", "TabIndex": 1117, "TabStop": true,
      "Tag": "Tag \"A\"\tB ", "ToolTipText": "ToolTipText \"A\"\tB ", "Top": 1500,
      "UserName": "  UserName text ", "Visible": true, "Width": 1118
      })",
          {
          {"   Begin MSAdodcLib.Adodc My_Control"},
          {"      Appearance        = 1101"},
          {"      Enabled           = -1", "Enabled"},
          {"      BackColor         = 1102"},
          {"      BOFAction         = 1103"},
          {"      EOFAction         = 1104"},
          {"      Caption           = \"Caption 'A' B \"", "Caption"},
          {"      CacheSize         = 1105"},
          {"      CommandTimeout    = 1106"},
          {"      CommandType       = 1107"},
          {"      Connect           = \"ConnectionString text\"", "ConnectionString"},
          {"      ConnectMode       = 1108"},
          {"      ConnectionTimeout = 1109"},
          {"      CursorLocation    = 1108"},
          {"      CursorType        = 1110"},
          {"      ForeColor         = 1111"},
          {"      Height            = 1112"},
          {"      HelpContextID     = 1113"},
          {"      Left              = ", "", Mark::kLeft},
          {"      LockType          = 1114"},
          {"      MaxRecords        = 1115"},
          {"      Orientation       = 1116"},
          {"      OLEDBString       = \"OLEDBString text\"", "OLEDBString"},
          {"      OLEDBFile         = \"OLEDBFile text\"", "OLEDBFile"},
          {"      Password          = \"Password text\"", "Password"},
          {"      RecordSource      = \"RecordSource text\"", "RecordSource"},
          {"      TabIndex          = 1117"},
          {"      TabStop           = -1", "TabStop"},
          {"      Tag               = \"Tag 'A' B \"", "Tag"},
          {"      ToolTipText       = \"ToolTipText 'A' B \"", "ToolTipText"},
          {"      Top               = 1500"},
          {"      UserName          = \"UserName text\"", "UserName"},
          {"      Visible           = -1", "Visible"},
          {"      Width             = 1118"},
          {"   End   'My_Control"},
          }};
}

PrinterCase gridControl() {
  return {"GridControl", PrintGridControlProps, 119, Indent::kFontOnly,
          R"({
      "Appearance": 1101, "Enabled": true, "AllowAddNew": true, "AllowArrows": true,
      "AllowDelete": true, "AllowUpdate": true, "BackColor": 1102,
      "Caption": "Caption \"A\"\tB ", "ColumnHeaders": true, "DataMember": "DataMember text",
      "DefColWidth": 1103, "ForeColor": 1104, "HeadFont": "HeadFont text", "HeadLines": 1105,
      "Height": 1106, "HelpContextID": 1107, "Left": 2000, "RightToLeft": true,
      "RowDividerStyle": 1108, "RowHeight": 1109, "TabAcrossSplits": true, "TabAction": 1110,
      "TabIndex": 1111, "TabStop": true, "Tag": "Tag \"A\"\tB ",
      "ToolTipText": "ToolTipText \"A\"\tB ", "Top": 1500, "Visible": true, "Width": 1112,
      "WrapCellPointer": true
      })",
          {
          {"   Begin MSDataGridLib.DataGrid My_Control"},
          {"      Appearance     = 1101"},
          {"      Enabled        = -1", "Enabled"},
          {"      AllowAddNew    = -1", "AllowAddNew"},
          {"      AllowArrows    = -1", "AllowArrows"},
          {"      AllowDelete    = -1", "AllowDelete"},
          {"      AllowUpdate    = -1", "AllowUpdate"},
          {"      BackColor      = 1102"},
          {"      Caption        = \"Caption 'A' B \"", "Caption"},
          {"      ColumnHeaders  = -1", "ColumnHeaders"},
          {"      DataMembers    = DataMember text"},
          {"      DataSource     = \"Adodc3\""},
          {"      DefColWidth    = 1103"},
          {"      ForeColor      = 1104"},
          {"      HeadFont       = HeadFont text"},
          {"      HeadLines      = 1105"},
          {"      Height         = 1106"},
          {"      HelpContextID  = 1107"},
          {"      Left           = ", "", Mark::kLeft},
          {"      RightToLeft    = -1", "RightToLeft"},
          {"      RowDividerStyle= 1108"},
          {"      RowHeight      = 1109"},
          {"      TabAcrossSplits= -1", "TabAcrossSplits"},
          {"      TabAction      = 1110"},
          {"      TabIndex       = 1111"},
          {"      TabStop        = -1", "TabStop"},
          {"      Tag            = \"Tag 'A' B \"", "Tag"},
          {"      ToolTipText    = \"ToolTipText 'A' B \"", "ToolTipText"},
          {"      Top            = 1500"},
          {"      Visible        = -1", "Visible"},
          {"      Width          = 1112"},
          {"      WrapCellPointer= -1", "WrapCellPointer"},
          {"   End   'My_Control"},
          }};
}

PrinterCase flexGrid() {
  return {"MSHFlexGrid", PrintMSHFlexGridProps, 112, Indent::kEveryLine,
          R"({
      "Left": 2000, "Top": 1500, "Visible": true
      })",
          {
          {"   Begin MSDataGridLib.MSHFlexGrid My_Control"},
          {"      Height         = 7771"},
          {"      Left           = ", "", Mark::kLeft},
          {"      Top            = ", "", Mark::kTop},
          {"      Visible        = -1", "Visible"},
          {"      Width          = 7772"},
          {"      Cols           = 0"},
          {"      FixedCols      = 0"},
          {"      AllowUserResizing= 3"},
          {"      DataMember     = last member"},
          {"      _NumberOfBands = 0"},
          }};
}
// clang-format on

}  // namespace

std::vector<PrinterCase> gridPrinterCases() { return {adoDataCtl(), gridControl(), flexGrid()}; }

}  // namespace tarrowin::test
