' A host in VBScript: creates the editor by its name, hands it an instrument and a cycle, and takes the cycle back.
'
'   cscript //nologo host.vbs
'
' The control has to be registered. A script shows no window and cannot listen to events; for both see container/.
' Each step that goes wrong is told, and the number of them is the exit code.
Option Explicit

Dim failures
failures = 0

Sub Check(what, condition)
  If Not condition Then
    failures = failures + 1
    WScript.Echo "FAILED: " & what
  End If
End Sub

' Whether the statement before has ended with this error. Needs "On Error Resume Next" in the caller.
Sub CheckError(what, number)
  If Err.Number <> number Then
    failures = failures + 1
    WScript.Echo "FAILED: " & what & ": error " & Err.Number & " " & Err.Description & ", expected " & number
  End If
  Err.Clear
End Sub

Function Catalogue()
  Catalogue = "<LATESTKAM><ATOMS>" & _
    "<ATOM><AtomName>WAIT</AtomName><Param>Time;0;100;5;1;s</Param></ATOM>" & _
    "<ATOM><AtomName>HOME</AtomName></ATOM>" & _
    "</ATOMS><CLASSES/><OBJECTS/><LISTS/></LATESTKAM>"
End Function

' A cycle as a macro text: the lines of the description, the variables, the atom lines.
Function MacroText()
  MacroText = "[PMA]" & vbCrLf & "//from a script" & vbCrLf & "WAIT(7)" & vbCrLf & "HOME()" & vbCrLf
End Function

Sub CallEveryMember()
  Dim editor, taken, again
  Set editor = CreateObject("mavCycEd.ctlCycEd")
  editor.SetConfigXML "<Config><Arguments/></Config>"
  editor.Ignore_Hidden = True
  editor.SetXMLStrings Catalogue(), ""
  Check "a new cycle is not changed", editor.CycleChanged = False
  Check "a new cycle is empty", editor.RetrieveCycle() = ""

  editor.SetXMLStrings Catalogue(), MacroText()
  taken = editor.RetrieveCycle()
  Check "the cycle holds its lines", InStr(taken, "WAIT") > 0 And InStr(taken, "HOME") > InStr(taken, "WAIT")
  Check "a cycle handed back is not changed", editor.CycleChanged = False

  ' What was taken back loads again.
  Set again = CreateObject("mavCycEd.ctlCycEd.1")
  again.SetXMLStrings Catalogue(), taken
  Check "a loaded cycle is not changed", again.CycleChanged = False
  Check "what is loaded comes back", again.RetrieveCycle() = taken

  editor.ResetCycle = "<CYCLE/>"
  Check "the screen stays", InStr(editor.RetrieveCycle(), "WAIT") > 0
  WScript.Echo taken
End Sub

' Calls that no editor could carry out end with an error of the script, and the editor goes on.
Sub CallWrongly()
  Const notSupported = 438, wrongNumber = 450, mismatch = 13
  Dim editor, value
  Set editor = CreateObject("mavCycEd.ctlCycEd")
  On Error Resume Next
  editor.NoSuchMember
  CheckError "a member that there is not", notSupported
  editor.SetXMLStrings Catalogue()
  CheckError "an argument too few", wrongNumber
  editor.SetXMLStrings Catalogue(), "", ""
  CheckError "an argument too many", wrongNumber
  editor.SetConfigXML editor
  CheckError "an object for a text", mismatch
  editor.SetConfigXML Array("a", "b")
  CheckError "an array for a text", mismatch
  editor.Ignore_Hidden = "perhaps"
  CheckError "a text for a truth value", mismatch
  value = editor.Ignore_Hidden
  CheckError "reading what can only be written", notSupported
  editor.CycleChanged = True
  CheckError "writing what can only be read", notSupported

  ' Numbers become texts, as everywhere in automation.
  editor.SetConfigXML 5
  CheckError "a number for a text", 0
  editor.SetXMLStrings Catalogue(), MacroText()
  CheckError "the editor goes on", 0
  Check "the editor works on", InStr(editor.RetrieveCycle(), "WAIT") > 0
End Sub

Sub Main()
  CallEveryMember
  CallWrongly
End Sub

On Error Resume Next
Main
CheckError "the script", 0
WScript.Quit failures
