Sub Beta()
Dim strSQL as String
   strSQL = "SELECT 2;  "
End Sub

