Sub Sales_Q1__old_()
Dim strSQL as String
   strSQL = "SELECT 5;  "
End Sub
