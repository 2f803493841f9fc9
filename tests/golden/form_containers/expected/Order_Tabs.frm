VERSION 5.00
Begin VB.Form Order_Tabs
   Appearance    = 1
   BackColor     = -2147483633
   BorderStyle   = 1
   Caption       = "   "
   ClientHeight  = 6320
   ClientLeft    = 60
   ClientTop     = 345
   ClientWidth   = 15360
   Enabled       = -1
   KeyPreview    = 0
   MaxButton     = 0
   MinButton     = 0
   Tag           = "pages '3'"
   Begin VB.Data Data1
      Caption           = "Data1"
      Connect           = "Access"
      DatabaseName      = "Orders.mdb"
      DefaultCursorType = 0   ' DefaultCursor
      DefaultType       = 2   ' Use Jet DB engine
      Exclusive         = 0   ' False
      Height            = 330
      Left              = 0
      Options           = 0
      ReadOnly          = 0   ' False
      RecordsetType     = 1   ' Dynaset
      RecordSource      = "SELECT * FROM Orders  WHERE Country = 'UK';"
      Top               = 5990
      Visible           = 0   ' False
      Width             = 1440
   End
   Begin VB.Label lblFoot
      Alignment     = 0
      Appearance    = 0
      BackColor     = 255
      BackStyle     = 0
      BorderStyle   = 0
      Caption       = "Bestellungen"
      Enabled       = -1
      BeginProperty Font
         Name       = "Arial"
         Italic     = 0   'False
         Size       = 10
         Underline  = -1  'True
         Weight     = 400
      EndProperty
      ForeColor     = 0
      Height        = 300
      Left          = 100
      Tag           = ""
      ToolTipText   = ""
      Top           = 5600
      Visible       = -1
      Width         = 3000
   End   'lblFoot
   Begin TabDlg.SSTab tabMain
      Enabled       = -1
      BeginProperty Font
         Name       = "Arial"
         Italic     = 0   'False
         Size       = 8
         Underline  = 0   'False
         Weight     = 400
      EndProperty
      Height        = 2400
      HelpContextID = 7
      Left          = 300
      Style         = 1
      TabIndex      = 0
      TabStop       = -1
      Tag           = ""
      Top           = 900
      Visible       = -1
      Width         = 6000
      TabHeight     = 0
      TabMaxWidth   = 0
      Tabs          = 3
      TabsPerRow    = 3
      TabCaption(0) = "Übersicht"
      Tab(0).ControlEnabled= -1   'True
      Tab(0).Control(0)= "txtOrder"
      Tab(0).Control(0).Enabled= 0
      Tab(0).Control(1)= "lblOrder"
      Tab(0).Control(1).Enabled= 0
      Tab(0).Control(2)= "chkPaid"
      Tab(0).Control(2).Enabled= 0
      Tab(0).Control(3)= "lblPaid"
      Tab(0).Control(3).Enabled= 0
      Tab(0).ControlCount= 4
      Tab(1).ControlCount= 0
      TabCaption(2) = "pgMore"
      Tab(2).ControlEnabled= 0   'False
      Tab(2).Control(0)= "grpShip"
      Tab(2).Control(0).Enabled= 0
      Tab(2).Control(1)= "cmdTrack"
      Tab(2).Control(1).Enabled= 0
      Tab(2).ControlCount= 2
      Begin VB.TextBox txtOrder
         Alignment     = 0
         Appearance    = 1
         BackColor     = 16777215
         BorderStyle   = 1
         DataField     = "OrderID"
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
         Left          = 1500
         Locked        = 0
         TabIndex      = 0
         TabStop       = -1
         Tag           = ""
         ToolTipText   = ""
         Top           = 500
         Visible       = -1
         Width         = 2000
      End   'txtOrder
      Begin VB.Label lblOrder
         Alignment     = 0
         Appearance    = 0
         BackColor     = 16777215
         BackStyle     = 1
         BorderStyle   = 1
         Caption       = "Order 'No.'"
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
         Left          = 200
         Tag           = ""
         ToolTipText   = ""
         Top           = 500
         Visible       = -1
         Width         = 1200
      End   'lblOrder
      Begin VB.CheckBox chkPaid
         Appearance    = 0
         DataField     = ""
         DataSource    = "Data1"
         Enabled       = -1
         Height        = 240
         HelpContextId = 0
         Left          = 1500
         TabStop       = -1
         Tag           = ""
         ToolTipText   = ""
         Top           = 900
         Visible       = -1
         Width         = 240
      End   'chkPaid
      Begin VB.Label lblPaid
         Alignment     = 0
         Appearance    = 0
         BackColor     = 16777215
         BackStyle     = 1
         BorderStyle   = 0
         Caption       = "Bezahlt"
         Enabled       = -1
         BeginProperty Font
            Name       = "Arial"
            Italic     = 0   'False
            Size       = 8
            Underline  = 0   'False
            Weight     = 400
         EndProperty
         ForeColor     = 0
         Height        = 240
         Left          = 1800
         Tag           = ""
         ToolTipText   = ""
         Top           = 1000
         Visible       = -1
         Width         = 800
      End   'lblPaid
      Begin VB.Frame grpShip
         Appearance    = 1
         BackColor     = 16777215
         Enabled       = -1
         HelpContextID = 0
         Height        = 1320
         Left          = -74700
         TabIndex      = 0
         Tag           = ""
         ToolTipText   = ""
         Top           = 380
         Visible       = -1
         Width         = 2500
      Begin VB.Label lblShip
         Alignment     = 0
         Appearance    = 0
         BackColor     = 16777215
         BackStyle     = 1
         BorderStyle   = 0
         Caption       = "Versand"
         Enabled       = -1
         BeginProperty Font
            Name       = "Arial"
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
         Top           = 0
         Visible       = -1
         Width         = 900
      End   'lblShip
      Begin VB.OptionButton optAir
         Appearance    = 1
         Enabled       = -1
         Height        = 240
         HelpContextId = 0
         Left          = 200
         Tag           = ""
         ToolTipText   = ""
         Top           = 320
         Value         = 1
         Visible       = -1
         Width         = 240
      End   'optAir
      Begin VB.Label lblAir
         Alignment     = 0
         Appearance    = 0
         BackColor     = 16777215
         BackStyle     = 1
         BorderStyle   = 0
         Caption       = "Luft"
         Enabled       = -1
         BeginProperty Font
            Name       = "Arial"
            Italic     = 0   'False
            Size       = 8
            Underline  = 0   'False
            Weight     = 400
         EndProperty
         ForeColor     = 0
         Height        = 240
         Left          = 500
         Tag           = ""
         ToolTipText   = ""
         Top           = 300
         Visible       = -1
         Width         = 800
      End   'lblAir
   End   ' Frame grpShip
      Begin VB.Label lblAir
         Alignment     = 0
         Appearance    = 0
         BackColor     = 16777215
         BackStyle     = 1
         BorderStyle   = 0
         Caption       = "Luft"
         Enabled       = -1
         BeginProperty Font
            Name       = "Arial"
            Italic     = 0   'False
            Size       = 8
            Underline  = 0   'False
            Weight     = 400
         EndProperty
         ForeColor     = 0
         Height        = 240
         Left          = 500
         Tag           = ""
         ToolTipText   = ""
         Top           = 300
         Visible       = -1
         Width         = 800
      End   'lblAir
      Begin VB.CommandButton cmdTrack
         Cancel        = 0
         Caption       = "Suchen"
         Default       = 0
         Enabled       = -1
         BeginProperty Font
            Name       = "Arial"
            Italic     = -1  ' True
            Size       = 8
            Underline  = 0   'False
            Weight     = 400
         EndProperty
         Height        = 360
         Left          = -71800
         TabStop       = -1
         Style         = 0
         Tag           = ""
         ToolTipText   = ""
         Top           = 600
         Visible       = -1
         Width         = 1200
      End   'cmdTrack
   End   ' Tab Control
   Begin VB.Frame grpPay
      Appearance    = 0
      BackColor     = -2147483633
      Enabled       = -1
      HelpContextID = 3
      Height        = 1620
      Left          = 300
      TabIndex      = 1
      Tag           = "group "x""
      ToolTipText   = ""
      Top           = 3380
      Visible       = -1
      Width         = 3000
      Begin VB.Label lblPay
         Alignment     = 0
         Appearance    = 0
         BackColor     = -2147483633
         BackStyle     = 0
         BorderStyle   = 0
         Caption       = "Zahlung"
         Enabled       = -1
         BeginProperty Font
            Name       = "Arial"
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
         Top           = 0
         Visible       = -1
         Width         = 900
      End   'lblPay
      Begin VB.OptionButton optCash
         Appearance    = 1
         Enabled       = -1
         Height        = 240
         HelpContextId = 0
         Left          = 200
         Tag           = ""
         ToolTipText   = ""
         Top           = 420
         Value         = 7
         Visible       = -1
         Width         = 240
      End   'optCash
      Begin VB.Label lblCash
         Alignment     = 0
         Appearance    = 0
         BackColor     = 16777215
         BackStyle     = 1
         BorderStyle   = 0
         Caption       = "bar"
         Enabled       = -1
         BeginProperty Font
            Name       = "Arial"
            Italic     = 0   'False
            Size       = 8
            Underline  = 0   'False
            Weight     = 400
         EndProperty
         ForeColor     = 0
         Height        = 240
         Left          = 500
         Tag           = ""
         ToolTipText   = ""
         Top           = 0
         Visible       = -1
         Width         = 800
      End   'lblCash
      Begin VB.CommandButton tglCard
         Caption       = "'Karte'"
         Enabled       = 0
         BeginProperty Font
            Name       = "Arial"
            Italic     = 0   'False
            Size       = 8
            Underline  = 0   'False
            Weight     = 400
         EndProperty
         Height        = 300
         Left          = 0
         Style         = 0
         Tag           = ""
         ToolTipText   = ""
         Top           = 820
         Visible       = -1
         Width         = 900
      End   'tglCard
      Begin VB.CheckBox chkLater
         Appearance    = 1
         Enabled       = -1
         Height        = 240
         HelpContextId = 0
         Left          = 200
         Tag           = ""
         ToolTipText   = "später"
         Top           = 1220
         Visible       = -1
         Width         = 240
      End   'chkLater
   End   ' Frame grpPay
   Begin VB.Frame grpEmpty
      Appearance    = 1
      BackColor     = 8421504
      Enabled       = 0
      HelpContextID = 0
      Height        = 420
      Left          = 4000
      TabIndex      = 0
      Tag           = ""
      ToolTipText   = "leer"
      Top           = 0
      Visible       = -1
      Width         = 1000
   End   'grpEmpty
   Begin VB.OptionButton optLone
      Appearance    = 1
      Enabled       = -1
      Height        = 240
      HelpContextId = 0
      Left          = 4000
      Tag           = ""
      ToolTipText   = ""
      TabStop       = -1
      Top           = 3500
      Visible       = -1
      Width         = 240
   End   'optLone
   Begin MSDBCtls.DBCombo cboCustomer
      DataSource    = "Data1"
      RowSource     = "Data1"
      ListField     = "CompanyName"
      DataField     = "CustomerID"
      BoundColumn   = "CustomerID"
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
      Left          = 4000
      TabStop       = -1
      Tag           = ""
      ToolTipText   = ""
      Top           = 3900
      Visible       = -1
      Width         = 2000
   End   'cboCustomer
   Begin MSDBCtls.DBCombo cboCountry
      DataSource    = "Data1"
      RowSource     = "Data1"
      BoundColumn   = "Country"
      Appearance    = 0
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
      Left          = 4000
      TabStop       = -1
      Tag           = ""
      ToolTipText   = ""
      Top           = 4300
      Visible       = -1
      Width         = 2000
   End   'cboCountry
   Begin MSDBCtls.DBList lstShipper
      DataSource    = "Data1"
      RowSource     = "Data1"
      ListField     = ""
      DataField     = "ShipName"
      BoundColumn   = "ShipName"
      Appearance    = 1
      BackColor     = 16777215
      Columns       = 2
      Enabled       = -1
      BeginProperty Font
         Name       = "Arial"
         Italic     = 0   'False
         Size       = 8
         Underline  = 0   'False
         Weight     = 400
      EndProperty
      Height        = 900
      HelpContextID = 0
      Left          = 6500
      MultiSelect   = 0
      TabStop       = -1
      Tag           = ""
      ToolTipText   = ""
      Top           = 3500
      Visible       = -1
      Width         = 2000
   End   'lstShipper
   Begin MSDBCtls.DBList lstFields
      DataSource    = "Data1"
      RowSource     = "Data1"
      Appearance    = 0
      BackColor     = 16777215
      Columns       = 1
      Enabled       = -1
      BeginProperty Font
         Name       = "Arial"
         Italic     = 0   'False
         Size       = 8
         Underline  = 0   'False
         Weight     = 400
      EndProperty
      Height        = 900
      HelpContextID = 0
      Left          = 6500
      MultiSelect   = 2
      TabStop       = 0
      Tag           = ""
      ToolTipText   = ""
      Top           = 4500
      Visible       = -1
      Width         = 2000
   End   'lstFields
End   ' Form Order Tabs
