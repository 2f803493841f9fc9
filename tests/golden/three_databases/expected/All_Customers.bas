Sub All_Customers()
Dim strSQL as String
   strSQL = "SELECT Customers.*  FROM Customers;  "
End Sub
