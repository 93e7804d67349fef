; Reads a text file line by line. Returns how many lines there were, or -1 when it cannot be opened.
Function ReadTextFile(path$)
	Local file = ReadFile(path)
	Local count
	If file = 0 Then Return -1
	While Not Eof(file)
		ProcessLine(Trim$(ReadLine$(file)))
		count = count + 1
	Wend
	CloseFile file
	Return count
End Function
