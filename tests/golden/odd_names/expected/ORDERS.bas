Sub ORDERS()
Dim strSQL as String
   strSQL = "SELECT 9;  "
End Sub
