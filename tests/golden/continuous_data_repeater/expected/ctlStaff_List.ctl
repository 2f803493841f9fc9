VERSION 5.00
Begin VB.UserControl ctlStaff_List
   Appearance    = 0
   BackColor     = -2147483633
   ClientHeight  = 1020
   ClientLeft    = 60
   ClientTop     = 345
   ClientWidth   = 5000
   Enabled       = -1
   KeyPreview    = 0
   Begin VB.TextBox txtLastName
      DataField     = "LastName"
      BeginProperty Font
      EndProperty
      Height        = 310
      Left          = 100
      Top           = 350
      Width         = 1500
   End   'LastName
   Begin VB.Label lblHead
      Caption       = "Name"
      Enabled       = -1
      BeginProperty Font
      EndProperty
      Height        = 250
      Left          = 110
      Top           = 20
      Width         = 1400
   End   'lblHead
   Begin VB.CheckBox chkActive
      Height        = 230
      Left          = 1800
      Top           = 360
      Width         = 240
   End   'Active
   Begin VB.Label lblActive
      Caption       = "Active"
      Enabled       = -1
      BeginProperty Font
      EndProperty
      Height        = 240
      Left          = 2100
      Top           = 410
      Width         = 700
   End   'lblActive
   Begin VB.TextBox txtFull
      DataField     = ""
      BeginProperty Font
      EndProperty
      Height        = 320
      Left          = 2900
      Top           = 380
      Width         = 1000
   End   'txtFull
   Begin VB.ComboBox cboCountry
      DataField     = "Country"
      BeginProperty Font
      EndProperty
      Height        = 330
      Left          = 4000
      Top           = 390
      Width         = 900
   End   'Country
End   ' UserControl ctlStaff List

Attribute VB_Creatable = True
Attribute VB_Exposed = True


Sub txtLastName_Change()
   PropertyChanged "LastName"
End Sub
Public Property Get LastName() As Variant
   Attribute LastName.VB_MemberFlags = "14"
   LastName = txtLastName.Text
End Property
Public Property Let LastName(ByVal vNewValue As Variant)
   If CanPropertyChange("LastName") Then
      txtLastName.Text = vNewValue
      PropertyChanged "LastName"
   End If
End Property


Sub chkActive_Click()
   PropertyChanged "Active"
End Sub
Public Property Get Active() As Boolean
   Attribute Active.VB_MemberFlags = "14"
   Active = chkActive.Value = vbChecked
End Property
Public Property Let Active(ByVal vNewValue As Boolean)
   If CanPropertyChange("Active") Then
      chkActive.Value = IIf(vNewValue, vbChecked, vbUnChecked)
      PropertyChanged "Active"
   End If
End Property


Sub txttxtFull_Change()
   PropertyChanged "txtFull"
End Sub
Public Property Get txtFull() As Variant
   Attribute txtFull.VB_MemberFlags = "14"
   txtFull = txttxtFull.Text
End Property
Public Property Let txtFull(ByVal vNewValue As Variant)
   If CanPropertyChange("txtFull") Then
      txttxtFull.Text = vNewValue
      PropertyChanged "txtFull"
   End If
End Property


Sub cboCountry_Change()
   PropertyChanged "Country"
End Sub
Public Property Get Country() As Variant
   Attribute Country.VB_MemberFlags = "14"
   Country = cboCountry.Text
End Property
Public Property Let Country(ByVal vNewValue As Variant)
   If CanPropertyChange("Country") Then
      cboCountry.Text = vNewValue
      PropertyChanged "Country"
   End If
End Property

