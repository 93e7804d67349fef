;------------------------------------------------------------------------------
; What captains decide. A captain in port looks at the ship first, then at the
; hold, and then for work that suits the company.
;------------------------------------------------------------------------------

; The decision of a day in port.
Function Decide(ship.Ship)
	If NeedsRepair(ship)
		ship\state = ShipRepairing
		ship\daysLeft = 6
		Return
	EndIf
	If ship\job <> Null
		If CarryOn(ship) Then Return
	EndIf
	If ship\load >= 1
		If SellHere(ship) Then Return
		If SellElsewhere(ship) Then Return
		SellAll(ship)
	EndIf
	If today >= seasonDays - 3 Then Return		; the season is nearly over, stay in port

	Select ship\owner\strategy
		Case StrategyMiner
			If SeekContract(ship, 90) Then Return
			If SeekRock(ship) Then Return
			SeekTrade(ship)
		Case StrategyTrader
			If SeekContract(ship, 0) Then Return
			If SeekTrade(ship) Then Return
			SeekRock(ship)
		Default
			If SeekContract(ship, 40) Then Return
			If RockIsBetter(ship)
				If SeekRock(ship) Then Return
			EndIf
			If SeekTrade(ship) Then Return
			SeekRock(ship)
	End Select
	If ship\state = ShipIdle Then Wander(ship)
End Function

;[Block] The ship

; A careful captain repairs early.
Function NeedsRepair(ship.Ship)
	Local part# = Float(ship\damage) / ship\hull\strength
	Return part > .1 + ship\captain\nerve * .04
End Function

; Goes on with a contract: to its goal, or, when the goods are gone, gives it up.
Function CarryOn(ship.Ship)
	Local job.Contract = ship\job
	If ship\hold[job\good] < job\amount
		job\carrier = Null
		ship\job = Null
		Note(ship\name + " gives up its contract for " + job\goal\name, LogDetail)
		Return False
	EndIf
	Return Launch(ship, NextStop(ship, job\goal))
End Function

;[End Block]

;[Block] Selling

; Sells what brings a fair price here. True when the hold is empty then, and the day is over.
Function SellHere(ship.Ship)
	Local number, income, fair#
	For number = 1 To GoodsMax
		If ship\hold[number] > 0
			; A good trader holds out for more.
			fair = .8 + ship\captain\trading * .02
			If SellPrice(ship\place\station, number) >= AveragePrice(number) * fair
				income = income + SellGood(ship, number, ship\hold[number])
			EndIf
		EndIf
	Next
	If income > 0 Then TellSale(ship, income)
	Return income > 0 And ship\load < 1
End Function

Function SellAll(ship.Ship)
	Local number, income
	For number = 1 To GoodsMax
		If ship\hold[number] > 0 Then income = income + SellGood(ship, number, ship\hold[number])
	Next
	ship\load = 0
	If income > 0 Then TellSale(ship, income)
	Return income
End Function

; Tells of a sale, and of its gain when the cargo was bought.
Function TellSale(ship.Ship, income)
	Local text$ = ship\name + " sells at " + ship\place\name + " for " + Credits$(income)
	If ship\paid > 0 And ship\load < 1
		If income >= ship\paid
			text = text + ", a gain of " + Credits$(Int(income - ship\paid))
		Else
			text = text + ", a loss of " + Credits$(Int(ship\paid - income))
		EndIf
	EndIf
	If ship\load < 1 Then ship\paid = 0
	If income > 2500 Then Note(text) Else Note(text, LogDetail)
End Function

; Flies to where the cargo brings the most for each day on the way.
Function SellElsewhere(ship.Ship)
	Local star.StarSystem, best.StarSystem
	Local value#, highest#
	Local here# = CargoPriceAt(ship, ship\place)
	For star = Each StarSystem
		If star <> ship\place And (Not star\station\onStrike)
			If CanReach(ship, star)
				value = CargoPriceAt(ship, star) - here - FlightCost(ship, star)
				value = value / FlightDays(ship, ship\place, star)
				If value > highest
					highest = value
					best = star
				EndIf
			EndIf
		EndIf
	Next
	If best = Null Or highest < 60 Then Return False
	Return Launch(ship, best)
End Function

Function CargoPriceAt#(ship.Ship, star.StarSystem)
	Local number, value#
	For number = 1 To GoodsMax
		If ship\hold[number] > 0
			value = value + ship\hold[number] * SellPrice(star\station, number)
		EndIf
	Next
	Return value
End Function

; What a flight costs: fuel, wages, the dock, and the risk that a captain without nerve sees in it.
Function FlightCost#(ship.Ship, goal.StarSystem)
	Local days = FlightDays(ship, ship\place, goal)
	Local fuel# = FuelFor(ship, ship\place, goal) * BuyPrice(ship\place\station, GoodFuel)
	Local fear# = RouteDanger(ship\place, goal) * days * (11 - ship\captain\nerve) * 60
	Return fuel + days * WageADay + DockFee + fear
End Function

;[End Block]

;[Block] Trading

; Takes the best contract that brings at least so much a day, buys its goods and sets off.
Function SeekContract(ship.Ship, least)
	Local contract.Contract = BestContract(ship)
	Local missing#
	If contract = Null Then Return False
	If ContractValue(contract, ship) < least Then Return False
	missing = contract\amount - ship\hold[contract\good]
	If missing > 0
		If BuyGood(ship, contract\good, Ceil(missing)) < missing Then Return False
	EndIf
	contract\carrier = ship
	ship\job = contract
	Note(ship\name + " takes contract " + contract\number + " for " + contract\goal\name + ", " + ContractText$(contract), LogDetail)
	Return Launch(ship, NextStop(ship, contract\goal))
End Function

; Looks for the best trade from here. True when the ship has set off with a cargo.
Function SeekTrade(ship.Ship)
	Local idea.Idea, best.Idea
	Local goal.StarSystem, bought#, number, amount#
	CollectIdeas(ship)
	For idea = Each Idea
		If best = Null
			best = idea
		ElseIf idea\profitADay > best\profitADay
			best = idea
		EndIf
	Next
	If best <> Null
		number = best\good
		amount = best\amount
		goal = best\goal
	EndIf
	Delete Each Idea
	If goal = Null Then Return False

	bought = BuyGood(ship, number, amount)
	If bought = 0 Then Return False
	Note(ship\name + " loads " + Fixed$(bought, 0) + " " + goods(number)\name + " for " + goal\name, LogDetail)
	Return Launch(ship, goal)
End Function

; Notes every trade that would pay. A captain with little skill overlooks some of them.
Function CollectIdeas(ship.Ship)
	Local star.StarSystem, number
	For star = Each StarSystem
		If star <> ship\place And (Not star\station\onStrike)
			If CanReach(ship, star)
				For number = 1 To GoodsMax
					If SkillTest(ship\captain\trading, 2) Then ConsiderTrade(ship, star, number)
				Next
			EndIf
		EndIf
	Next
End Function

Function ConsiderTrade(ship.Ship, goal.StarSystem, number)
	Local station.Station = ship\place\station
	Local price = BuyPrice(station, number)
	Local gain# = SellPrice(goal\station, number) - price
	Local amount#, profit#
	Local idea.Idea
	If gain <= 0 Then Return
	amount = Lesser2(station\stock[number] * .6, FreeTons(ship) / goods(number)\mass)
	amount = Floor(Lesser2(amount, Float(Spendable(ship\owner)) / price))
	; More than the other station lacks would press its price down.
	amount = Lesser2(amount, Floor(goal\station\target[number] * 1.2))
	If amount < 1 Then Return
	profit = gain * amount * .8 - FlightCost(ship, goal)
	If profit < 40 Then Return
	idea = New Idea
	idea\good = number
	idea\goal = goal
	idea\amount = amount
	idea\profitADay = profit / FlightDays(ship, ship\place, goal)
End Function

;[End Block]

;[Block] Looking for rocks

; Mines here when there is a belt, or flies to the best one. True when the day is used.
Function SeekRock(ship.Ship)
	Local belt.Belt, best.Belt
	Local value#, highest#
	For belt = Each Belt
		If BeltHasRoom(belt, ship)
			value = BeltScore(belt, ship)
			If value > highest
				highest = value
				best = belt
			EndIf
		EndIf
	Next
	If best = Null Then Return False
	If best\home = ship\place Then Return StartMining(ship, best)
	Return Launch(ship, NextStop(ship, best\home))
End Function

; What a load from a belt brings for each day, with the flight there. A belt out of reach counts for less.
Function BeltScore#(belt.Belt, ship.Ship)
	Local score# = BeltValue(belt, ship\tool, belt\home)
	Local days = 0
	If belt\home <> ship\place
		days = FlightDays(ship, ship\place, belt\home)
		If Not CanReach(ship, belt\home) Then score = score * .5
	EndIf
	score = score * (.6 + .08 * ship\captain\mining)
	Return score * 6 / (6 + days) - RouteDanger(ship\place, belt\home) * 400
End Function

; For a company that does both: whether mining promises more than trading does on average.
Function RockIsBetter(ship.Ship)
	Local belt.Belt, best#
	For belt = Each Belt
		If BeltHasRoom(belt, ship) Then best = Greater2(best, BeltScore(belt, ship))
	Next
	Return best > 120 + 15 * ship\captain\trading
End Function

; Nothing to do here: on to a busier place, once the captain is tired of waiting.
Function Wander(ship.Ship)
	Local goal.StarSystem
	If Not Percent(35) Then Return
	If ship\place = ship\owner\home
		goal = systems(Rand(1, SystemsMax))
	Else
		goal = ship\owner\home
	EndIf
	Launch(ship, NextStop(ship, goal))
End Function

;[End Block]

;~Zolto Editor Parameters:
;~B#6#A6
;~C#ZoltoBasic