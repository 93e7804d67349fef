; A small source that declares one thing of each kind.
Const MaxRocks = 12
Global score, shipName$ = "Wanderer"

Dim grid(4, 4), rockSpeed#(MaxRocks)


Type Rock	Field x#, y#	Field size
	Field nextRock.Rock
End Type

.Start

For i = 1 To MaxRocks

	r.Rock = New Rock
	r\x = Rnd(0, 100)	r\size = RockSize(i)	rockSpeed(i) = .5 * i
Next
If score > 5 Then Print "high" Else Print shipName
If score = 0
	Gosub Report

EndIf

End
.ReportPrint "Rocks " + CountRocks()
Return

;[Block] Helpers
Function RockSize(level, factor# = 1.5)

	Local size = level * factor

	Select level Mod 3
		Case 0			size = size + 1		Case 1, 2
			size = size - 1
		Default
			size = 0
	End Select

	Return size

End Function
Function CountRocks()	For r.Rock = Each Rock
		n = n + 1
	Next
	Return n
End Function

;[End Block]

