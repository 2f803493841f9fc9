VERSION 5.00
Begin VB.Form Customer_Entry
   Appearance    = 1
   BackColor     = 12632256
   BorderStyle   = 2
   Caption       = "Kunden 'Müller' Erfassung"
   ClientHeight  = 3960
   ClientLeft    = 60
   ClientTop     = 345
   ClientWidth   = 9000
   Enabled       = -1
   HelpContextID = 1200
   KeyPreview    = -1
   MaxButton     = 3
   MinButton     = 3
   Tag           = ""
   Begin VB.Data Data1
      Caption           = "Data1"
      Connect           = "Access 2000;"
      DatabaseName      = "Kunden.mdb"
      DefaultCursorType = 0   ' DefaultCursor
      DefaultType       = 2   ' Use Jet DB engine
      Exclusive         = 0   ' False
      Height            = 330
      Left              = 0
      Options           = 0
      ReadOnly          = 0   ' False
      RecordsetType     = 1   ' Dynaset
      RecordSource      = "Customers"
      Top               = 3630
      Visible           = 0   ' False
      Width             = 1440
   End
   Begin VB.Label lblTitle
      Alignment     = 2
      Appearance    = 0
      BackColor     = 8421504
      BackStyle     = 0
      BorderStyle   = 0
      Caption       = "Kunden & 'Freunde'"
      Enabled       = -1
      BeginProperty Font
         Name       = "Arial"
         Italic     = -1  ' True
         Size       = 14
         Underline  = 0   'False
         Weight     = 700
      EndProperty
      ForeColor     = 16777215
      Height        = 400
      Left          = 60
      Tag           = "Titel "A""
      ToolTipText   = "  Titel 'A' "
      Top           = 90
      Visible       = -1
      Width         = 4000
   End   'lblTitle
   Begin VB.TextBox Customer_Name
      Alignment     = 0
      Appearance    = 1
      BackColor     = 16777215
      BorderStyle   = 1
      DataField     = "CustName"
      DataSource    = "Data1"
      Enabled       = -1
      BeginProperty Font
         Name       = "MS Sans Serif"
         Italic     = 0   'False
         Size       = 8.25
         Underline  = -1  'True
         Weight     = 400
      EndProperty
      ForeColor     = 0
      Height        = 285
      HelpContextID = 0
      Left          = 1500
      Locked        = 0
      TabIndex      = 0
      TabStop       = -1
      Tag           = ""
      Top           = 720
      Visible       = -1
      Width         = 3000
   End   'Customer_Name
   Begin VB.Label lblName
      Alignment     = 1
      Appearance    = 0
      BackColor     = 12632256
      BackStyle     = 1
      BorderStyle   = 1
      Caption       = "&Name:"
      Enabled       = -1
      BeginProperty Font
         Name       = "Arial"
      EndProperty
      ForeColor     = 0
      Height        = 285
      Left          = 120
      Tag           = ""
      ToolTipText   = ""
      Top           = 720
      Visible       = -1
      Width         = 1300
   End   'lblName
   Begin VB.TextBox txtTotal
      Alignment     = 1
      Appearance    = 0
      BorderStyle   = 4
      DataField     = ""
      DataSource    = "Data1"
      Enabled       = 0
      BeginProperty Font
         Name       = "Arial"
         Italic     = 0   'False
         Size       = 8
         Underline  = 0   'False
         Weight     = 400
      EndProperty
      ForeColor     = 255
      Height        = 285
      HelpContextID = 17
      Left          = 1500
      Locked        = -1
      TabIndex      = 1
      TabStop       = 0
      Tag           = "sum of 'both'"
      ToolTipText   = "  "
      Top           = 1200
      Visible       = 0
      Width         = 1200
   End   'txtTotal
   Begin VB.ComboBox cboCity
      DataField     = "City"
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
      Height        = 285
      HelpContextID = 0
      Left          = 1500
      TabStop       = -1
      Tag           = ""
      ToolTipText   = "Wähle 'Stadt'"
      Top           = 1680
      Visible       = -1
      Width         = 2000
   End   'cboCity
   Begin VB.CheckBox chkActive
      Appearance    = 1
      DataField     = "Active"
      DataSource    = "Data1"
      Enabled       = -1
      Height        = 240
      HelpContextId = 0
      Left          = 1500
      TabStop       = -1
      Tag           = ""
      ToolTipText   = ""
      Top           = 2100
      Visible       = -1
      Width         = 240
   End   'chkActive
   Begin VB.Label lblActive
      Alignment     = 0
      Appearance    = 0
      BackColor     = 12632256
      BackStyle     = 0
      BorderStyle   = 0
      Caption       = "aktiv"
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
      Left          = 1740
      Tag           = ""
      ToolTipText   = ""
      Top           = 2110
      Visible       = -1
      Width         = 900
   End   'lblActive
   Begin VB.Line linRule
      BorderColor = 255
      BorderStyle = 1
      X1          = 60
      Y1          = 560
      X2          = 8060
      Y2          = 560
      Visible     = -1
   End   'linRule
   Begin VB.Shape shpFrame
      BackColor   = 65535
      BackStyle   = 1
      BorderColor = 8388608
      BorderStyle = 1
      BorderWidth = 2
      Height      = 2000
      Left        = 60
      Tag         = "rahmen"
      Top           = 660
      Visible     = -1
      Width       = 4600
   End   'shpFrame
   Begin VB.Image imgLogo
      Appearance    = 1
      BorderStyle   = 1
      Enabled       = -1
      Height        = 480
      Left          = 8000
      Tag           = ""
      ToolTipText   = "Logo 'neu'"
      Top           = 60
      Visible       = -1
      Width         = 480
   End   'imgLogo
   Begin VB.ComboBox cboTitle
      DataField     = ""
      DataSource    = "Data1"
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
      Height        = 285
      HelpContextID = 0
      Left          = 60
      TabStop       = -1
      Tag           = ""
      ToolTipText   = ""
      Top           = 3510
      Visible       = -1
      Width         = 1000
   End   'cboTitle
   Begin VB.CommandButton cmdSave
      Cancel        = 0
      Caption       = "&Speichern 'jetzt'"
      Default       = -1
      Enabled       = -1
      BeginProperty Font
         Name       = "Arial"
         Italic     = 0   'False
         Size       = 8
         Underline  = 0   'False
         Weight     = 700
      EndProperty
      Height        = 320
      Left          = 4000
      TabStop       = -1
      Style         = 0
      Tag           = ""
      ToolTipText   = ""
      Top           = 3500
      Visible       = -1
      Width         = 1500
   End   'cmdSave
   Begin VB.CommandButton cmdHelp
      Cancel        = -1
      Caption       = "?"
      Default       = 0
      Enabled       = -1
      BeginProperty Font
      EndProperty
      Height        = 320
      Left          = 5600
      TabStop       = 0
      Tag           = ""
      ToolTipText   = "Hilfe"
      Top           = 3500
      Visible       = -1
      Width         = 400
   End   'cmdHelp
End   ' Form Customer Entry
Option Explicit
Private Sub Form_Initialize() 'Private Sub Form_Open(Cancel As Integer)
' Tarrowin: Load ComboBox items
   With cboCity
      .Text = "London"
      .AddItem "London"
      .AddItem "Paris"
      .AddItem "Köln"
   End With
   With cboTitle
      .AddItem ""Mr""
      .AddItem "Mrs"
   End With
    Me.Caption = "Erfassung"

' 
'     DoCmd.Maximize
End Sub

Private Sub cmdSave_Click()
    Dim dbs As Database
Set dbs = OpenDatabase("C:\Data\Kunden.mdb") '
    Me.txtTotal = Me!txtNet
    Me.txtTotal = Me.txtNet
'     Me.txtTotal = Me.txtNet
txtTotal.SetFocus   '     DoCmd.GotoControl "txtTotal"
cboCity.Refresh   '     DoCmd.Requery "cboCity"
End '    DoCmd.Requery "cboCity"
Order_List.Show '     DoCmd.OpenForm "Order List"
    MsgBox "Größe übernommen"
UnLoad Customer_Entry '     DoCmd.Close acForm, "Customer Entry"
Unload Me '    DoCmd.Close acForm, "Customer Entry"
End Sub

Private Sub lblTitle_DblClick()    ' As Integer)
'     DoCmd.Beep
End Sub

