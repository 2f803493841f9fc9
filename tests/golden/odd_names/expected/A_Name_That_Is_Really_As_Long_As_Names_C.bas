Sub A_Name_That_Is_Really_As_Long_As_Names_C()
Dim strSQL as String
   strSQL = "SELECT 7;  "
End Sub
