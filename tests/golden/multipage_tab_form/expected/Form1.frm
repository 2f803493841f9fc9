VERSION 5.00
Begin VB.Form Form1
   Appearance    = 0
   BackColor     = -2147483633
   BorderStyle   = 2
   Caption       = "Visitor Survey"
   ClientHeight  = 7220
   ClientLeft    = 60
   ClientTop     = 345
   ClientWidth   = 6000
   Enabled       = -1
   HelpContextID = 5
   KeyPreview    = 0
   MaxButton     = 3
   MinButton     = 3
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
      Top           = 600
      Visible       = -1
      Width         = 4320
      TabHeight     = 0
      TabMaxWidth   = 0
      Tabs          = 2
      TabsPerRow    = 2
      TabCaption(0) = "Page1"
      Tab(0).ControlEnabled= -1   'True
      Tab(0).Control(0)= "lblAge"
      Tab(0).Control(0).Enabled= 0
      Tab(0).Control(1)= "txtAge"
      Tab(0).Control(1).Enabled= 0
      Tab(0).ControlCount= 2
      TabCaption(1) = "Page2"
      Tab(1).ControlEnabled= 0   'False
      Tab(1).Control(0)= "txtLast"
      Tab(1).Control(0).Enabled= 0
      Tab(1).Control(1)= "txtTown"
      Tab(1).Control(1).Enabled= 0
      Tab(1).Control(2)= "lblTown"
      Tab(1).Control(2).Enabled= 0
      Tab(1).ControlCount= 3
      Begin VB.Label lblAge
         Alignment     = 0
         Appearance    = 0
         BackColor     = -2147483633
         BackStyle     = 0
         BorderStyle   = 0
         Caption       = "Age"
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
         Left          = 240
         Tag           = ""
         ToolTipText   = ""
         Top           = 400
         Visible       = -1
         Width         = 1200
      End   'lblAge
      Begin VB.TextBox txtAge
         Alignment     = 1
         Appearance    = 1
         BackColor     = 16777215
         BorderStyle   = 1
         DataField     = ""
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
         HelpContextID = 21
         Left          = 1740
         Locked        = 0
         TabIndex      = 0
         TabStop       = -1
         Tag           = ""
         Top           = 700
         Visible       = -1
         Width         = 900
      End   'txtAge
      Begin VB.TextBox txtLast
         Alignment     = 0
         Appearance    = 1
         BackColor     = 16777215
         BorderStyle   = 1
         DataField     = ""
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
         HelpContextID = 22
         Left          = -73260
         Locked        = 0
         TabIndex      = 1
         TabStop       = -1
         Tag           = ""
         Top           = 100
         Visible       = -1
         Width         = 2400
      End   'txtLast
      Begin VB.TextBox txtTown
         Alignment     = 0
         Appearance    = 1
         BackColor     = 16777215
         BorderStyle   = 1
         DataField     = ""
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
         HelpContextID = 23
         Left          = -73260
         Locked        = 0
         TabIndex      = 2
         TabStop       = -1
         Tag           = ""
         Top           = 600
         Visible       = -1
         Width         = 2400
      End   'txtTown
      Begin VB.Label lblTown
         Alignment     = 0
         Appearance    = 0
         BackColor     = 65535
         BackStyle     = 1
         BorderStyle   = 0
         Caption       = "Town"
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
         Left          = -74760
         Tag           = ""
         ToolTipText   = ""
         Top           = 3300
         Visible       = -1
         Width         = 1200
      End   'lblTown
   End   ' Tab Control
   Begin VB.Label lblHead
      Alignment     = 0
      Appearance    = 0
      BackColor     = 8421376
      BackStyle     = 0
      BorderStyle   = 0
      Caption       = "Visitor survey"
      Enabled       = -1
      BeginProperty Font
         Name       = "Tahoma"
         Italic     = 0   'False
         Size       = 12
         Underline  = 0   'False
         Weight     = 700
      EndProperty
      ForeColor     = 16777215
      Height        = 360
      Left          = 120
      Tag           = ""
      ToolTipText   = ""
      Top           = 120
      Visible       = -1
      Width         = 5000
   End   'lblHead
   Begin VB.CommandButton cmdSend
      Cancel        = 0
      Caption       = "Send"
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
      Left          = 300
      TabStop       = -1
      Tag           = ""
      Top           = 6660
      Visible       = -1
      Width         = 1500
   End   'cmdSend
End   ' Form Form1
