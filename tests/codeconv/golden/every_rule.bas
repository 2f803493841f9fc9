Option Explicit
Public gstrUser As String
Private dbsCache As Database
' Private rstCache As Recordset
' Opens the orders of one customer.
Public Function OpenOrders(lngCustomer As Long) As Boolean
    Dim dbs As Database
'     Dim rst As Recordset
    Dim qdf As QueryDef
    On Error GoTo Err_OpenOrders
Screen.MousePointer = vbHourGlass '     DoCmd.HourGlass True
Set dbs = OpenDatabase("C:\d\x.mdb")   '
'     gstrUser = CurrentDb.Name
'     Set rst = dbs.OpenRecordset("SELECT * FROM Orders WHERE CustomerID = " & lngCustomer)
'     Set qdf = dbs.CreateQueryDef("qryTemp", "SELECT * FROM Orders")
'     dbs.Execute "UPDATE Orders SET Seen = True"
    rst.MoveNext
'     ' Delete the query again
'     dbs.QueryDefs.Delete "qryTemp"
'     SysCmd(acSysCmdSetStatus, "Working")
    If SysCmd(acSysCmdGetObjectState, acForm, "frmOrders") <> 0 Then
UnLoad frmOrders '         DoCmd.Close acForm, "frmOrders"
    End If
Order_List.Show '     DoCmd.OpenForm "Order List"
'     DoCmd.OpenForm gstrUser
'     ' DoCmd.OpenForm "frmOlder"
xnd_Field.SetFocus   '     DoCmd.GotoControl "2nd Field"
'     DoCmd.GotoControl strField
lstOrders.Requery   '     DoCmd.Requery "lstOrders"
End '    DoCmd.Requery "lstOrders"
'     DoCmd.Requery strList
End '    DoCmd.Requery strList
Screen.MousePointer = vbDefault '     DoCmd.HourGlass False
'     DoCmd.Beep
Beep '     DoCmd.Beep ' with a remark
'     DoCmd.RunSQL "UPDATE T SET A = 1"
'     Reports!rptOrders.Visible = True
'     Reports!rptOrders.Visible = True
    Me.Caption = "Orders"

    Me.txtTotal = Me!txtSum
    Me.txtTotal = Me.txtSum
    OpenOrders = True
Exit_OpenOrders:
    Exit Function
Err_OpenOrders:
    MsgBox Err.Description
    Resume Exit_OpenOrders
End Function

Sub SwitchDatabase(strPath As String)
'     CloseCurrentDatabase
'     Application.NewCurrentDatabase strPath
'     Application.OpenCurrentDatabase strPath
'     If True Then DoCmd.Quit
    MsgBox "Done"
End Sub

  END
BEGIN
    End Sub
