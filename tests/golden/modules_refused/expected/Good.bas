Sub A()
End Sub

