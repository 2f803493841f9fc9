VERSION 5.00
Begin VB.Form Form3
   Appearance    = 0
   BackColor     = 12632256
   BorderStyle   = 1
   Caption       = "Anamnesis"
   ClientHeight  = 5120
   ClientLeft    = 60
   ClientTop     = 345
   ClientWidth   = 5000
   Enabled       = -1
   HelpContextID = 0
   KeyPreview    = 0
   MaxButton     = 0
   MinButton     = 0
   Tag           = ""
   Begin TabDlg.SSTab TabCtl0
      Enabled       = -1
      BeginProperty Font
         Name       = "Arial"
         Italic     = 0   'False
         Size       = 9
         Underline  = 0   'False
         Weight     = 400
      EndProperty
      Height        = 2880
      HelpContextID = 0
      Left          = 60
      Style         = 1
      TabIndex      = 0
      TabStop       = -1
      Tag           = ""
      Top           = 0
      Visible       = -1
      Width         = 4320
      TabHeight     = 0
      TabMaxWidth   = 0
      Tabs          = 2
      TabsPerRow    = 2
      TabCaption(0) = "Page1"
      Tab(0).ControlEnabled= -1   'True
      Tab(0).Control(0)= "txtPast"
      Tab(0).Control(0).Enabled= 0
      Tab(0).Control(1)= "txtNow"
      Tab(0).Control(1).Enabled= 0
      Tab(0).ControlCount= 2
      Tab(1).ControlCount= 0
      Begin VB.TextBox txtPast
         Alignment     = 0
         Appearance    = 1
         BackColor     = 16777215
         BorderStyle   = 1
         DataField     = ""
         Enabled       = -1
         BeginProperty Font
         EndProperty
         ForeColor     = 0
         Height        = 300
         HelpContextID = 0
         Left          = 440
         Locked        = 0
         TabIndex      = 0
         TabStop       = -1
         Tag           = "1"
         Top           = 500
         Visible       = -1
         Width         = 2000
      End   'txtPast
      Begin VB.TextBox txtNow
         Alignment     = 0
         Appearance    = 1
         BackColor     = 16777215
         BorderStyle   = 1
         DataField     = ""
         Enabled       = -1
         BeginProperty Font
         EndProperty
         ForeColor     = 0
         Height        = 300
         HelpContextID = 0
         Left          = 440
         Locked        = -1
         TabIndex      = 1
         TabStop       = -1
         Tag           = "2"
         Top           = 400
         Visible       = -1
         Width         = 2000
      End   'txtNow
   End   ' Tab Control
End   ' Form Form3
