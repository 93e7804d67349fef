; The part of a line between two separators, counted from 1. Empty when there are fewer parts.
Function Part$(text$, number, separator$ = ",")
	Local start = 1, finish, i
	For i = 1 To number
		finish = Instr(text, separator, start)
		If finish = 0 Then finish = Len(text) + 1
		If i = number Then Return Mid$(text, start, finish - start)
		start = finish + Len(separator)
		If start > Len(text) + 1 Then Return ""
	Next
End Function
