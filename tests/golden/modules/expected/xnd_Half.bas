Sub Half()
' Reports!rptSales.Visible = True
' Reports!rptSales.Visible = True
End Sub 'done
End Sub

