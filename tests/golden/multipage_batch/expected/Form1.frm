VERSION 5.00
Begin VB.Form Form1
   Appearance    = 0
   BackColor     = 12632256
   BorderStyle   = 1
   Caption       = "Today"
   ClientHeight  = 1020
   ClientLeft    = 60
   ClientTop     = 345
   ClientWidth   = 3000
   Enabled       = -1
   HelpContextID = 0
   KeyPreview    = 0
   MaxButton     = 0
   MinButton     = 0
   Tag           = ""
   Begin VB.Label lblToday
      Alignment     = 0
      Appearance    = 0
      BackColor     = 12632256
      BackStyle     = 0
      BorderStyle   = 0
      Caption       = "Today"
      Enabled       = -1
      BeginProperty Font
      EndProperty
      ForeColor     = 0
      Height        = 240
      Left          = 100
      Tag           = ""
      ToolTipText   = ""
      Top           = 100
      Visible       = -1
      Width         = 1400
   End   'lblToday
End   ' Form Form1
