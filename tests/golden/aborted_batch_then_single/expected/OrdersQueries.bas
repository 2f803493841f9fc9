Sub Alpha()
Dim strSQL as String
   strSQL = "SELECT 1;  "
End Sub

Sub Beta()
Dim strSQL as String
   strSQL = "SELECT 2;  "
End Sub

