VERSION 5.00
Begin VB.Form Form3
   Appearance    = 0
   BackColor     = 12632256
   BorderStyle   = 1
   Caption       = "New member"
   ClientHeight  = 11520
   ClientLeft    = 60
   ClientTop     = 345
   ClientWidth   = 7000
   Enabled       = -1
   HelpContextID = 0
   KeyPreview    = 0
   MaxButton     = 0
   MinButton     = 0
   Tag           = ""
   Begin VB.Data Data1
      Caption           = "Data1"
      Connect           = "Access 2000;"
      DatabaseName      = "Members.2001.mdb"
      DefaultCursorType = 0   ' DefaultCursor
      DefaultType       = 2   ' Use Jet DB engine
      Exclusive         = 0   ' False
      Height            = 330
      Left              = 0
      Options           = 0
      ReadOnly          = 0   ' False
      RecordsetType     = 1   ' Dynaset
      RecordSource      = "Members"
      Top               = 11190
      Visible           = 0   ' False
      Width             = 1440
   End
   Begin VB.OLE OLEUnbound0
      Appearance    = 0
      AutoActivate  = 2
      BackColor     = 16777215
      BorderStyle   = 1
      Class         = ""
      DisplayType   = 0
      Enabled       = -1
      Height        = 3000
      Left          = 120
      OLETypeAllowed= 2
      SizeMode      = 0
      TabIndex      = 0
      TabStop       = -1
      Tag           = ""
      Top           = 680
      Verb          = 0
      Visible       = -1
      Width         = 4000
   End   'OLEUnbound0
   Begin VB.CheckBox chkFee
      Appearance    = 1
      DataField     = "FeePaid"
      DataSource    = "Data1"
      Enabled       = -1
      Height        = 240
      HelpContextId = 14
      Left          = 4400
      TabStop       = -1
      Tag           = ""
      Top           = 1180
      Visible       = -1
      Width         = 260
   End   'chkFee
End   ' Form Form3
