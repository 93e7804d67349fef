;------------------------------------------------------------------------------
; Numbers: limits, rounding, chance.
;------------------------------------------------------------------------------

;[Block] Limits

Function Lesser(a, b)
	If a < b Then Return a
	Return b
End Function

Function Greater(a, b)
	If a > b Then Return a
	Return b
End Function

Function Lesser2#(a#, b#)
	If a < b Then Return a
	Return b
End Function

Function Greater2#(a#, b#)
	If a > b Then Return a
	Return b
End Function

Function Limit#(value#, low#, high#)
	If value < low Then Return low
	If value > high Then Return high
	Return value
End Function

; From one value to another; part runs from 0 to 1.
Function Blend#(from#, goal#, part#)
	Return from + (goal - from) * part
End Function

;[End Block]

;[Block] Rounding

; To the nearest multiple of a step.
Function RoundTo#(value#, multiple#)
	If multiple = 0 Then Return value
	Return Floor(value / multiple + .5) * multiple
End Function

; Up to a whole number, at least 1. Days of a flight are counted so.
Function WholeDays(value#)
	Return Greater(1, Int(Ceil(value)))
End Function

; A price as whole money, never below 1.
Function Money(value#)
	Return Greater(1, Int(Floor(value + .5)))
End Function

;[End Block]

;[Block] Chance

; True in so many of a hundred cases.
Function Percent(chance#)
	Return Rnd(0, 100) < chance
End Function

; True with a chance from 0 to 1.
Function Chance(part#)
	Return Rnd(0, 1) < part
End Function

; A number around 0 whose size is rarely beyond 1: the sum of several throws is closer
; to the middle than one throw is.
Function Wobble#()
	Local i, sum#
	For i = 1 To 4
		sum = sum + Rnd(-.5, .5)
	Next
	Return sum / 1.2
End Function

; A throw of several dice.
Function Dice(count, sides)
	Local i, sum
	For i = 1 To count
		sum = sum + Rand(1, sides)
	Next
	Return sum
End Function

; Whether a test of a skill from 1 to 10 succeeds; difficulty 5 is even odds for skill 5.
Function SkillTest(skill, difficulty)
	Return Dice(2, 6) + skill >= 7 + difficulty
End Function

;[End Block]

;[Block] Geometry

Function DistanceBetween#(x1#, y1#, x2#, y2#)
	Local dx# = x2 - x1
	Local dy# = y2 - y1
	Return Sqr(dx * dx + dy * dy)
End Function

; The name of the direction from one point to another, with y growing to the north.
Function Direction$(x1#, y1#, x2#, y2#)
	Local angle# = ATan2(y2 - y1, x2 - x1)
	Local sector
	If angle < 0 angle = angle + 360
	sector = Int(Floor((angle + 22.5) / 45)) Mod 8
	Return Trim$(Mid$("east     northeastnorth    northwestwest     southwestsouth    southeast", sector * 9 + 1, 9))
End Function

;[End Block]

;~Zolto Editor Parameters:
;~F#6#B#10#15#1A#21#2A#30#35#3E#43#49#52#5B#63#6A
;~C#ZoltoBasic