Sub Orders()
Dim strSQL as String
   strSQL = "SELECT 8;  "
End Sub
