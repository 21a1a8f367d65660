' Edits the classes and the special values of a data object that is written in this script:
'   cscript //nologo data.vbs
Option Explicit

Class SpecialValue
  Public Color
  Public Enabled
  Public InLegend
  Public UpperBound
  Public LowerBound
  Public TextValue
  Public Transparent

  Private Sub Class_Initialize
    Color = RGB(255, 255, 192)
    Enabled = True
    InLegend = False
    UpperBound = 0
    LowerBound = 0
    TextValue = ""
    Transparent = True
  End Sub
End Class

Class DataOfScript
  Public ClassCount
  Public ValueFormat
  Public ShowParameterName
  Public ClassifyMethod
  Public NumberOfClasses
  Public MinValue
  Public MaxValue
  Public StepSize
  Public OutsideAsMissing
  Public LegendStyle
  Public FirstClassSize
  Public LastClassSize
  Public MissingValue
  Public ZeroValue
  Public NoDataValue

  Private Sub Class_Initialize
    ClassCount = 4
    ValueFormat = "0.0"
    ShowParameterName = False
    ClassifyMethod = 0
    NumberOfClasses = 4
    MinValue = 0
    MaxValue = 100
    StepSize = 25
    OutsideAsMissing = False
    LegendStyle = 0
    FirstClassSize = 2
    LastClassSize = 40
    Set MissingValue = New SpecialValue
    Set ZeroValue = New SpecialValue
    Set NoDataValue = New SpecialValue
  End Sub
End Class

Dim dialogs, edited, result, isDirty
Set dialogs = CreateObject("OrvexMapDialogs2.CCommonMapDialogs")
Set edited = New DataOfScript

' The flag lets the user change the number of classes.
isDirty = False
result = dialogs.ShowDataClassify(edited, 0, 250, &H20, isDirty)
WScript.Echo "Classes: " & result & " " & isDirty & " " & edited.NumberOfClasses & " " & edited.MaxValue

result = dialogs.ShowDataOptions(edited)
WScript.Echo "Options: " & result & " " & edited.ZeroValue.LowerBound & " " & edited.ZeroValue.UpperBound

WScript.Echo "DONE"
WScript.Quit 9
