;------------------------------------------------------------------------------
; Events: for some days a system is not what it was.
;------------------------------------------------------------------------------

; Ends events that are over, and now and then begins one.
Function UpdateEvents()
	Local event.Event, following.Event
	event = First Event
	While event <> Null
		following = After event
		If event\lastDay < today Then EndEvent(event)
		event = following
	Wend
	If Chance(.11) Then BeginEvent(systems(Rand(1, SystemsMax)), Rand(1, EventKinds))
End Function

;[Block] Begin and end

Function BeginEvent.Event(where.StarSystem, kind)
	Local event.Event
	; One event of a kind at a time is enough for a system.
	For event = Each Event
		If event\where = where And event\kind = kind Then Return Null
	Next
	event = New Event
	event\where = where
	event\kind = kind
	event\factor = 1.
	event\lastDay = today + Rand(4, 12)
	Select kind
		Case EventStrike
			where\station\onStrike = True
		Case EventFestival
			where\station\bonus = 1.15
			event\lastDay = today + 3
		Case EventPirates
			event\factor = Rnd(1.5, 3.)
		Case EventShortage
			event\good = RandomNeed(where\station)
			event\factor = Rnd(1.3, 1.9)
			where\station\stock[event\good] = where\station\stock[event\good] * .3
		Case EventGlut
			event\good = Rand(1, GoodsMax)
			event\factor = Rnd(.5, .75)
			where\station\stock[event\good] = where\station\stock[event\good] + where\station\target[event\good]
		Case EventDiscovery
			If Not DiscoverRocks(where)
				Delete event
				Return Null
			EndIf
	End Select
	Note(EventText$(event), LogHeadline)
	Return event
End Function

Function EndEvent(event.Event)
	Select event\kind
		Case EventStrike
			event\where\station\onStrike = False
			Note("The strike at " + event\where\name + " is over")
		Case EventFestival
			event\where\station\bonus = 1.
		Case EventPirates
			Note("The patrol has cleared the lanes around " + event\where\name)
	End Select
	Delete event
End Function

; New rocks in a belt of the system. False when it has no belt.
Function DiscoverRocks(where.StarSystem)
	Local belt.Belt, rock.Rock, i
	For belt = Each Belt
		If belt\home = where
			For i = 1 To 3
				rock = CreateRock(belt)
				rock\grade = rock\grade * 1.3
			Next
			Return True
		EndIf
	Next
	Return False
End Function

; A good that a station uses up, any one with the same chance.
Function RandomNeed(station.Station)
	Local number, count, choice
	For number = 1 To GoodsMax
		If station\needs[number] > 0
			count = count + 1
			If Rand(1, count) = 1 Then choice = number
		EndIf
	Next
	Return choice
End Function

;[End Block]

;[Block] Effects

; The factor that events put on the price of a good.
Function EventFactor#(where.StarSystem, number)
	Local event.Event, factor# = 1
	For event = Each Event
		If event\where = where And event\good = number Then factor = factor * event\factor
	Next
	Return factor
End Function

Function EventText$(event.Event)
	Local place$ = event\where\name
	Local ending$ = " until day " + event\lastDay
	Select event\kind
		Case EventStrike
			Return "Strike at " + place + ending
		Case EventFestival
			Return "Festival at " + place + ending
		Case EventPirates
			Return "Pirates are reported around " + place + ending
		Case EventShortage
			Return place + " runs out of " + goods(event\good)\name
		Case EventGlut
			Return place + " is flooded with " + goods(event\good)\name
		Case EventDiscovery
			Return "New rocks are found at " + place
	End Select
	Return "Nothing much happens at " + place
End Function

;[End Block]

;[Block] Encounters

; What a day of flight may bring. A ship that meets pirates flees, fights or pays.
Function Encounter(ship.Ship)
	Local captain.Captain = ship\captain
	Local strength
	If Not Chance(RouteDanger(ship\place, ship\goal)) Then Return
	attacks = attacks + 1
	strength = Dice(3, 4)

	; Fleeing
	If captain\nerve < 6 And SkillTest(captain\flying, strength - 1)
		Note(ship\name + " slips away from pirates", LogDetail)
		ship\fuel = Greater2(0, ship\fuel - ship\hull\tank * FleeBurns)
		Return
	EndIf

	; Fighting
	If SkillTest(captain\nerve, strength)
		Note(ship\name + " beats off pirates on the way to " + ship\goal\name)
		ship\damage = ship\damage + Rand(0, 4)
		captain\experience = captain\experience + 5
	Else
		ship\damage = ship\damage + Dice(4, 8)
		If ship\damage >= ship\hull\strength
			LoseShip(ship)
		Else
			RobShip(ship)
		EndIf
	EndIf
End Function

; Pirates take a part of everything in the hold.
Function RobShip(ship.Ship)
	Local number, taken#, tons#
	For number = 1 To GoodsMax
		taken = ship\hold[number] * PirateShare
		ship\hold[number] = ship\hold[number] - taken
		tons = tons + taken * goods(number)\mass
	Next
	ship\load = Greater2(0, ship\load - tons)
	If tons >= 1
		Note("Pirates take " + Tons$(tons) + " from " + ship\name)
	Else
		Note("Pirates find nothing on " + ship\name, LogDetail)
	EndIf
End Function

;[End Block]

;~Zolto Editor Parameters:
;~C#ZoltoBasic