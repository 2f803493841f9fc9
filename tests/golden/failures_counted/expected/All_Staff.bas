Sub All_Staff()
Dim strSQL as String
   strSQL = "SELECT * FROM Staff;  "
End Sub
