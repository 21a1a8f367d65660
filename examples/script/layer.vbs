' Edits a layer that is written in this script, with a language and a call-back of the script's own:
'   cscript //nologo layer.vbs
' Every object is known to the dialogs by the names of its members.
Option Explicit

Class Layer
  Public Name
  Public Visible
  Public Source
  Public SymbolFont
  Public SymbolCharacter
  Public SymbolRotation
  Public SymbolSize
  Public ShowLabels
  Public Content
  Public Position
  Public LabelFont
  Public LabelRotation

  Private Sub Class_Initialize
    Name = "Relief"
    Visible = True
    Source = "relief.bil"
    SymbolFont = "Wingdings"
    SymbolCharacter = 108
    SymbolRotation = 0
    SymbolSize = 12
    ShowLabels = False
    Content = 0
    Position = 4
    LabelRotation = 0
    Set LabelFont = New FontOfLabels
  End Sub
End Class

Class FontOfLabels
  Public Name
  Public Size
  Public Bold
  Public Italic
  Public Underline
  Public Strikethrough
  Public Color

  Private Sub Class_Initialize
    Name = "Tahoma"
    Size = 9
    Bold = False
    Italic = False
    Underline = False
    Strikethrough = False
    Color = 0
  End Sub
End Class

' Translates two captions; all others stay as they are.
Class Language
  Public Property Get EntryCount
    EntryCount = 2
  End Property

  Public Function TranslateText(key)
    Select Case key
      Case "&Cancel"
        TranslateText = "&Abbrechen"
      Case "Layer Properties"
        TranslateText = "Eigenschaften"
      Case Else
        TranslateText = key
        If Left(key, 1) = "_" Then TranslateText = ""
    End Select
  End Function

  Public Sub TranslateForm(form)
    Dim i, control
    For i = 0 To form.Controls.Count - 1
      Set control = form.Controls.Item(i)
      control.Caption = TranslateText(control.Caption)
    Next
  End Sub
End Class

Class CallBack
  Public Function RegisterNotify
    RegisterNotify = 0
  End Function

  Public Sub ApplyNotify(changed)
    WScript.Echo "Apply: " & changed
  End Sub

  Public Sub CancelNotify(changed)
    WScript.Echo "Cancel: " & changed
  End Sub

  Public Sub OKNotify(changed)
    WScript.Echo "OK: " & changed
  End Sub
End Class

Dim dialogs, edited, words, heard, result
Set dialogs = CreateObject("OrvexMapDialogs2.CCommonMapDialogs")
Set edited = New Layer
' The dialogs keep no references to these two: they must live as long as the dialogs are used.
Set words = New Language
Set heard = New CallBack
dialogs.RegistryKey = "LayerScript"
Set dialogs.Language = words
Set dialogs.CallBack = heard

result = dialogs.ShowProperties(edited)
WScript.Echo "Properties: " & result & " " & edited.Name & " " & edited.SymbolSize

result = dialogs.ShowLabels(edited, "Labels of a script")
WScript.Echo "Labels: " & result & " " & edited.ShowLabels & " " & edited.LabelFont.Size

Set dialogs.Language = Nothing
Set dialogs.CallBack = Nothing
WScript.Echo "DONE"
WScript.Quit 9
