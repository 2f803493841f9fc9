Sub x005_Sales()
Dim strSQL as String
   strSQL = "PARAMETERS [Start Date] DateTime;  SELECT * FROM Sales  WHERE Kind = 'retail' AND SoldOn >= [Start Date];  "
End Sub
