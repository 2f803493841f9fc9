Sub Query_01()
Dim strSQL as String
   strSQL = "SELECT 01 AS N;  "
End Sub

Sub Query_02()
Dim strSQL as String
   strSQL = "SELECT 02 AS N;  "
End Sub

Sub Query_03()
Dim strSQL as String
   strSQL = "SELECT 03 AS N;  "
End Sub

Sub Query_04()
Dim strSQL as String
   strSQL = "SELECT 04 AS N;  "
End Sub

Sub Query_05()
Dim strSQL as String
   strSQL = "SELECT 05 AS N;  "
End Sub

Sub Query_06()
Dim strSQL as String
   strSQL = "SELECT 06 AS N;  "
End Sub

Sub Query_07()
Dim strSQL as String
   strSQL = "SELECT 07 AS N;  "
End Sub

Sub Query_08()
Dim strSQL as String
   strSQL = "SELECT 08 AS N;  "
End Sub

Sub Query_09()
Dim strSQL as String
   strSQL = "SELECT 09 AS N;  "
End Sub

Sub Query_10()
Dim strSQL as String
   strSQL = "SELECT 10 AS N;  "
End Sub

Sub Query_11()
Dim strSQL as String
   strSQL = "SELECT 11 AS N;  "
End Sub

Sub Query_12()
Dim strSQL as String
   strSQL = "SELECT 12 AS N;  "
End Sub

Sub Query_13()
Dim strSQL as String
   strSQL = "SELECT 13 AS N;  "
End Sub

Sub Query_14()
Dim strSQL as String
   strSQL = "SELECT 14 AS N;  "
End Sub

Sub Query_15()
Dim strSQL as String
   strSQL = "SELECT 15 AS N;  "
End Sub

Sub Query_16()
Dim strSQL as String
   strSQL = "SELECT 16 AS N;  "
End Sub

Sub Query_17()
Dim strSQL as String
   strSQL = "SELECT 17 AS N;  "
End Sub

Sub Query_18()
Dim strSQL as String
   strSQL = "SELECT 18 AS N;  "
End Sub

Sub Query_19()
Dim strSQL as String
   strSQL = "SELECT 19 AS N;  "
End Sub

Sub Query_20()
Dim strSQL as String
   strSQL = "SELECT 20 AS N;  "
End Sub

Sub Query_21()
Dim strSQL as String
   strSQL = "SELECT 21 AS N;  "
End Sub

Sub Query_22()
Dim strSQL as String
   strSQL = "SELECT 22 AS N;  "
End Sub

Sub Query_23()
Dim strSQL as String
   strSQL = "SELECT 23 AS N;  "
End Sub

Sub Query_24()
Dim strSQL as String
   strSQL = "SELECT 24 AS N;  "
End Sub

Sub Query_25()
Dim strSQL as String
   strSQL = "SELECT 25 AS N;  "
End Sub

Sub Query_26()
Dim strSQL as String
   strSQL = "SELECT 26 AS N;  "
End Sub

Sub Query_27()
Dim strSQL as String
   strSQL = "SELECT 27 AS N;  "
End Sub

Sub Query_28()
Dim strSQL as String
   strSQL = "SELECT 28 AS N;  "
End Sub

Sub Query_29()
Dim strSQL as String
   strSQL = "SELECT 29 AS N;  "
End Sub

Sub Query_30()
Dim strSQL as String
   strSQL = "SELECT 30 AS N;  "
End Sub

Sub Query_31()
Dim strSQL as String
   strSQL = "SELECT 31 AS N;  "
End Sub

Sub Query_32()
Dim strSQL as String
   strSQL = "SELECT 32 AS N;  "
End Sub

Sub Query_33()
Dim strSQL as String
   strSQL = "SELECT 33 AS N;  "
End Sub

Sub Query_34()
Dim strSQL as String
   strSQL = "SELECT 34 AS N;  "
End Sub

Sub Query_35()
Dim strSQL as String
   strSQL = "SELECT 35 AS N;  "
End Sub

Sub Query_36()
Dim strSQL as String
   strSQL = "SELECT 36 AS N;  "
End Sub

Sub Query_37()
Dim strSQL as String
   strSQL = "SELECT 37 AS N;  "
End Sub

Sub Query_38()
Dim strSQL as String
   strSQL = "SELECT 38 AS N;  "
End Sub

Sub Query_39()
Dim strSQL as String
   strSQL = "SELECT 39 AS N;  "
End Sub

Sub Query_40()
Dim strSQL as String
   strSQL = "SELECT 40 AS N;  "
End Sub

Sub Query_41()
Dim strSQL as String
   strSQL = "SELECT 41 AS N;  "
End Sub

Sub Query_42()
Dim strSQL as String
   strSQL = "SELECT 42 AS N;  "
End Sub

Sub Query_43()
Dim strSQL as String
   strSQL = "SELECT 43 AS N;  "
End Sub

Sub Query_44()
Dim strSQL as String
   strSQL = "SELECT 44 AS N;  "
End Sub

Sub Query_45()
Dim strSQL as String
   strSQL = "SELECT 45 AS N;  "
End Sub

Sub Query_46()
Dim strSQL as String
   strSQL = "SELECT 46 AS N;  "
End Sub

Sub Query_47()
Dim strSQL as String
   strSQL = "SELECT 47 AS N;  "
End Sub

Sub Query_48()
Dim strSQL as String
   strSQL = "SELECT 48 AS N;  "
End Sub

Sub Query_49()
Dim strSQL as String
   strSQL = "SELECT 49 AS N;  "
End Sub

Sub Query_50()
Dim strSQL as String
   strSQL = "SELECT 50 AS N;  "
End Sub

Sub Query_51()
Dim strSQL as String
   strSQL = "SELECT 51 AS N;  "
End Sub

