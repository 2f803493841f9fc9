VERSION 5.00
Begin VB.Form Guest_Card
   Appearance    = 0
   BackColor     = 12632256
   BorderStyle   = 1
   Caption       = "Guest"
   ClientHeight  = 4120
   ClientLeft    = 60
   ClientTop     = 345
   ClientWidth   = 5000
   Enabled       = -1
   HelpContextID = 0
   KeyPreview    = -1
   MaxButton     = 0
   MinButton     = 0
   Tag           = ""
   Begin VB.Label lblName
      Alignment     = 0
      Appearance    = 0
      BackColor     = 12632256
      BackStyle     = 0
      BorderStyle   = 0
      Caption       = "Name"
      Enabled       = -1
      BeginProperty Font
      EndProperty
      ForeColor     = 0
      Height        = 240
      Left          = 100
      Tag           = ""
      ToolTipText   = ""
      Top           = 200
      Visible       = -1
      Width         = 1400
   End   'lblName
   Begin VB.Shape brkBack
      Left        = 0
      Tag         = "back"
      Top           = 2000
      Visible     = -1
   End   'brkBack
   Begin VB.Label lblNotes
      Alignment     = 0
      Appearance    = 0
      BackColor     = 65535
      BackStyle     = 1
      BorderStyle   = 0
      Caption       = "Wünsche"
      Enabled       = -1
      BeginProperty Font
      EndProperty
      ForeColor     = 0
      Height        = 240
      Left          = 100
      Tag           = ""
      ToolTipText   = ""
      Top           = 2200
      Visible       = -1
      Width         = 1400
   End   'lblNotes
End   ' Form Guest Card
Option Explicit
Private Sub Form_Initialize() 'Private Sub Form_Open(Cancel As Integer)
'     DoCmd.GoToPage 1
End Sub

