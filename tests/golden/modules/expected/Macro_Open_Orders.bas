Function Open_Orders()
'     DoCmd.Beep
End Function

