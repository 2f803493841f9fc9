VERSION 5.00
Begin VB.Form Orders
   Appearance    = 0
   BackColor     = -2147483633
   Caption       = "Orders"
   ClientHeight  = 5520
   ClientLeft    = 60
   ClientTop     = 345
   ClientWidth   = 9000
   Enabled       = -1
   Begin VB.Data Data1
      Caption           = "Data1"
      Connect           = "Access 2000;"
      DatabaseName      = "Orders.mdb"
      DefaultCursorType = 0   ' DefaultCursor
      DefaultType       = 2   ' Use Jet DB engine
      Exclusive         = 0   ' False
      Height            = 330
      Left              = 0
      Options           = 0
      ReadOnly          = 0   ' False
      RecordsetType     = 1   ' Dynaset
      RecordSource      = "Orders"
      Top               = 5190
      Visible           = 0   ' False
      Width             = 1440
   End
   Begin VB.TextBox txtID
      DataField     = "OrderID"
      DataSource    = "Data1"
      BeginProperty Font
      EndProperty
      Height        = 300
      Left          = 1500
      Top           = 500
      Width         = 1000
   End   'txtID
      Begin VB.Data Data2
         Caption           = "Data2"
         Connect           = "Access 2000;"
         DatabaseName      = "Orders.mdb"
         DefaultCursorType = 0   ' DefaultCursor
         DefaultType       = 2   ' Use Jet DB engine
         Exclusive         = 0   ' False
         Height            = 330
         Left              = 1440
         Options           = 0
         ReadOnly          = 0   ' False
         RecordsetType     = 1   ' Dynaset
         RecordSource      = "Order Lines"
         Top               = 5190
         Visible           = 0   ' False
         Width             = 1440
      End   'Data2
      Begin VB.PictureBox subLines
         Appearance    = 1
         Enabled       = -1
         Height        = 1800
         Left          = 200
         Top           = 1000
         Width         = 8000
         Begin VB.Label lblHead
            Caption       = "Lines"
            Enabled       = -1
            BeginProperty Font
            EndProperty
            Height        = 240
            Left          = 100
            Top           = 50
            Width         = 1200
         End   'lblHead
         Begin VB.TextBox txtID_Dup0
            DataField     = "OrderID"
            DataSource    = "Data1"
            BeginProperty Font
            EndProperty
            Height        = 300
            Left          = 110
            Top           = 720
            Width         = 1100
         End   'txtID_Dup0
         Begin VB.TextBox Line_Total
            DataField     = ""
            DataSource    = "Data1"
            BeginProperty Font
            EndProperty
            Height        = 300
            Left          = 1500
            Top           = 750
            Width         = 1300
         End   'Line_Total
      End   ' subLines
   Begin VB.PictureBox subNotes
      Height        = 1700
      Left          = 250
      Top           = 3000
      Width         = 7900
         Begin VB.TextBox txtID_Dup1
            DataField     = ""
            DataSource    = "Data1"
            BeginProperty Font
            EndProperty
            Height        = 300
            Left          = 120
            Top           = 220
            Width         = 1150
         End   'txtID_Dup1
         Begin VB.TextBox Line_Total_Dup1
            DataField     = ""
            DataSource    = "Data1"
            BeginProperty Font
            EndProperty
            Height        = 300
            Left          = 130
            Top           = 620
            Width         = 1160
         End   'Line_Total_Dup1
         Begin VB.TextBox Remark_Dup1
            DataField     = ""
            DataSource    = "Data1"
            BeginProperty Font
            EndProperty
            Height        = 300
            Left          = 140
            Top           = 1020
            Width         = 1170
         End   'Remark_Dup1
         Begin VB.TextBox txtNote
            DataField     = ""
            DataSource    = "Data1"
            BeginProperty Font
            EndProperty
            Height        = 300
            Left          = 150
            Top           = 1320
            Width         = 1180
         End   'txtNote
      End   ' subNotes
   Begin VB.TextBox Remark
      DataField     = "Remark"
      DataSource    = "Data1"
      BeginProperty Font
      EndProperty
      Height        = 310
      Left          = 200
      Top           = 4900
      Width         = 3000
   End   'Remark
End   ' Form Orders
