; The last line has no line end.
Global count = 3

Function Twice(n)
	Return n * 2
End Function
Print Twice(count)