Version 5.0
Begin VB.Form frmBoatHireReports
   BorderStyle = 1        'Fixed Single
   Caption = "View Report"
   ClientHeight = 3195
   ClientLeft = 45
   ClientTop = 330
   ClientWidth = 4680
   LinkTopic = "Form1"
   MaxButton = 0           'False
   MinButton = -1          'True
   ScaleHeight = 3195
   ScaleWidth = 4680
   StartUpPosition = 3    'Windows Default
   Begin VB.CommandButton cmdViewReport
      Caption = "&View Report"
      Height = 495
      Left = 1440
      TabIndex = 0
      Top = 1080
      Width = 1335
   End
End
Private Sub cmdViewReport_Click()
   ' If a Report is based on a Parameter Query, type the required parameters. For example...
   ' DataEnvironment1.Command1_Grouping '1995/01/01', '1995/12/31'
   ' Uncomment the following line only for a Parameter Query...
   ' deOpen_Trips.BoatName_Grouping '1995/01/01', '1995/12/31'

   ' Uncomment the appropriate line to display the desired Report
   ' Trips_by_Boat.Show
   ' Open_Trips.Show
End Sub
