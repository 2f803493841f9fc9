Sub Alpha()
Dim strSQL as String
   strSQL = "SELECT 1;  "
End Sub
