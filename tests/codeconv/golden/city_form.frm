(properties)
Private Sub Form_Initialize() 'Private Sub Form_Open(Cancel As Integer)
' Tarrowin: Load ComboBox items
   With cboCity
      .Text = "London"
      .AddItem "London"
      .AddItem "Paris"
   End With
UnLoad frmCity '     DoCmd.Close acForm, "frmCity"
Unload Me '    DoCmd.Close acForm, "frmCity"
End Sub

