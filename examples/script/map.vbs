' Edits the extent and the legends of a map that is written in this script, and moves the map on the ground:
'   cscript //nologo map.vbs
Option Explicit

Class Ground
  Public Left
  Public Right
  Public Bottom
  Public Top

  Private Sub Class_Initialize
    Left = 0
    Right = 1000
    Bottom = 0
    Top = 500
  End Sub
End Class

Class Legend
  Public Title
  Public Visible
  Public Corner
  Public Framed
  Public TextSize

  Private Sub Class_Initialize
    Visible = True
    Corner = 0
    Framed = True
    TextSize = 10
  End Sub
End Class

Class Map
  Public Extent
  Private mLegends

  Private Sub Class_Initialize
    Set Extent = New Ground
    mLegends = Array(New Legend, New Legend)
    mLegends(0).Title = "Height"
    mLegends(1).Title = "Places"
  End Sub

  Public Property Get LayerCount
    LayerCount = 0
  End Property

  Public Function Layer(index)
    Set Layer = Nothing
  End Function

  Public Property Get LegendCount
    LegendCount = 2
  End Property

  Public Function Legend(index)
    Set Legend = mLegends(index)
  End Function
End Class

Dim dialogs, edited, result
Set dialogs = CreateObject("OrvexMapDialogs2.CCommonMapDialogs")
Set edited = New Map

result = dialogs.ShowCoordinates(edited, "Extent of a script")
WScript.Echo "Extent: " & result & " " & edited.Extent.Left & " " & edited.Extent.Right

' The second legend first.
result = dialogs.ShowLegends(edited, 1, "Legends of a script")
WScript.Echo "Legends: " & result & " " & edited.Legend(1).Title

' The top edge follows the other three.
result = dialogs.ShowGeoReference(edited)
WScript.Echo "Georeference: " & result & " " & edited.Extent.Left & " " & edited.Extent.Top

WScript.Echo "DONE"
WScript.Quit 9
