VERSION 5.00
Begin VB.Form Parts_Book
   Appearance    = 0
   BackColor     = -2147483633
   Caption       = "Parts"
   ClientHeight  = 4620
   ClientLeft    = 60
   ClientTop     = 345
   ClientWidth   = 6000
   Enabled       = -1
   Begin VB.Data Data1
      Caption           = "Data1"
      Connect           = "Access 2000;"
      DatabaseName      = "Parts.mdb"
      DefaultCursorType = 0   ' DefaultCursor
      DefaultType       = 2   ' Use Jet DB engine
      Exclusive         = 0   ' False
      Height            = 330
      Left              = 0
      Options           = 0
      ReadOnly          = 0   ' False
      RecordsetType     = 1   ' Dynaset
      RecordSource      = "Parts"
      Top               = 4290
      Visible           = 0   ' False
      Width             = 1440
   End
   Begin TabDlg.SSTab tabMain
      Enabled       = -1
      BeginProperty Font
      EndProperty
      Height        = 2400
      Left          = 300
      Style         = 1
      Top           = 900
      Width         = 2800
      TabHeight     = 0
      TabMaxWidth   = 0
      Tabs          = 2
      TabsPerRow    = 2
      TabCaption(0) = "General"
      Tab(0).ControlEnabled= -1   'True
      Tab(0).Control(0)= "txtName"
      Tab(0).Control(0).Enabled= 0
      Tab(0).ControlCount= 1
      TabCaption(1) = "Items"
      Tab(1).ControlEnabled= 0   'False
      Tab(1).Control(0)= "subItems"
      Tab(1).Control(0).Enabled= 0
      Tab(1).Control(1)= "lblItems"
      Tab(1).Control(1).Enabled= 0
      Tab(1).ControlCount= 2
      Begin VB.TextBox txtName
         DataField     = "PartName"
         DataSource    = "Data1"
         BeginProperty Font
         EndProperty
         Height        = 300
         Left          = 1500
         Top           = 500
         Width         = 1000
      End   'txtName
      Begin VB.Data Data2
         Caption           = "Data2"
         Connect           = "Access 2000;"
         DatabaseName      = "Parts.mdb"
         DefaultCursorType = 0   ' DefaultCursor
         DefaultType       = 2   ' Use Jet DB engine
         Exclusive         = 0   ' False
         Height            = 330
         Left              = 60
         Options           = 0
         ReadOnly          = 0   ' False
         RecordsetType     = 1   ' Dynaset
         RecordSource      = "Item Rows"
         Top               = 4320
         Visible           = 0   ' False
         Width             = 1440
      End   'Data2
      Begin VB.PictureBox subItems
         Height        = 1200
         Left          = -74800
         Top           = 700
         Width         = 2400
         Begin VB.TextBox txtItem
            DataField     = "Item"
            DataSource    = "Data1"
            BeginProperty Font
            EndProperty
            Height        = 300
            Left          = 700
            Top           = 110
            Width         = 1050
         End   'txtItem
      End   ' subItems
         Begin VB.Label lblItems
            Caption       = "Items"
            Enabled       = -1
            BeginProperty Font
            EndProperty
            Height        = 240
            Left          = -74780
            Top           = 440
            Width         = 900
         End   'lblItems
   End   ' Tab Control
End   ' Form Parts Book
