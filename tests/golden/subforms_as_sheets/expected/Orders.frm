VERSION 5.00
Begin VB.Form Orders
   Appearance    = 0
   BackColor     = -2147483633
   Caption       = "Orders"
   ClientHeight  = 4420
   ClientLeft    = 60
   ClientTop     = 345
   ClientWidth   = 6000
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
      Top               = 4090
      Visible           = 0   ' False
      Width             = 1440
   End
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
         RecordSource      = "Order Details"
         Top               = 4090
         Visible           = 0   ' False
         Width             = 1440
      End   'Data2
      Begin MSAdodcLib.Adodc Adodc1
         Caption           = "Adodc1"
         CommandType       = 2
         Connect           = "Provider=Microsoft.Jet.OLEDB.4.0;Persist Security Info=False;Data Source=C:\Data\Orders.mdb"
         Height            = 330
         Left              = 2880
       RecordSource      = "Order Details"
         Top               = 4090
         Visible           = 0   ' False
         Width             = 1440
      End   'Adodc1
      Begin MSDataGridLib.DataGrid subDetails
         DataSource     = "Adodc1"
         Enabled        = -1
         Height         = 1500
         Left           = 100
         Top            = 900
         Visible        = -1
         Width          = 5500
      End   ' subDetails
      Begin VB.Data Data3
         Caption           = "Data3"
         Connect           = "Access 2000;"
         DatabaseName      = "Orders.mdb"
         DefaultCursorType = 0   ' DefaultCursor
         DefaultType       = 2   ' Use Jet DB engine
         Exclusive         = 0   ' False
         Height            = 330
         Left              = 4320
         Options           = 0
         ReadOnly          = 0   ' False
         RecordsetType     = 1   ' Dynaset
         RecordSource      = "SELECT Note FROM Remarks  WHERE Kind = 'A'"
         Top               = 4090
         Visible           = 0   ' False
         Width             = 1440
      End   'Data3
      Begin MSAdodcLib.Adodc Adodc2
         Caption           = "Adodc2"
         CommandType       = 1
         Connect           = "Provider=Microsoft.Jet.OLEDB.4.0;Persist Security Info=False;Data Source=C:\Data\Orders.mdb"
         Height            = 330
         Left              = 0
       RecordSource      = "SELECT Note FROM Remarks  WHERE Kind = 'A' ORDER BY NoteDate DESC"
         Top               = 4090
         Visible           = 0   ' False
         Width             = 1440
      End   'Adodc2
      Begin MSDataGridLib.DataGrid subRemarks
         DataSource     = "Adodc1"
         Enabled        = 0
         Height         = 1200
         Left           = 120
         Top            = 2600
         Visible        = -1
         Width          = 5400
      End   ' subRemarks
   Begin VB.TextBox txtID
      DataField     = "OrderID"
      DataSource    = "Data1"
      BeginProperty Font
      EndProperty
      Height        = 310
      Left          = 140
      Top           = 400
      Width         = 1000
   End   'txtID
End   ' Form Orders
