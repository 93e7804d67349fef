;------------------------------------------------------------------------------
; Guess
; The computer thinks of a number, and other players of the same kind guess it.
; Four ways of guessing play the same numbers against each other, without input.
;------------------------------------------------------------------------------

Const Highest = 100
Const Rounds = 200
Const MostTries = 60

Const WayRandom = 1			; any number, even one that was tried before
Const WayCareful = 2		; a random number among those that are still possible
Const WayHalves = 3			; the middle of those that are still possible
Const WaySteps = 4			; large steps up, then small ones
Const Ways = 4

Type Player
	Field name$
	Field way
	Field low, high			; what is still possible
	Field guess
	Field tries				; in this round
	Field total, best, worst
	Field wins#
End Type

; How many rounds took so many tries, by way of guessing
Dim histogram(Ways, MostTries)

SeedRnd 1964

Gosub CreatePlayers

For round = 1 To Rounds
	PlayRound(Rand(1, Highest))
Next

PrintResults()
PrintHistogram(WayHalves)
End

.CreatePlayers
Restore PlayerTable
For way = 1 To Ways
	player.Player = New Player
	player\way = way
	player\best = MostTries
	Read player\name
Next
Return

.PlayerTable
Data "Any number", "A possible number", "The middle", "Steps"

; All players guess the same secret. The quickest ones share the win.
Function PlayRound(secret)
	Local player.Player, quickest = MostTries, winners
	For player = Each Player
		Guess(player, secret)
		If player\tries < quickest Then quickest = player\tries
	Next
	For player = Each Player
		If player\tries = quickest Then winners = winners + 1
	Next
	For player = Each Player
		If player\tries = quickest Then player\wins = player\wins + 1. / winners
	Next
End Function

; Guesses until the secret is found, or until it has taken far too long.
Function Guess(player.Player, secret)
	player\low = 1
	player\high = Highest
	player\guess = 0
	player\tries = 0
	Repeat
		player\guess = NextGuess(player)
		player\tries = player\tries + 1
		If player\guess < secret Then player\low = player\guess + 1
		If player\guess > secret Then player\high = player\guess - 1
	Until player\guess = secret Or player\tries = MostTries

	player\total = player\total + player\tries
	If player\tries < player\best Then player\best = player\tries
	If player\tries > player\worst Then player\worst = player\tries
	histogram(player\way, player\tries) = histogram(player\way, player\tries) + 1
End Function

Function NextGuess(player.Player)
	Local size
	Select player\way
		Case WayRandom
			Return Rand(1, Highest)
		Case WayCareful
			Return Rand(player\low, player\high)
		Case WayHalves
			Return (player\low + player\high) / 2
	End Select

	; A quarter of the range above the lowest possible number, at least one step
	size = (player\high - player\low) / 4
	Return player\low + size
End Function

;[Block] Output

Function PrintResults()
	Local player.Player
	Print Rounds + " rounds with numbers from 1 to " + Highest
	Print ""
	Print LSet$("Way of guessing", 20) + RSet$("Average", 10) + RSet$("Best", 8) + RSet$("Worst", 8) + RSet$("Wins", 8)
	Print String$("-", 54)
	For player = Each Player
		Write LSet$(player\name, 20)
		Write RSet$(OneDecimal$(Float(player\total) / Rounds), 10)
		Write RSet$(Str$(player\best), 8)
		Write RSet$(Str$(player\worst), 8)
		Print RSet$(OneDecimal$(player\wins), 8)
	Next
	Print ""
End Function

; A row of stars for each number of tries that came up.
Function PrintHistogram(way)
	Local tries, most
	For tries = 1 To MostTries
		If histogram(way, tries) > most Then most = histogram(way, tries)
	Next
	If most = 0 Then Return
	Print "Rounds by number of tries, " + NameOf$(way)
	For tries = 1 To MostTries
		If histogram(way, tries) > 0
			Write RSet$(Str$(tries), 4) + " "
			Write String$("*", 1 + histogram(way, tries) * 40 / most)
			Print " " + histogram(way, tries)
		EndIf
	Next
End Function

Function NameOf$(way)
	Local player.Player
	For player = Each Player
		If player\way = way Then Return Lower$(player\name)
	Next
	Return "nobody"
End Function

Function OneDecimal$(value#)
	Local tenths = Int(Floor(value * 10 + .5))
	Return (tenths / 10) + "." + (tenths Mod 10)
End Function

;[End Block]

;~Zolto Editor Parameters:
;~C#ZoltoBasic