Option Explicit
Function Print_Labels()
On Error GoTo Print_Labels_Err
    Beep
'     DoCmd.OpenReport "Labels", acNormal, "", ""
UnLoad Label_Setup '     DoCmd.Close acForm, "Label Setup"
Print_Labels_Exit:
    Exit Function
Print_Labels_Err:
    MsgBox Error$
    Resume Print_Labels_Exit
End Function

