;------------------------------------------------------------------------------
; Texts: columns, numbers for people, words of a line, and the log.
; Nothing that is printed holds a colon, so that the output of a run is never
; taken for a message of the compiler.
;------------------------------------------------------------------------------

;[Block] Columns

; Text to the left of a column; a text that is too long is cut.
Function LeftColumn$(text$, width)
	If Len(text) > width Then Return Left$(text, width - 1) + "."
	Return LSet$(text, width)
End Function

; Text to the right of a column.
Function RightColumn$(text$, width)
	If Len(text) >= width Then Return text
	Return RSet$(text, width)
End Function

Function Centred$(text$, width)
	Local margin = (width - Len(text)) / 2
	If margin <= 0 Then Return text
	Return String$(" ", margin) + text
End Function

Function Ruler$(width, mark$ = "-")
	Return String$(mark, width)
End Function

; A bar of stars for a value from 0 to most.
Function Bar$(value#, most#, width)
	Local stars
	If most <= 0 Then Return String$(".", width)
	stars = Int(Limit(value / most * width, 0, width))
	Return String$("*", stars) + String$(".", width - stars)
End Function

;[End Block]

;[Block] Numbers for people

; A whole number with a blank between thousands.
Function Thousands$(value)
	Local digits$ = Str$(Abs(value))
	Local result$
	While Len(digits) > 3
		result = " " + Right$(digits, 3) + result
		digits = Left$(digits, Len(digits) - 3)
	Wend
	result = digits + result
	If value < 0 Then result = "-" + result
	Return result
End Function

; A number with so many digits behind the point.
Function Fixed$(value#, digits = 1)
	Local power = 1, i, whole, sign$
	For i = 1 To digits
		power = power * 10
	Next
	If value < 0 Then sign = "-" : value = -value
	whole = Int(Floor(value * power + .5))
	If whole = 0 Then sign = ""
	If digits = 0 Then Return sign + whole
	Return sign + (whole / power) + "." + RightDigits$(whole Mod power, digits)
End Function

; The last digits of a number, with zeros in front.
Function RightDigits$(value, digits)
	Return Right$(String$("0", digits) + value, digits)
End Function

Function Credits$(amount)
	Return Thousands$(amount) + " cr"
End Function

Function Tons$(amount#)
	Return Fixed$(amount, 1) + " t"
End Function

; "1 day", "3 days"
Function Counted$(count, noun$)
	If count = 1 Then Return "1 " + noun
	Return Str$(count) + " " + noun + "s"
End Function

;[End Block]

;[Block] Words

; The first word of a text, up to a blank.
Function FirstWord$(text$)
	Local blank
	text = Trim$(text)
	blank = Instr(text, " ")
	If blank = 0 Then Return text
	Return Left$(text, blank - 1)
End Function

; What stands behind the first word, with a blank at its end while there is anything.
Function AfterFirstWord$(text$)
	Local blank
	text = Trim$(text)
	blank = Instr(text, " ")
	If blank = 0 Then Return ""
	Return Trim$(Mid$(text, blank + 1)) + " "
End Function

Function Capital$(text$)
	If text = "" Then Return ""
	Return Upper$(Left$(text, 1)) + Mid$(text, 2)
End Function

; Joins the parts of a list: "a", then "a and b" when the next one comes.
Function AppendToList$(list$, item$)
	If list = "" Then Return item
	Return Replace$(list, " and ", ", ") + " and " + item
End Function

;[End Block]

;[Block] The log

; Writes a line of the day. On a busy day only headlines are still printed.
Function Note(text$, weight = LogNormal)
	If weight = LogHeadline Then headlines = headlines + 1
	If quiet And weight < LogHeadline Then Return
	If weight = LogDetail Then Return
	If linesToday >= MostLinesADay And weight < LogHeadline
		linesHeldBack = linesHeldBack + 1
		Return
	EndIf
	linesToday = linesToday + 1
	If linesToday = 1
		Print "Day " + RightColumn$(Str$(today), 3) + "  " + text
	Else
		Print "         " + text
	EndIf
End Function

;[End Block]

;~Zolto Editor Parameters:
;~F#9#F#14#1A#1F#2B#38#45#49#4D#52#5C#65#6D#73#7D
;~C#ZoltoBasic