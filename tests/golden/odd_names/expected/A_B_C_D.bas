Sub A_B_C_D()
Dim strSQL as String
   strSQL = "SELECT 10;  "
End Sub
