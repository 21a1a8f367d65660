' Lets the user choose layer files, and asks for a file that is gone:
'   cscript //nologo files.vbs
Option Explicit

Dim dialogs, files, file, found, skipAll
Set dialogs = CreateObject("OrvexMapDialogs2.CCommonMapDialogs")

' The chosen paths come back in an array counted from 1.
If dialogs.ShowAddLayer(0, True, files) Then
  For Each file In files
    WScript.Echo "Chosen: " & file
  Next
Else
  WScript.Echo "Nothing chosen"
End If

' The outcome stands in the arguments; the result of the function is always False.
dialogs.ShowFileNotFound "C:\maps\gone.shp", found, skipAll
WScript.Echo "Missing: """ & found & """ " & skipAll

WScript.Echo "DONE"
WScript.Quit 9
