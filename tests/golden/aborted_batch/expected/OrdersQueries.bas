Sub Alpha()
Dim strSQL as String
   strSQL = "SELECT 1;  "
End Sub

Sub Alpha()
Dim strSQL as String
   strSQL = "SELECT 1;  "
End Sub

Sub Gamma()
Dim strSQL as String
   strSQL = "SELECT 3;  "
End Sub

