Sub Big_Orders()
Dim strSQL as String
   strSQL = "SELECT * FROM Orders;  "
End Sub
