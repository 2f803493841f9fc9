VERSION 5.00
Begin VB.Form Form1
   Appearance    = 0
   BackColor     = 12632256
   BorderStyle   = 1
   Caption       = "New member"
   ClientHeight  = 11520
   ClientLeft    = 60
   ClientTop     = 345
   ClientWidth   = 7000
   Enabled       = -1
   HelpContextID = 0
   KeyPreview    = 0
   MaxButton     = 0
   MinButton     = 0
   Tag           = ""
   Begin VB.Data Data1
      Caption           = "Data1"
      Connect           = "Access 2000;"
      DatabaseName      = "Members.2001.mdb"
      DefaultCursorType = 0   ' DefaultCursor
      DefaultType       = 2   ' Use Jet DB engine
      Exclusive         = 0   ' False
      Height            = 330
      Left              = 0
      Options           = 0
      ReadOnly          = 0   ' False
      RecordsetType     = 1   ' Dynaset
      RecordSource      = "Members"
      Top               = 11190
      Visible           = 0   ' False
      Width             = 1440
   End
   Begin VB.Label lblTitle
      Alignment     = 0
      Appearance    = 0
      BackColor     = 8388608
      BackStyle     = 0
      BorderStyle   = 0
      Caption       = "New member"
      Enabled       = -1
      BeginProperty Font
         Name       = "Tahoma"
         Italic     = 0   'False
         Size       = 14
         Underline  = 0   'False
         Weight     = 700
      EndProperty
      ForeColor     = 16777215
      Height        = 360
      Left          = 120
      Tag           = ""
      ToolTipText   = ""
      Top           = 60
      Visible       = -1
      Width         = 4000
   End   'lblTitle
   Begin VB.TextBox txtName
      Alignment     = 0
      Appearance    = 1
      BackColor     = 16777215
      BorderStyle   = 1
      DataField     = "LastName"
      DataSource    = "Data1"
      Enabled       = -1
      BeginProperty Font
         Name       = "Tahoma"
         Italic     = 0   'False
         Size       = 8
         Underline  = 0   'False
         Weight     = 400
      EndProperty
      ForeColor     = 0
      Height        = 300
      HelpContextID = 11
      Left          = 1800
      Locked        = 0
      TabIndex      = 0
      TabStop       = -1
      Tag           = "key"
      Top           = 780
      Visible       = -1
      Width         = 3000
   End   'txtName
   Begin VB.Label lblName
      Alignment     = 0
      Appearance    = 0
      BackColor     = 12632256
      BackStyle     = 0
      BorderStyle   = 0
      Caption       = "Name"
      Enabled       = -1
      BeginProperty Font
         Name       = "Tahoma"
         Italic     = 0   'False
         Size       = 8
         Underline  = 0   'False
         Weight     = 400
      EndProperty
      ForeColor     = 0
      Height        = 240
      Left          = 120
      Tag           = ""
      ToolTipText   = ""
      Top           = 780
      Visible       = -1
      Width         = 1500
   End   'lblName
   Begin VB.CommandButton cmdClose
      Cancel        = -1
      Caption       = "Close"
      Default       = 0
      Enabled       = -1
      BeginProperty Font
         Name       = "Tahoma"
         Italic     = 0   'False
         Size       = 8
         Underline  = 0   'False
         Weight     = 400
      EndProperty
      Height        = 360
      Left          = 5400
      TabStop       = -1
      Tag           = ""
      Top           = 10120
      Visible       = -1
      Width         = 1200
   End   'cmdClose
End   ' Form Form1
