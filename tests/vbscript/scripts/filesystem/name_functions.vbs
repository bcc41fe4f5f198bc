' These work on the text alone and keep the script's separators.
Dim fso
Set fso = CreateObject("Scripting.FileSystemObject")
WScript.Echo fso.GetFileName("C:\Dati\archivio.dat"), fso.GetFileName("Script\Funzioni\"), "[" & fso.GetFileName("C:\") & "]"   ' expect: archivio.dat Funzioni []
WScript.Echo fso.GetBaseName("Script\lib.prova.ls"), fso.GetExtensionName("Script\lib.prova.ls"), "[" & fso.GetExtensionName("Leggimi") & "]"   ' expect: lib.prova ls []
WScript.Echo fso.GetParentFolderName("C:\Dati\archivio.dat"), fso.GetParentFolderName("C:\Dati"), fso.GetParentFolderName("a/b/c/")   ' expect: C:\Dati C:\ a/b
WScript.Echo "[" & fso.GetParentFolderName("archivio.dat") & "]", fso.GetDriveName("C:\Dati"), "[" & fso.GetDriveName("Dati") & "]"   ' expect: [] C: []
WScript.Echo fso.BuildPath("Script", "x.ls"), fso.BuildPath("Script\", "x.ls"), fso.BuildPath("/tmp", "x.ls"), fso.BuildPath("a\", "\b")   ' expect: Script\x.ls Script\x.ls /tmp/x.ls a\b
