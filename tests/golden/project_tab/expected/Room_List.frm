VERSION 5.00
Begin VB.Form Room_List
   Appearance    = 0
   BackColor     = 16777215
   BorderStyle   = 2
   Caption       = "Rooms"
   ClientHeight  = 1020
   ClientLeft    = 60
   ClientTop     = 345
   ClientWidth   = 3000
   Enabled       = -1
   HelpContextID = 0
   KeyPreview    = 0
   MaxButton     = 3
   MinButton     = 3
   Tag           = ""
   Begin VB.Data Data1
      Caption           = "Data1"
      Connect           = "Access 2000;"
      DatabaseName      = "Hotel.mdb"
      DefaultCursorType = 0   ' DefaultCursor
      DefaultType       = 2   ' Use Jet DB engine
      Exclusive         = 0   ' False
      Height            = 330
      Left              = 0
      Options           = 0
      ReadOnly          = 0   ' False
      RecordsetType     = 1   ' Dynaset
      RecordSource      = "Rooms"
      Top               = 690
      Visible           = 0   ' False
      Width             = 1440
   End
   Begin VB.TextBox txtRoom
      Alignment     = 1
      Appearance    = 1
      BackColor     = 16777215
      BorderStyle   = 1
      DataField     = "RoomNo"
      DataSource    = "Data1"
      Enabled       = -1
      BeginProperty Font
      EndProperty
      ForeColor     = 0
      Height        = 300
      HelpContextID = 0
      Left          = 100
      Locked        = 0
      TabIndex      = 0
      TabStop       = -1
      Tag           = ""
      Top           = 550
      Visible       = -1
      Width         = 900
   End   'txtRoom
End   ' Form Room List
