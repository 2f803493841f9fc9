Sub xnd_Quarter()
Dim strSQL as String
   strSQL = "SELECT 1;  "
End Sub
