;------------------------------------------------------------------------------
; Ships: what they can carry, how far they get, and their day.
;------------------------------------------------------------------------------

;[Block] Making and losing

Function CreateShip.Ship(name$, hull.Hull, owner.Company, tool)
	Local ship.Ship = New Ship
	ship\name = name
	ship\hull = hull
	ship\owner = owner
	ship\tool = tool
	ship\place = owner\home
	ship\fuel = hull\tank
	ship\state = ShipIdle
	owner\shipCount = owner\shipCount + 1
	Return ship
End Function

Function CreateCaptain.Captain(name$, mining, trading, flying, nerve)
	Local captain.Captain = New Captain
	captain\name = name
	captain\mining = mining
	captain\trading = trading
	captain\flying = flying
	captain\nerve = nerve
	Return captain
End Function

; The record of a lost ship stays, for the summary; everything that it held goes.
Function LoseShip(ship.Ship)
	Local number
	shipsLost = shipsLost + 1
	Note(ship\name + " is lost between " + ship\place\name + " and " + ship\goal\name + "; captain " + ship\captain\name + " is picked up", LogHeadline)
	ship\state = ShipLost
	ship\owner\shipCount = ship\owner\shipCount - 1
	For number = 1 To GoodsMax
		ship\hold[number] = 0
	Next
	ship\load = 0
	ship\fuel = 0
	If ship\job <> Null
		ship\job\carrier = Null		; somebody else may still do it
		ship\job = Null
	EndIf
End Function

;[End Block]

;[Block] Room and worth

Function FreeTons#(ship.Ship)
	Return Greater2(0, ship\hull\holdSize - ship\load)
End Function

; What the cargo would bring at average prices.
Function CargoValue#(ship.Ship)
	Local number, value#
	For number = 1 To GoodsMax
		If ship\hold[number] > 0 Then value = value + ship\hold[number] * AveragePrice(number)
	Next
	Return value
End Function

; What a ship would bring today: two thirds of its price, less for every missing point of hull.
Function ResalePrice(ship.Ship)
	Local price = ship\hull\price * 2 / 3
	Return Greater(0, price - ship\damage * RepairPrice)
End Function

Function Condition$(ship.Ship)
	Local part# = 1 - Float(ship\damage) / ship\hull\strength
	If part > .95 Then Return "sound"
	If part > .7 Return "worn"
	If part > .4 Return "damaged"
	Return "a wreck"
End Function

;[End Block]

;[Block] Fuel and distance

; Tons of fuel for a flight. A loaded ship burns more, and a good pilot less.
Function FuelFor#(ship.Ship, from.StarSystem, goal.StarSystem)
	Local burden# = 1 + .5 * ship\load / ship\hull\holdSize
	Local thrift# = 1.1 - .02 * ship\captain\flying
	Return DistanceTo(from, goal) * FuelPerUnit * burden * thrift
End Function

; Whether a ship could fly there with a full tank.
Function CanReach(ship.Ship, goal.StarSystem)
	Return FuelFor(ship, ship\place, goal) <= ship\hull\tank
End Function

Function FlightDays(ship.Ship, from.StarSystem, goal.StarSystem)
	Local speed# = ship\hull\speed
	; Below half of its hull a ship flies slowly.
	If ship\damage * 2 > ship\hull\strength Then speed = speed * .6
	Return WholeDays(DistanceTo(from, goal) / speed)
End Function

; Fills the tank for a flight, and a little beyond. False when it cannot be filled far enough.
Function Refuel(ship.Ship, goal.StarSystem)
	Local station.Station = ship\place\station
	Local needed# = FuelFor(ship, ship\place, goal)
	Local wanted#, units#
	If needed > ship\hull\tank Then Return False
	wanted = Lesser2(ship\hull\tank, needed * 1.25)
	If ship\fuel < wanted
		units = Ceil(wanted - ship\fuel)
		; Fuel for ships is bought from a tanker, dearer, when the station has none.
		If station\stock[GoodFuel] >= units
			Pay(ship\owner, Int(units * BuyPrice(station, GoodFuel)))
			station\stock[GoodFuel] = station\stock[GoodFuel] - units
		Else
			Pay(ship\owner, Int(units * goods(GoodFuel)\basePrice * 1.8))
		EndIf
		ship\fuel = Lesser2(ship\hull\tank, ship\fuel + units)
	EndIf
	Return ship\fuel >= needed
End Function

; The way to a system that is too far for one flight: the reachable system that is nearest to it.
; Null when no reachable system is nearer than the ship already is.
Function NextStop.StarSystem(ship.Ship, goal.StarSystem)
	Local star.StarSystem, best.StarSystem
	Local shortest# = DistanceTo(ship\place, goal)
	If CanReach(ship, goal) Then Return goal
	For star = Each StarSystem
		If star <> ship\place And CanReach(ship, star)
			If DistanceTo(star, goal) < shortest
				shortest = DistanceTo(star, goal)
				best = star
			EndIf
		EndIf
	Next
	Return best
End Function

;[End Block]

;[Block] A day of a ship

Function UpdateShips()
	Local ship.Ship
	For ship = Each Ship
		Select ship\state
			Case ShipIdle
				If ship\place\station\onStrike And ship\load > 0
					; Nobody unloads. A captain with nerve waits, the others leave.
					If ship\captain\nerve < 5 Then LeaveStrike(ship)
				Else
					Decide(ship)
				EndIf
			Case ShipFlying
				Fly(ship)
			Case ShipMining
				Mine(ship)
			Case ShipRepairing
				Repair(ship)
			Case ShipStranded
				Rescue(ship)
		End Select
	Next
End Function

; Sets off. False when there is not enough fuel.
Function Launch(ship.Ship, goal.StarSystem)
	If goal = Null Or goal = ship\place Then Return False
	If Not Refuel(ship, goal) Then Return False
	ship\goal = goal
	ship\daysLeft = FlightDays(ship, ship\place, goal)
	ship\fuel = ship\fuel - FuelFor(ship, ship\place, goal)
	ship\state = ShipFlying
	tripsFlown = tripsFlown + 1
	ship\trips = ship\trips + 1
	Note(ship\name + " leaves " + ship\place\name + " for " + goal\name + ", " + Counted$(ship\daysLeft, "day"), LogDetail)
	Return True
End Function

Function LeaveStrike(ship.Ship)
	If Launch(ship, NearestOpenSystem(ship\place))
		Note(ship\name + " does not wait for the end of the strike at " + ship\place\name)
	EndIf
End Function

Function Fly(ship.Ship)
	Encounter(ship)
	If ship\state = ShipLost Then Return
	If ship\fuel <= 0 And Chance(.3)
		ship\state = ShipStranded
		ship\daysLeft = Rand(2, 5)
		Note(ship\name + " drifts without fuel on the way to " + ship\goal\name)
		Return
	EndIf
	ship\daysLeft = ship\daysLeft - 1
	; A day of flight wears on the hull once in a while.
	If Percent(6) And (Not SkillTest(ship\captain\flying, 3)) Then ship\damage = ship\damage + 1
	If ship\daysLeft <= 0 Then Arrive(ship)
End Function

Function Arrive(ship.Ship)
	ship\place = ship\goal
	ship\goal = Null
	ship\state = ShipIdle
	ship\place\arrivals = ship\place\arrivals + 1
	ship\place\visits = ship\place\visits + 1
	Pay(ship\owner, DockFee)
	If ship\job <> Null Then DeliverContract(ship)
	GainExperience(ship\captain, 1)
End Function

; Every so much experience makes the captain better at what comes hardest.
Function GainExperience(captain.Captain, amount)
	Local level = captain\experience / 20
	captain\experience = captain\experience + amount
	If captain\experience / 20 = level Then Return
	If captain\flying <= captain\mining And captain\flying <= captain\trading
		captain\flying = Lesser(10, captain\flying + 1)
	ElseIf captain\trading <= captain\mining
		captain\trading = Lesser(10, captain\trading + 1)
	Else
		captain\mining = Lesser(10, captain\mining + 1)
	EndIf
End Function

; The yard mends some points a day, more of them where people are rich.
Function Repair(ship.Ship)
	Local points = 2 + Int(ship\place\wealth * 3)
	points = Lesser(points, ship\damage)
	Pay(ship\owner, points * RepairPrice)
	ship\damage = ship\damage - points
	ship\daysLeft = ship\daysLeft - 1
	If ship\damage = 0 Or ship\daysLeft <= 0 Then ship\state = ShipIdle
End Function

; A stranded ship is towed to where it wanted to go, for a price.
Function Rescue(ship.Ship)
	ship\daysLeft = ship\daysLeft - 1
	If ship\daysLeft > 0 Then Return
	rescues = rescues + 1
	Pay(ship\owner, RescuePrice)
	ship\fuel = ship\hull\tank * .1
	Note(ship\name + " is towed to " + ship\goal\name)
	Arrive(ship)
End Function

;[End Block]

;~Zolto Editor Parameters:
;~C#ZoltoBasic