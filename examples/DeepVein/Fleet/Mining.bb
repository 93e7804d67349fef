;------------------------------------------------------------------------------
; Mining: a ship stakes a claim on a rock, works on it until the rock or the
; room in the hold runs out, and comes back with ore.
;------------------------------------------------------------------------------

;[Block] Claims

; Goes to work in a belt of the system. False when no rock is free.
Function StartMining(ship.Ship, belt.Belt)
	Local rock.Rock = BestFreeRock(belt, ship)
	If rock = Null Then Return False
	ship\belt = belt
	ship\rock = rock
	ship\rock\claimedBy = ship
	ship\state = ShipMining
	ChangeTool(ship, BestTool(belt))
	Note(ship\name + " starts on " + Describe$(rock), LogDetail)
	Return True
End Function

Function StopMining(ship.Ship)
	If ship\rock <> Null
		ship\rock\claimedBy = Null
		ship\rock = Null
	EndIf
	ship\belt = Null
	ship\state = ShipIdle
End Function

; Another tool costs money, unless the difference is not worth it.
Function ChangeTool(ship.Ship, tool)
	If tool = ship\tool Then Return
	If BeltValue(ship\belt, tool, ship\place) < BeltValue(ship\belt, ship\tool, ship\place) * 1.1 Then Return
	Pay(ship\owner, 80 * tool)
	ship\tool = tool
	Note(ship\name + " changes to " + ToolName$(tool), LogDetail)
End Function

Function Describe$(rock.Rock)
	Local size$ = "a rock"
	If rock\mass > 250 Then size = "a large rock"
	If rock\mass < 80 Then size = "a small rock"
	Return size + " of " + Tons$(rock\mass) + " in " + rock\belt\name
End Function

;[End Block]

;[Block] Work

; A day of mining. The hold fills with each ore by its yield; what does not fit is left behind.
Function Mine(ship.Ship)
	Local rock.Rock = ship\rock
	Local tons#, ore, share#, units#, broughtUp#
	Local class = ship\belt\class, depth = ship\belt\depth

	tons = TonsADay(ship)
	tons = Lesser2(tons, rock\mass)
	rock\mass = rock\mass - tons

	For ore = 1 To OresMax
		share = oreYield(class, ship\tool, depth, ore) * rock\grade
		units = tons * share / goods(ore)\mass
		units = Lesser2(units, FreeTons(ship) / goods(ore)\mass)
		ship\hold[ore] = ship\hold[ore] + units
		ship\load = ship\load + units * goods(ore)\mass
		broughtUp = broughtUp + units * goods(ore)\mass
	Next

	ship\belt\mined = ship\belt\mined + broughtUp
	tonsMined = tonsMined + broughtUp
	Accident(ship)
	GainExperience(ship\captain, 1)

	If rock\mass < 1 Then FinishRock(ship)
	If FreeTons(ship) < 1 And ship\state = ShipMining Then StopMining(ship)
End Function

; How much rock a ship gets through in a day.
Function TonsADay#(ship.Ship)
	Local tons# = MinePerDay * (.6 + .08 * ship\captain\mining)
	Select ship\tool
		Case ToolDrill
			tons = tons * 1.
		Case ToolLaser
			tons = tons * 1.2
		Case ToolCharges
			tons = tons * Rnd(.8, 2.)
	End Select
	Return tons
End Function

; Charges are powerful, and now and then too powerful.
Function Accident(ship.Ship)
	Local risk# = 1.
	If ship\tool = ToolCharges Then risk = 5. : If ship\captain\mining < 4 Then risk = 9.
	If Not Percent(risk) Then Return
	ship\damage = Lesser(ship\hull\strength - 1, ship\damage + Dice(1, 6))
	Note("An accident in " + ship\belt\name + " damages " + ship\name, LogDetail)
End Function

; The rock is used up: the next one, or home when there is none.
Function FinishRock(ship.Ship)
	Local belt.Belt = ship\belt
	Local rock.Rock = ship\rock
	Local following.Rock
	ship\rock = Null
	RemoveRock(rock)
	following = BestFreeRock(belt, ship)
	If following = Null Or FreeTons(ship) < 5
		StopMining(ship)
		Return
	EndIf
	ship\rock = following
	following\claimedBy = ship
End Function

;[End Block]

;~Zolto Editor Parameters:
;~C#ZoltoBasic