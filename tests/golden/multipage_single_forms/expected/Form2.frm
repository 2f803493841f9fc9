VERSION 5.00
Begin VB.Form Form2
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
   Begin VB.TextBox txtStreet
      Alignment     = 0
      Appearance    = 1
      BackColor     = 16777215
      BorderStyle   = 1
      DataField     = "Street"
      DataSource    = "Data1"
      Enabled       = -1
      BeginProperty Font
         Name       = "Tahoma"
         Italic     = -1  ' True
         Size       = 8
         Underline  = 0   'False
         Weight     = 400
      EndProperty
      ForeColor     = 0
      Height        = 300
      HelpContextID = 12
      Left          = 1800
      Locked        = 0
      TabIndex      = 1
      TabStop       = -1
      Tag           = ""
      Top           = 480
      Visible       = -1
      Width         = 3000
   End   'txtStreet
   Begin VB.Label lblStreet
      Alignment     = 0
      Appearance    = 0
      BackColor     = 12632256
      BackStyle     = 0
      BorderStyle   = 0
      Caption       = "Straﬂe"
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
      Top           = 495
      Visible       = -1
      Width         = 1500
   End   'lblStreet
   Begin VB.CommandButton cmdNext
      Cancel        = 0
      Caption       = "Next"
      Default       = -1
      Enabled       = -1
      BeginProperty Font
         Name       = "Tahoma"
         Italic     = 0   'False
         Size       = 8
         Underline  = 0   'False
         Weight     = 700
      EndProperty
      Height        = 360
      Left          = 5400
      TabStop       = -1
      Tag           = ""
      Top           = 4479
      Visible       = -1
      Width         = 1200
   End   'cmdNext
   Begin VB.Label lblHint
      Alignment     = 2
      Appearance    = 0
      BackColor     = 65535
      BackStyle     = 1
      BorderStyle   = 1
      Caption       = "Members only"
      Enabled       = -1
      BeginProperty Font
         Name       = "Tahoma"
         Italic     = 0   'False
         Size       = 8
         Underline  = -1  'True
         Weight     = 400
      EndProperty
      ForeColor     = 255
      Height        = 240
      Left          = 120
      Tag           = "hint"
      ToolTipText   = "hint"
      Top           = 11270
      Visible       = -1
      Width         = 6000
   End   'lblHint
End   ' Form Form2
