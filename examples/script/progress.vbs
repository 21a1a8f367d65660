' Tells the progress of a long operation and lets the user cancel it:
'   cscript //nologo progress.vbs
Option Explicit

Dim progress, i, j, sum
Set progress = CreateObject("OrvexMapDialogs2.CCommonProgressDialog")
progress.Caption = "Tiles of a script"
progress.Init 0, 1000, 0
progress.Show

For i = 1 To 1000
  ' The work on a tile.
  For j = 1 To 5000
    sum = sum + Sqr(j)
  Next
  progress.Message = "Tile " & i & " of 1000"
  progress.Value = i
  ' Shown already, the window only takes its time to hear of the user.
  progress.Show
  If progress.CancelAction Then Exit For
Next

progress.Hide
WScript.Echo "Cancelled: " & progress.CancelAction
WScript.Echo "Told: " & (progress.Value = i And progress.Message = "Tile " & i & " of 1000")

On Error Resume Next
progress.Value = 1001
WScript.Echo "Refused: " & (Err.Number And 65535) & " " & Err.Description

WScript.Echo "DONE"
WScript.Quit 9
