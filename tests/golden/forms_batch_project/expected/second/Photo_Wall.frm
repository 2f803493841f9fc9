VERSION 5.00
Begin VB.Form Photo_Wall
   Appearance    = 0
   BackColor     = 8421504
   BorderStyle   = 2
   Caption       = "Photo 'Wand' groﬂ"
   ClientHeight  = 11520
   ClientLeft    = 60
   ClientTop     = 345
   ClientWidth   = 8000
   Enabled       = -1
   HelpContextID = 0
   KeyPreview    = 0
   Tag           = ""
   Begin VB.Image imgWall
      Appearance    = 0
      BorderStyle   = 0
      Enabled       = -1
      Height        = 2000
      Left          = 100
      Tag           = "wall"
      Top           = 100
      Visible       = -1
      Width         = 3000
   End   'imgWall
   Begin VB.CommandButton cmd_Next
      Cancel        = 0
      Caption       = "weiter"
      Default       = -1
      Enabled       = -1
      BeginProperty Font
         Name       = "Arial"
         Italic     = 0   'False
         Size       = 8
         Underline  = 0   'False
         Weight     = 400
      EndProperty
      Height        = 400
      Left          = 3200
      TabStop       = -1
      Style         = 1
      Tag           = ""
      ToolTipText   = ""
      Top           = 100
      Visible       = -1
      Width         = 900
   End   'cmd_Next
   Begin VB.OLE ofrChart
      Appearance    = 1
      AutoActivate  = 2
      BackColor     = 8421504
      BorderStyle   = 1
      Class         = "Excel.Sheet.8"
      DisplayType   = 0
      Enabled       = 0
      Height        = 2000
      HelpContextId = 0
      Left          = 100
      OLETypeAllowed= 1
      SizeMode      = 2
      SourceDoc     = "C:\Plan.xls"
      TabIndex      = 1
      TabStop       = -1
      Tag           = ""
      Top           = 2300
      Verb          = 0
      Visible       = -1
      Width         = 3000
   End   'ofrChart
   Begin MSComctlLib.Slider sldZoom
      Enabled       = -1
      Height        = 400
      Left          = 3200
      LargeChange   = 5
      Max           = 400
      Min           = 25
      TabIndex      = 2
      TabStop       = -1
      Tag           = ""
      ToolTipText   = "Zoom '%'"
      Top           = 600
      Visible       = -1
      Width         = 2000
   End   'sldZoom
   Begin VB.ComboBox cboSize
      DataField     = ""
      DataSource    = "Data1"
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
      Height        = 300
      HelpContextID = 0
      Left          = 3200
      TabStop       = -1
      Tag           = ""
      ToolTipText   = ""
      Top           = 1200
      Visible       = -1
      Width         = 900
   End   'cboSize
   Begin VB.TextBox txtNote
      Alignment     = 0
      Appearance    = 1
      BackColor     = 16777215
      BorderStyle   = 1
      DataField     = ""
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
      Left          = 3200
      Locked        = 0
      TabIndex      = 4
      TabStop       = -1
      Tag           = ""
      ToolTipText   = ""
      Top           = 11700
      Visible       = -1
      Width         = 900
   End   'txtNote
End   ' Form Photo Wall
Option Explicit
Private Sub Form_Load()
' Tarrowin: Load and display images
   
   imgWall.Picture = LoadPicture("C:\Bilder\W‰nde.bmp")
   cmd_Next.Picture = LoadPicture("C:\Bilder\next.bmp")
End Sub
