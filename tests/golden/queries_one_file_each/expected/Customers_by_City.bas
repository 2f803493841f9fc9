Sub Customers_by_City()
Dim strSQL as String
   strSQL = "SELECT Name, City  FROM Customers  WHERE City = 'Köln' AND Note <> ‘none’ AND Mark =  x    y;  "
End Sub
