;------------------------------------------------------------------------------
; Stars, the distances between them, and the belts that are mined.
;------------------------------------------------------------------------------

;[Block] Distances

; Fills the table of distances. It is symmetric, so half of it is computed.
Function MeasureDistances()
	Local a, b, length#
	For a = 1 To SystemsMax
		distance(a, a) = 0
		For b = a + 1 To SystemsMax
			length = DistanceBetween(systems(a)\x, systems(a)\y, systems(b)\x, systems(b)\y)
			distance(a, b) = length
			distance(b, a) = length
		Next
	Next
End Function

Function DistanceTo#(a.StarSystem, b.StarSystem)
	Return distance(a\index, b\index)
End Function

; The system nearest to another one that has a station without a strike. Null when there is none.
Function NearestOpenSystem.StarSystem(from.StarSystem)
	Local star.StarSystem, best.StarSystem
	Local length#, shortest# = 999999
	For star = Each StarSystem
		If star <> from And star\station\onStrike = False
			length = DistanceTo(from, star)
			If length < shortest
				shortest = length
				best = star
			EndIf
		EndIf
	Next
	Return best
End Function

; How far apart the two most distant systems are.
Function GalaxyWidth#()
	Local a, b, width#
	For a = 1 To SystemsMax
		For b = a + 1 To SystemsMax
			width = Greater2(width, distance(a, b))
		Next
	Next
	Return width
End Function

; The system in the middle: the one with the smallest sum of distances to all others.
Function CentralSystem.StarSystem()
	Local a, b, sum#, smallest# = 999999
	Local best.StarSystem
	For a = 1 To SystemsMax
		sum = 0
		For b = 1 To SystemsMax
			sum = sum + distance(a, b)
		Next
		If sum < smallest Then smallest = sum : best = systems(a)
	Next
	Return best
End Function

;[End Block]

;[Block] Danger

; The chance of meeting pirates on one day of a flight between two systems.
Function RouteDanger#(from.StarSystem, goal.StarSystem)
	Local danger# = (from\danger + goal\danger) / 2
	Local event.Event
	For event = Each Event
		If event\kind = EventPirates
			If event\where = from Or event\where = goal Then danger = danger * event\factor
		EndIf
	Next
	Return Limit(danger, 0, .5)
End Function

Function DangerName$(danger#)
	Select Int(Floor(danger * 100))
		Case 0
			Return "none"
		Case 1
			Return "low"
		Case 2, 3
			Return "some"
		Case 4, 5, 6
			Return "high"
		Default
			Return "very high"
	End Select
End Function

;[End Block]

;[Block] Belts

Function CreateBelt.Belt(name$, home.StarSystem, class, richness#, depth)
	Local belt.Belt = New Belt
	Local i
	belt\name = name
	belt\home = home
	belt\class = class
	belt\richness = richness
	belt\depth = depth
	For i = 1 To RocksInBelt
		CreateRock(belt)
	Next
	Return belt
End Function

; A rock's mass is the product of two throws: most are small and a few are very large.
Function CreateRock.Rock(belt.Belt)
	Local rock.Rock = New Rock
	rock\belt = belt
	rock\mass = 30 + Rnd(4, 20) * Rnd(4, 20)
	rock\grade = Limit(belt\richness + Wobble() * .3, .2, 2.)
	belt\rocks = belt\rocks + 1
	Return rock
End Function

; A rock that is used up goes. The belt is worked deeper once most of it is gone, and new
; rocks come within reach.
Function RemoveRock(rock.Rock)
	Local belt.Belt = rock\belt
	Local i
	belt\rocks = belt\rocks - 1
	Delete rock
	If belt\rocks > 1 Then Return
	If belt\depth < DepthsMax
		belt\depth = belt\depth + 1
		For i = 1 To RocksInBelt - belt\depth
			CreateRock(belt)
		Next
		Note(belt\name + " at " + belt\home\name + " is now worked at depth " + belt\depth)
	ElseIf belt\rocks = 0
		Note(belt\name + " at " + belt\home\name + " is worked out", LogHeadline)
	EndIf
End Function

; The best rock of a belt that no other ship is working on. Null when all are taken.
Function BestFreeRock.Rock(belt.Belt, ship.Ship)
	Local rock.Rock, best.Rock
	For rock = Each Rock
		If rock\belt = belt
			If rock\claimedBy = Null Or rock\claimedBy = ship
				If best = Null
					best = rock
				ElseIf rock\grade * Lesser2(rock\mass, 100) > best\grade * Lesser2(best\mass, 100)
					best = rock
				EndIf
			EndIf
		EndIf
	Next
	Return best
End Function

Function BeltHasRoom(belt.Belt, ship.Ship)
	Return BestFreeRock(belt, ship) <> Null
End Function

; What a day of average work in a belt is worth at the prices of a system.
Function BeltValue#(belt.Belt, tool, market.StarSystem)
	Local ore, value#
	For ore = 1 To OresMax
		value = value + oreYield(belt\class, tool, belt\depth, ore) * market\station\price[ore]
	Next
	Return value * belt\richness * MinePerDay
End Function

; The tool that brings up the most in a belt.
Function BestTool(belt.Belt)
	Local tool, best = ToolDrill
	For tool = 1 To ToolsMax
		If BeltValue(belt, tool, belt\home) > BeltValue(belt, best, belt\home) Then best = tool
	Next
	Return best
End Function

Function ClassName$(class)
	Select class
		Case 1
			Return "stony"
		Case 2
			Return "metallic"
		Case 3
			Return "icy"
		Default
			Return "carbon"
	End Select
End Function

Function ToolName$(tool)
	Select tool
		Case ToolDrill : Return "drill"
		Case ToolLaser : Return "laser"
		Case ToolCharges : Return "charges"
	End Select
	Return "bare hands"
End Function

;[End Block]

;~Zolto Editor Parameters:
;~C#ZoltoBasic