Sub Gamma()
Dim strSQL as String
   strSQL = "SELECT 3;  "
End Sub
