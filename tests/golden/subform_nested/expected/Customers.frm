VERSION 5.00
Begin VB.Form Customers
   Appearance    = 0
   BackColor     = -2147483633
   Caption       = "Customers"
   ClientHeight  = 5120
   ClientLeft    = 60
   ClientTop     = 345
   ClientWidth   = 4000
   Enabled       = -1
   Begin VB.Data Data1
      Caption           = "Data1"
      Connect           = "Access 2000;"
      DatabaseName      = "Customers.mdb"
      DefaultCursorType = 0   ' DefaultCursor
      DefaultType       = 2   ' Use Jet DB engine
      Exclusive         = 0   ' False
      Height            = 330
      Left              = 0
      Options           = 0
      ReadOnly          = 0   ' False
      RecordsetType     = 1   ' Dynaset
      RecordSource      = "Customers"
      Top               = 4790
      Visible           = 0   ' False
      Width             = 1440
   End
      Begin VB.Data Data2
         Caption           = "Data2"
         Connect           = "Access 2000;"
         DatabaseName      = "Customers.mdb"
         DefaultCursorType = 0   ' DefaultCursor
         DefaultType       = 2   ' Use Jet DB engine
         Exclusive         = 0   ' False
         Height            = 330
         Left              = 1440
         Options           = 0
         ReadOnly          = 0   ' False
         RecordsetType     = 1   ' Dynaset
         RecordSource      = "Orders"
         Top               = 4790
         Visible           = 0   ' False
         Width             = 1440
      End   'Data2
      Begin VB.PictureBox subOrders
         Height        = 4200
         Left          = 100
         Top           = 200
         Width         = 3800
         Begin VB.TextBox txtOrder
            DataField     = "OrderID"
            DataSource    = "Data1"
            BeginProperty Font
            EndProperty
            Height        = 300
            Left          = 130
            Top           = 520
            Width         = 1000
         End   'txtOrder
      Begin VB.Data Data3
         Caption           = "Data3"
         Connect           = "Access 2000;"
         DatabaseName      = "Customers.mdb"
         DefaultCursorType = 0   ' DefaultCursor
         DefaultType       = 2   ' Use Jet DB engine
         Exclusive         = 0   ' False
         Height            = 330
         Left              = 0
         Options           = 0
         ReadOnly          = 0   ' False
         RecordsetType     = 1   ' Dynaset
         RecordSource      = "Lines"
         Top               = 4790
         Visible           = 0   ' False
         Width             = 1440
      End   'Data3
      Begin VB.PictureBox subLines
         Height        = 1500
         Left          = 140
         Top           = 1420
         Width         = 3000
         Begin VB.TextBox txtQty_Dup1
            DataField     = "Qty"
            DataSource    = "Data1"
            BeginProperty Font
            EndProperty
            Height        = 300
            Left          = 160
            Top           = 870
            Width         = 1200
         End   'txtQty_Dup1
      End   ' subOrders
         Begin VB.TextBox txtTotal_Dup2
            DataField     = ""
            DataSource    = "Data1"
            BeginProperty Font
            EndProperty
            Height        = 300
            Left          = 150
            Top           = 3220
            Width         = 1100
         End   'txtTotal_Dup2
      End   ' subOrders
   Begin VB.TextBox City
      DataField     = "City"
      DataSource    = "Data1"
      BeginProperty Font
      EndProperty
      Height        = 300
      Left          = 120
      Top           = 4600
      Width         = 2000
   End   'City
End   ' Form Customers
