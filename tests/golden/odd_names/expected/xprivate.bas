Sub xprivate()
Dim strSQL as String
   strSQL = "SELECT 2;  "
End Sub
