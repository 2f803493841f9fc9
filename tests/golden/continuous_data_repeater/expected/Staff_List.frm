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
   Begin MSDataRepeaterLib.DataRepeater DataRepeater1
      Bindings          = ""
      Caption           = " DataRepeater1 "
      DataSource        = "Adodc1"
      Height            = 900
      Left              = 120
      Public            = -1   ' True
      Top               = 120
      Visible           = -1   ' True
      Width             = 4880
      BeginProperty RepeatedControlName
         Name = "prjStaff List.ctl Staff List"
      EndProperty
      RepeaterBindings =  4
      BeginProperty RepeaterBinding(0) {7D21A594-FC9B-11D0-A320-00AA00688B10}
         _StreamID       =   -1412567295
         _Version        =   65536
         PropertyName = "txtLastName"
         DataField = "LastName"
         BeginProperty DataFormat {6D835690-900B-11D0-9484-00A0C91110ED}
            Type            =   0
            Format = ""
            HaveTrueFalseNull = 0
            FirstDayOfWeek = 0
            FirstWeekOfYear = 0
            LCID = 1033
            SubFormatType = 0
         EndProperty
      EndProperty
      BeginProperty RepeaterBinding(1) {7D21A594-FC9B-11D0-A320-00AA00688B10}
         _StreamID       =   -1412567295
         _Version        =   65536
         PropertyName = "chkActive"
         DataField = "Active"
         BeginProperty DataFormat {6D835690-900B-11D0-9484-00A0C91110ED}
            Type            =   0
            HaveTrueFalseNull = 0
            FirstDayOfWeek = 0
            FirstWeekOfYear = 0
            LCID = 1033
            SubFormatType = 0
         EndProperty
      EndProperty
      BeginProperty RepeaterBinding(2) {7D21A594-FC9B-11D0-A320-00AA00688B10}
         _StreamID       =   -1412567295
         _Version        =   65536
         PropertyName = ""
         DataField = ""
         BeginProperty DataFormat {6D835690-900B-11D0-9484-00A0C91110ED}
            Type            =   0
            Format = ">"
            HaveTrueFalseNull = 0
            FirstDayOfWeek = 0
            FirstWeekOfYear = 0
            LCID = 1033
            SubFormatType = 0
         EndProperty
      EndProperty
      BeginProperty RepeaterBinding(3) {7D21A594-FC9B-11D0-A320-00AA00688B10}
         _StreamID       =   -1412567295
         _Version        =   65536
         PropertyName = "txtCountry"
         DataField = "Country"
         BeginProperty DataFormat {6D835690-900B-11D0-9484-00A0C91110ED}
            Type            =   0
            Format = ""
            HaveTrueFalseNull = 0
            FirstDayOfWeek = 0
            FirstWeekOfYear = 0
            LCID = 1033
            SubFormatType = 0
         EndProperty
      EndProperty
   End   ' DataRepeater1
      Begin MSAdodcLib.Adodc Adodc1
         Caption           = "Adodc1"
         CommandType       = 1
         Connect           = "Provider=Microsoft.Jet.OLEDB.4.0;Persist Security Info=False;Data Source=C:\Data\Staff.mdb"
         Height            = 330
         Left              = 0
       RecordSource      = "SELECT * FROM Staff ORDER BY LastName"
         Top               = 690
         Visible           = 0   ' False
         Width             = 1440
      End   'Adodc1
   Begin VB.TextBox txtLastName
      DataField     = "LastName"
      DataSource    = "Adodc1"
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
   Begin VB.CheckBox chkActive
      DataSource    = "Adodc1"
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
      DataSource    = "Adodc1"
      BeginProperty Font
      EndProperty
      Height        = 320
      Left          = 2900
      Top           = 380
      Width         = 1000
   End   'txtFull
   Begin VB.ComboBox cboCountry
      DataField     = "Country"
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
   With cboCountry
      .Text = "UK"
      .AddItem "UK"
      .AddItem "France"
   End With
End Sub
