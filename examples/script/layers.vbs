' Manages the layers of a map that is written in this script, then edits all settings of one of them:
'   cscript //nologo layers.vbs
Option Explicit

Class Layer
  Public Name
  Public Visible
  Public Source
  Public SymbolFont
  Public SymbolCharacter
  Public SymbolRotation
  Public SymbolSize

  Private Sub Class_Initialize
    Visible = True
    Source = ""
    SymbolFont = "Wingdings"
    SymbolCharacter = 108
    SymbolRotation = 0
    SymbolSize = 12
  End Sub
End Class

Class Map
  Private mLayers

  Private Sub Class_Initialize
    mLayers = Array()
  End Sub

  Public Sub Add(name)
    Dim added
    Set added = New Layer
    added.Name = name
    ReDim Preserve mLayers(UBound(mLayers) + 1)
    Set mLayers(UBound(mLayers)) = added
  End Sub

  ' Layers are numbered from 1.
  Public Property Get LayerCount
    LayerCount = UBound(mLayers) + 1
  End Property

  Public Function LayerName(index)
    LayerName = mLayers(index - 1).Name
  End Function

  Public Function Layer(index)
    Set Layer = mLayers(index - 1)
  End Function

  Public Function AddLayer(path, options)
    Add path
    Set AddLayer = mLayers(UBound(mLayers))
  End Function

  Public Function RemoveLayer(index)
    Dim i
    For i = index To UBound(mLayers)
      Set mLayers(i - 1) = mLayers(i)
    Next
    ReDim Preserve mLayers(UBound(mLayers) - 1)
    RemoveLayer = True
  End Function

  Public Function MoveLayerUp(index)
    MoveLayerUp = False
    If index > 1 Then
      Exchange index - 2, index - 1
      MoveLayerUp = True
    End If
  End Function

  Public Function MoveLayerDown(index)
    MoveLayerDown = False
    If index <= UBound(mLayers) Then
      Exchange index - 1, index
      MoveLayerDown = True
    End If
  End Function

  Public Function Names
    Dim i
    Names = ""
    For i = 1 To LayerCount
      Names = Names & " " & LayerName(i)
    Next
  End Function

  Private Sub Exchange(one, other)
    Dim kept
    Set kept = mLayers(one)
    Set mLayers(one) = mLayers(other)
    Set mLayers(other) = kept
  End Sub
End Class

Class Layers
  Public Name
  Public Map
End Class

Dim dialogs, edited, all, result
Set dialogs = CreateObject("OrvexMapDialogs2.CCommonMapDialogs")
Set edited = New Map
edited.Add "Roads"
edited.Add "Rivers"
edited.Add "Relief"
Set all = New Layers
all.Name = "Layers of a script"
Set all.Map = edited

result = dialogs.Show(all, 0, "Manager of a script")
WScript.Echo "Layers: " & result & edited.Names

result = dialogs.Show(edited.Layer(1), 0, "Settings of a script")
WScript.Echo "Settings: " & result & edited.Names

WScript.Echo "DONE"
WScript.Quit 9
