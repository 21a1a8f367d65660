' Has layers chosen from a list, several and then one; their indexes come back in an array:
'   cscript //nologo lists.vbs
Option Explicit

Dim dialogs, layers, selected, result, i, text
Set dialogs = CreateObject("OrvexMapDialogs2.CCommonMapDialogs")
layers = Array("Roads", "  Rivers  ", "", "Relief")

' The list, whether several can be chosen, the place of the one that is selected at first, the title, and a question
' that is asked before the choice counts.
result = dialogs.ShowListSelection(layers, True, 2, "Layers of a script", True, "Remove these layers?", selected)
text = "Several: " & result
For i = 1 To result
  text = text & " " & selected(i)
Next
WScript.Echo text

result = dialogs.ShowListSelection(layers, False, 0, "Layer of a script", False, "", selected)
WScript.Echo "One: " & result & " " & selected(1) & " of " & UBound(selected)

WScript.Echo "DONE"
WScript.Quit 9
