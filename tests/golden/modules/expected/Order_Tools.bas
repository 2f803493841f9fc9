Option Explicit
Sub ShowOrders()
    Dim dbs As Database
'     Dim rst As Recordset
Set dbs = OpenDatabase("C:\Data\Orders.mdb")   '
'     Set rst = dbs.OpenRecordset("Orders")
'     strName = CurrentDb.Name
    If rst.EOF Then MsgBox "none"
Screen.MousePointer = vbHourGlass '     DoCmd.HourGlass True
Order_List.Show '     DoCmd.OpenForm "Order List"
lstOrders.Requery   '     DoCmd.Requery "lstOrders"
End '    DoCmd.Requery "lstOrders"
'     DoCmd.Hourglass False
End Sub

