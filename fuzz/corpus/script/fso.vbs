On Error Resume Next
Set f = CreateObject("Scripting.FileSystemObject")
f.CreateTextFile("x.txt")
