VERSION 5.00
Begin VB.Form Rates
   Appearance    = 0
   BackColor     = 12632256
   BorderStyle   = 1
   Caption       = "Rates"
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
   Begin VB.TextBox txtRate
      Alignment     = 1
      Appearance    = 0
      BackColor     = 16777215
      BorderStyle   = 1
      DataField     = ""
      DataSource    = "Data1"
      Enabled       = -1
      BeginProperty Font
      EndProperty
      ForeColor     = 0
      Height        = 300
      HelpContextID = 0
      Left          = 100
      Locked        = -1
      TabIndex      = 0
      TabStop       = 0
      Tag           = ""
      Top           = 50
      Visible       = -1
      Width         = 900
   End   'txtRate
End   ' Form Rates
