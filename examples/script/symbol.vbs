' Has a character of a font and its angle chosen; what is chosen comes back in the variables:
'   cscript //nologo symbol.vbs
Option Explicit

Dim dialogs, fontName, character, rotation, changed, result
Set dialogs = CreateObject("OrvexMapDialogs2.CCommonMapDialogs")
fontName = "Symbols of a script"
character = 65
rotation = 0
changed = False

result = dialogs.ShowCharacterSelection(fontName, character, rotation, changed)
WScript.Echo "First: " & result & " " & changed & " " & fontName & " " & character & " " & rotation

' The second time on what was chosen the first time.
changed = False
result = dialogs.ShowCharacterSelection(fontName, character, rotation, changed)
WScript.Echo "Second: " & result & " " & changed & " " & fontName & " " & character & " " & rotation

WScript.Echo "DONE"
WScript.Quit 9
