Sub Big_Orders()
Dim strSQL as String
   strSQL = "SELECT * FROM Orders;  "
End Sub

Sub Delete_Old_Orders()
Dim strSQL as String
   strSQL = "DELETE *  FROM Orders  WHERE Kind='old';  "
End Sub

