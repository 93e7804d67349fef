; Looks a setting up in a file of lines of the form key=value. Returns the fallback when it is not there.
Function ReadSetting$(path$, key$, fallback$ = "")
	Local file = ReadFile(path)
	Local text$, equals, value$ = fallback
	If file = 0 Then Return fallback
	While Not Eof(file)
		text = ReadLine$(file)
		equals = Instr(text, "=")
		If equals > 1
			If Lower$(Trim$(Left$(text, equals - 1))) = Lower$(key) Then value = Trim$(Mid$(text, equals + 1))
		EndIf
	Wend
	CloseFile file
	Return value
End Function
