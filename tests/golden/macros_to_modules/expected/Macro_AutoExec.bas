Option Explicit
'------------------------------------------------------------
' AutoExec
'
'------------------------------------------------------------
Function AutoExec()
On Error GoTo AutoExec_Err
Switchboard.Show '     DoCmd.OpenForm "Switchboard", acNormal, "", "", , acNormal
'     DoCmd.Maximize
AutoExec_Exit:
    Exit Function
AutoExec_Err:
    MsgBox Error$
    Resume AutoExec_Exit
End Function

