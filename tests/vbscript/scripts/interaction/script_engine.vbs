WScript.Echo ScriptEngine, ScriptEngineMajorVersion & "." & ScriptEngineMinorVersion, TypeName(ScriptEngineBuildVersion)   ' expect: VBScript 5.8 Long
