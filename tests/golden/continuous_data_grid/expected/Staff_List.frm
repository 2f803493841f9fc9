VERSION 5.00
Begin VB.Form Staff_List
   Appearance    = 0
   BackColor     = -2147483633
   BorderStyle   = 2
   Caption       = "Staff"
   ClientHeight  = 1020
   ClientLeft    = 60
   ClientTop     = 345
   ClientWidth   = 5000
   Enabled       = -1
   KeyPreview    = 0
   Begin VB.Data Data1
      Caption           = "Data1"
      Connect           = "Access 2000;"
      DatabaseName      = "Staff.mdb"
      DefaultCursorType = 0   ' DefaultCursor
      DefaultType       = 2   ' Use Jet DB engine
      Exclusive         = 0   ' False
      Height            = 330
      Left              = 0
      Options           = 0
      ReadOnly          = 0   ' False
      RecordsetType     = 1   ' Dynaset
      RecordSource      = "Staff"
      Top               = 690
      Visible           = 0   ' False
      Width             = 1440
   End
   Begin VB.TextBox LastName
      DataField     = "LastName"
      DataSource    = "Data1"
      BeginProperty Font
      EndProperty
      Height        = 310
      Left          = 100
      Top           = 350
      Width         = 1500
   End   'LastName
   Begin VB.Label lblHead
      Caption       = "Name"
      Enabled       = -1
      BeginProperty Font
      EndProperty
      Height        = 250
      Left          = 110
      Top           = 20
      Width         = 1400
   End   'lblHead
   Begin VB.CheckBox Active
      DataField     = "Active"
      DataSource    = "Data1"
      Height        = 230
      Left          = 1800
      Top           = 360
      Width         = 240
   End   'Active
   Begin VB.Label lblActive
      Caption       = "Active"
      Enabled       = -1
      BeginProperty Font
      EndProperty
      Height        = 240
      Left          = 2100
      Top           = 410
      Width         = 700
   End   'lblActive
   Begin VB.TextBox txtFull
      DataField     = ""
      DataSource    = "Data1"
      BeginProperty Font
      EndProperty
      Height        = 320
      Left          = 2900
      Top           = 380
      Width         = 1000
   End   'txtFull
   Begin VB.ComboBox Country
      DataField     = "Country"
      DataSource    = "Data1"
      BeginProperty Font
      EndProperty
      Height        = 330
      Left          = 4000
      Top           = 390
      Width         = 900
   End   'Country
End   ' Form Staff List
Option Explicit
Private Sub Form_Load()
' Tarrowin: Load ComboBox items
   With Country
      .Text = "UK"
      .AddItem "UK"
      .AddItem "France"
   End With
End Sub
