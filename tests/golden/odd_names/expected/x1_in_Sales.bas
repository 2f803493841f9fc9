Sub x1_in_Sales()
Dim strSQL as String
   strSQL = "SELECT 3;  "
End Sub
