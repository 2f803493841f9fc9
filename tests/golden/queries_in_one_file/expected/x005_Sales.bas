Sub x005_Sales()
Dim strSQL as String
   strSQL = "SELECT * FROM Sales;  "
End Sub
