Sub Umsatz_für_März()
Dim strSQL as String
   strSQL = "SELECT 6;  "
End Sub
