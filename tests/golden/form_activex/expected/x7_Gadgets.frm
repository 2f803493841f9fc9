VERSION 5.00
Begin VB.Form x7_Gadgets
   Appearance    = 0
   BackColor     = 12632256
   BorderStyle   = 3
   Caption       = "Geräte"
   ClientHeight  = 9520
   ClientLeft    = 60
   ClientTop     = 345
   ClientWidth   = 12000
   Enabled       = -1
   HelpContextID = 0
   KeyPreview    = 0
   MaxButton     = 1
   MinButton     = 1
   Tag           = ""
   Begin MSACAL.Calendar calMain
      Height        = 2000
      Left          = 100
      TabIndex          = 0
      Tag           = "a'b"
      Top           = 500
      Visible       = -1
      Width         = 3000
      BackColor         = -2147483633
      Year              = 2003
      Month             = 5
      Day               = 17
      DayLength         = 1
      MonthLength       = 2
      DayFontColor      = 0
      FirstDay          = 1
      GridCellEffect    = 1
      GridFontColor     = 10485760
      GridLinesColor    = -2147483632
      ShowDateSelectors = -1
      ShowDays          = -1
      ShowTitle = 0
      ShowVerticalGrid  = -1
      TitleFontColor    = 10485761
      ValueIsNull       = 0
         BeginProperty DayFont
            Name       = "Arial"
            Italic     = -1
            Size       = 9.75
            Strikethrough = 0
            Underline  = 0
            Weight     = 400
         EndProperty
         BeginProperty GridFont
            Name       = "Arial"
            Italic     = -1
            Size       = 9.75
            Strikethrough = 0
            Underline  = 0
            Weight     = 400
         EndProperty
         BeginProperty TitleFont
            Name       = "Arial"
            Italic     = -1
            Size       = 9.75
            Strikethrough = 0
            Underline  = 0
            Weight     = 400
         EndProperty
   End   'calMain
   Begin MSComDlg.CommonDialog dlgOpen
      CancelError   = 0
      Color         = 255
      Copies        = 1
      DefaultExt    = "txt"
      DialogTitle   = "Öffnen"
      FileName      = ""
      Filter        = "Text|*.txt"
      FilterIndex   = 0
      Flags         = 4
      FontName      = "Arial"
      FontBold      = -1
      FontItalic    = 0
      FontSize      = 8
      FontStrikeThru= 0
      FontUnderLine = -1
      FromPage      = 2
      HelpContext   = 11
      HelpFile      = "a.hlp"
      HelpKey       = ""
      Left          = 3200
      ToPage        = 3
      HelpContext   = 12
      InitDir       = "C:\"
      Max           = 9
      MaxFileSize   = 260
      Min           = 1
      PrinterDefault= -1
      Tag           = ""
      ToolTipText   = "dialog 1"
      Top           = 500
   End   'dlgOpen
   Begin MSDataGridLib.DataGrid grdOrders
   Begin MSDataGridLib.DataGrid grdOrders
      Appearance     = 1
      Enabled        = -1
      AllowAddNew    = 0
      AllowArrows    = -1
      AllowDelete    = 0
      AllowUpdate    = -1
      BackColor      = 16777215
      Caption        = "'Aufträge'"
      ColumnHeaders  = -1
      DataMembers    = Orders
      DataSource     = "Adodc0"
      DefColWidth    = 0
      ForeColor      = 8
      HeadLines      = 1
      Height         = 1500
      HelpContextID  = 5
      Left           = 100
      RightToLeft    = 0
      RowDividerStyle= 4
      RowHeight      = 225
      TabAcrossSplits= 0
      TabAction      = 2
      TabIndex       = 1
      TabStop        = -1
      Tag            = ""
      ToolTipText    = ""
      Top            = 2200
      Visible        = -1
      Width          = 4000
      WrapCellPointer= 0
   End   'grdOrders
   Begin MSComctlLib.ImageList imlPics
      BackColor     = 16777215
      ImageHeight   = 16
      ImageWidth    = 32
      Left          = 3800
      MaskColor     = 12632256
      Top           = 500
      UseMaskColor  = -1
   End   'imlPics
   Begin MSComctlLib.ImageCombo icbKind
      BackColor     = 16777215
      BeginProperty Font
         Name       = "Arial"
         Italic     = 0   'False
         Size       = 8
         Underline  = 0   'False
         Weight     = 400
      EndProperty
      ForeColor     = 1
      Height        = 330
      Left          = 4300
      TabIndex      = 2
      TabStop       = True
      Text          = "Wahl"
      TooltipText   = "say 'when'"
      Top           = 500
      Width         = 1500
   End   'icbKind
   Begin COMCTLLib.ListView lvwFiles
      Appearance    = 1
      Arrange       = 0
      BackColor     = -255
      BorderStyle   = 1
      Enabled       = -1
      ForeColor     = --2147483640
      BeginProperty Font
         Name       = "Arial"
         Italic     = 0   'False
         Size       = 8
         Underline  = 0   'False
         Weight     = 400
      EndProperty
      HideColumnHeaders = 0
      HideSelection = -1
      Height        = 1500
      LabelEdit     = 0
      LabelWrap     = -1
      Left          = 100
      MousePointer  = 0
      MultiSelect   = 0
      OLEDragMode   = 0
      OLEDropMode   = 1
      Sorted        = -1
      SortKey       = 2
      SortOrder     = 1
      TabIndex      = 3
      TabStop       = -1
      Tag           = ""
      ToolTipText   = ""
      Top           = 4200
      View          = 3
      Visible       = -1
      Width         = 2500
   End   'lvwFiles
   Begin MSComctlLib.Slider sldSpeed
      BorderStyle   = 1
      Enabled       = 0
      Height        = 600
      HelpContextID = 0
      Left          = 2700
      LargeChange   = 5
      Max           = 10
      Min           = 0
      MousePointer  = 0
      OLEDropMode   = 0
      Orientation   = 0
      SelectRange   = -1
      SelLength     = 3
      SmallChange   = 1
      TabIndex      = 4
      TabStop       = -1
      Tag           = "x"
      TickFrequency = 2
      TickStyle     = 1
      ToolTipText   = ""
      Top           = 4200
      Visible       = -1
      Width         = 2000
   End   'sldSpeed
   Begin MSComctlLib.TabStrip tbsMain
      Enabled        = -1
      BeginProperty Font
         Name       = "Arial"
         Italic     = 0   'False
         Size       = 8
         Underline  = 0   'False
         Weight     = 400
      EndProperty
      HelpContextID  = 0
      Height         = 800
      Left           = 2700
      MousePointer   = 0
      MultiRow       = 0
      OLEDropMode    = 0
      ShowTips       = -1
      Style          = 2
      TabFixedHeight = 300
      TabFixedWidth  = 900
      TabIndex       = 5
      TabStop        = -1
      TabWidthStyle  = 1
      Tag           = "tabs"
      ToolTipText    = ""
      Top            = 4900
      Visible        = -1
      Width          = 2000
   End   'tbsMain
   Begin MSComctlLib.ToolBar tbrMain
      AllowCustomize = -1
      Appearance     = 1
      BorderStyle    = 0
      ButtonHeight   = 330.75
      ButtonWidth    = 345
      Enabled        = -1
      HelpContextID  = 0
      Height         = 380
      HelpFile       = "b.hlp"
      Left           = 0
      MousePointer   = 0
      OLEDropMode    = 0
      ShowTips       = -1
      TabIndex       = 6
      Tag            = ""
      TabStop        = 0
      ToolTipText    = ""
      Top            = 10
      Wrappable      = -1
      Visible       = -1
      Width         = 12000
   End   'tbrMain
   Begin MSComctlLib.ProgressBar prgDone
      Appearance    = 1
      BorderStyle   = 1
      Enabled       = -1
      HelpContextID = 0
      Height        = 300
      Left          = 4800
      Max           = 100
      Min           = 0
      MousePointer  = 0
      OLEDropMode   = 0
      TabIndex      = 7
      TabStop       = 0
      ToolTipText   = ""
      Top           = 4200
      Visible       = -1
      Width         = 2000
   End   'prgDone
   Begin RICHTEXTLib.RichTextBox rtfNote
      Appearance    = 1
      AutoVerbMenu  = 0
      BackColor     = 16777215
      BorderStyle   = 1
      BulletIndent  = 0
      DisableNoScroll = -1
      Enabled       = -1
      FileName      = ""
      BeginProperty Font
         Name       = "Arial"
         Italic     = 0   'False
         Size       = 8
         Underline  = 0   'False
         Weight     = 400
      EndProperty
      HideSelection = -1
      Height        = 1200
      HelpContextID = 0
      Left          = 100
      MaxLength     = 0
      MousePointer  = 0
      MultiLine     = -1
      OLEDragMode   = 0
      OLEDropMode   = 0
      RightMargin   = 0
      ScrollBars    = 2
      TabIndex      = 8
      TabStop       = -1
      Tag           = ""
      Text          = "Größe"
      ToolTipText   = ""
      Top           = 5900
      Visible       = -1
      Width         = 3000
   End   'rtfNote
   Begin MSComctlLib.StatusBar staInfo
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
      Left          = 0
      MousePointer  = 0
      OLEDropMode   = 0
      ShowTips      = 0
      SimpleText    = "bereit"
      Style         = 1
      TabIndex      = 9
      TabStop       = 0
      ToolTipText   = ""
      Top           = 9100
      Visible       = -1
      Width         = 12000
   End   'staInfo
   Begin MSComctlLib.TreeView tvwTree
      Appearance     = 1
      Enabled        = -1
      BeginProperty Font
         Name       = "Arial"
         Italic     = 0   'False
         Size       = 8
         Underline  = 0   'False
         Weight     = 400
      EndProperty
      Height         = 1200
      HelpContextID  = 0
      HideSelection  = 0
      Indentation    = 566.929
      LabelEdit      = 1
      Left           = 3200
      LineStyle      = 1
      MousePointer   = 0
      OLEDragMode    = 0
      OLEDropMode    = 0
      PathSeparator  = "\"
      Sorted         = 0
      Style          = 7
      TabIndex       = 10
      TabStop        = -1
      Tag            = ""
      ToolTipText    = ""
      Top            = 5900
      Visible        = -1
      Width          = 2000
   End   'tvwTree
   Begin MSAdodcLib.Adodc adoMain
      Appearance        = 1
      Enabled           = -1
      BackColor         = -2147483643
      BOFAction         = 0
      EOFAction         = 2
      Caption           = "Kunden 'ADO'"
      CacheSize         = 50
      CommandTimeout    = 30
      CommandType       = 8
      Connect           = "DSN=Shop"
      ConnectMode       = 3
      ConnectionTimeout = 15
      CursorLocation    = 3
      ForeColor         = 0
      Height            = 330
      HelpContextID     = 0
      Left              = 5300
      LockType          = 3
      MaxRecords        = 0
      Orientation       = 0
      OLEDBString       = ""
      OLEDBFile         = ""
      Password          = ""
      RecordSource      = "Orders"
      TabIndex          = 11
      TabStop           = 0
      Tag               = ""
      ToolTipText       = ""
      Top               = 5500
      UserName          = "sa"
      Visible           = -1
      Width             = 1800
   End   'adoMain
   Begin VB.Shape webPage
      BorderColor = 8
      BorderStyle = 1
      Height      = 1200
      Left        = 7300
      Tag         = "web"
      Top           = 5900
      Visible     = -1
      Width       = 3000
   End   'webPage
   Begin Slider sldBare
      Enabled       = -1
      Height        = 500
      Left          = 4800
      Top           = 4900
      Visible       = 0
      Width         = 1000
   End   'sldBare
   Begin VB.TextBox txtNote
      Alignment     = 0
      Appearance    = 0
      BackColor     = 16777215
      BorderStyle   = 0
      DataField     = "Note"
      DataSource    = "Adodc0"
      Enabled       = -1
      BeginProperty Font
         Name       = "Arial"
         Italic     = 0   'False
         Size       = 8
         Underline  = 0   'False
         Weight     = 400
      EndProperty
      ForeColor     = 0
      Height        = 285
      HelpContextID = 0
      Left          = 100
      Locked        = 0
      TabIndex      = 12
      TabStop       = -1
      Tag           = ""
      ToolTipText   = ""
      Top           = 7400
      Visible       = -1
      Width         = 1500
   End   'txtNote
   Begin VB.CheckBox chkDone
      Appearance    = 0
      DataSource    = "Adodc0"
      Enabled       = -1
      Height        = 240
      HelpContextId = 0
      Left          = 1700
      TabStop       = -1
      Tag           = ""
      ToolTipText   = ""
      Top           = 7400
      Visible       = -1
      Width         = 240
   End   'chkDone
End   ' Form 97 Gadgets
