VERSION 5.00
Begin VB.Form Orders
   Appearance    = 0
   BackColor     = 12632256
   BorderStyle   = 1
   Caption       = "Orders"
   ClientHeight  = 2870
   ClientLeft    = 60
   ClientTop     = 345
   ClientWidth   = 6000
   Enabled       = -1
   HelpContextID = 4
   KeyPreview    = -1
   MaxButton     = 2
   MinButton     = 2
   Tag           = "   "
   Begin VB.Data Data1
      Caption           = "Data1"
      Connect           = "Access 2000;"
      DatabaseName      = "Shop.v2.mdb"
      DefaultCursorType = 0   ' DefaultCursor
      DefaultType       = 2   ' Use Jet DB engine
      Exclusive         = 0   ' False
      Height            = 330
      Left              = 0
      Options           = 0
      ReadOnly          = 0   ' False
      RecordsetType     = 1   ' Dynaset
      RecordSource      = "Orders"
      Top               = 2540
      Visible           = 0   ' False
      Width             = 1440
   End
   Begin VB.Label lblPage
      Alignment     = 0
      Appearance    = 0
      BackColor     = 3
      BackStyle     = 0
      BorderStyle   = 0
      Caption       = "Aufträge"
      Enabled       = -1
      BeginProperty Font
         Name       = "Arial"
         Italic     = 0   'False
         Size       = 8
         Underline  = 0   'False
         Weight     = 400
      EndProperty
      ForeColor     = 0
      Height        = 180
      Left          = 50
      Tag           = ""
      ToolTipText   = ""
      Top           = 310
      Visible       = -1
      Width         = 2000
   End   'lblPage
   Begin VB.TextBox txtId
      Alignment     = 1
      Appearance    = 1
      BackColor     = 16777215
      BorderStyle   = 1
      DataField     = "OrderID"
      DataSource    = "Data1"
      Enabled       = -1
      BeginProperty Font
         Name       = "Arial"
         Italic     = 0   'False
         Size       = 8
         Underline  = 0   'False
         Weight     = 400
      EndProperty
      ForeColor     = 0
      Height        = 300
      HelpContextID = 0
      Left          = 1000
      Locked        = -1
      TabIndex      = 0
      TabStop       = -1
      Tag           = ""
      ToolTipText   = ""
      Top           = 600
      Visible       = -1
      Width         = 1000
   End   'txtId
   Begin VB.OLE bofPhoto
      Appearance    = 0
      AutoActivate  = 1
      BackColor     = 65535
      BorderStyle   = 1
      Class         = ""
      DataField     = "Photo"
      DataSource    = "Data1"
      DisplayType   = 1
      Enabled       = -1
      Height        = 1400
      HelpContextId = 9
      Left          = 2200
      OLETypeAllowed= 2
      SizeMode      = 3
      SourceDoc     = ""
      SourceItem    = "R1C1"
      TabIndex      = 1
      TabStop       = -1
      Tag           = ""
      ToolTipText   = "Bild 'alt'"
      Top           = 1000
      Verb          = -1
      Visible       = -1
      Width         = 2000
   End   'bofPhoto
   Begin VB.ListBox lstState
      DataField     = "State"
      DataSource    = "Data1"
      Appearance    = 1
      BackColor     = 16777215
      Columns       = 1
      Enabled       = -1
      BeginProperty Font
         Name       = "Arial"
         Italic     = 0   'False
         Size       = 8
         Underline  = 0   'False
         Weight     = 400
      EndProperty
      Height        = 80
      HelpContextID = 0
      Left          = 100
      MultiSelect   = 1
      TabStop       = -1
      Tag           = ""
      ToolTipText   = ""
      Top           = 2520
      Visible       = -1
      Width         = 1500
   End   'lstState
   Begin MSDBCtls.DBCombo cboCustomer
      DataSource    = "Data1"
      RowSource     = "Data1"
      ListField     = "CompanyName"
      DataField     = "CustomerID"
      BoundColumn   = "CustomerID"
      Appearance    = 1
      BackColor     = 16777215
      Enabled       = -1
      BeginProperty Font
         Name       = "Arial"
         Italic     = 0   'False
         Size       = 8
         Underline  = 0   'False
         Weight     = 400
      EndProperty
      Height        = 140
      HelpContextID = 0
      Left          = 100
      TabStop       = -1
      Tag           = ""
      ToolTipText   = ""
      Top           = 2605
      Visible       = -1
      Width         = 1500
   End   'cboCustomer
End   ' Form Orders
Option Explicit
' Dim rstOrders As Recordset
Private Sub Form_Load()
' Tarrowin: Load ListBox items
   With lstState
      .Text = "open"
      .AddItem "open"
      .AddItem "geschlossen"
   End With
Screen.MousePointer = vbHourGlass '     DoCmd.HourGlass True
'     strFile = CurrentDb.Name
    Set rstOrders = Me.RecordsetClone

' 
'     varHint = SysCmd(4, "Bitte warten, lädt")
End Sub

Private Sub lstState_Click()
'     CurrentDb.Execute "UPDATE Orders SET State = 'open'"
'     DoCmd.Hourglass False
    intAll = Total()
End Sub

Function Total()
    Total = 1
End Function

