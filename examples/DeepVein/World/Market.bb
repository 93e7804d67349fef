;------------------------------------------------------------------------------
; Stations and prices. Each station makes some goods and uses up others. A price
; is pulled towards where the stock says it should be, and wanders a little.
;------------------------------------------------------------------------------

;[Block] Opening

; Gives every system its station. What it makes follows from its population and wealth.
Function OpenStations()
	Local star.StarSystem, number
	For star = Each StarSystem
		star\station = New Station
		star\station\home = star
		star\station\bonus = 1.
		PlanIndustry(star\station)
		For number = 1 To GoodsMax
			OpenShelf(star\station, goods(number))
		Next
	Next
End Function

; What a station makes and needs in a day, in units.
Function PlanIndustry(station.Station)
	Local people = station\home\population
	Local wealth# = station\home\wealth

	; Everybody eats, burns fuel and falls ill.
	station\needs[GoodFood] = 2 + people / 40
	station\needs[GoodFuel] = 2 + people / 60
	station\needs[GoodMedicine] = 1 + people / 120
	station\needs[GoodIce] = 2 + people / 50

	; Farms in rich systems, refineries where there is ice, workshops and foundries where there are many hands.
	If wealth > 1.1
		station\makes[GoodFood] = 12 + people / 20
		station\needs[GoodTools] = 2
	EndIf
	If wealth < .9 Or people < 60
		station\makes[GoodFuel] = 18
		station\needs[GoodIce] = station\needs[GoodIce] + 8
	EndIf
	If people > 150
		station\makes[GoodTools] = 4 + people / 100
		station\needs[GoodIron] = 9
		station\needs[GoodNickel] = 5
	EndIf
	If people > 300
		station\makes[GoodMachines] = 3
		station\needs[GoodIron] = station\needs[GoodIron] + 6
		station\needs[GoodIridium] = 1
	Else
		station\needs[GoodMachines] = 1
	EndIf
	If wealth > 1.3
		station\makes[GoodMedicine] = 5
		station\needs[GoodGold] = 2
	EndIf
End Function

; Puts a first stock of a good on the shelf.
Function OpenShelf(station.Station, good.Good)
	Local number = good\index
	Local flow = station\makes[number] + station\needs[number]
	station\target[number] = 20 + 10 * flow
	station\stock[number] = station\target[number] * Rnd(.5, 1.5)
	station\price[number] = WantedPrice(station, good)
End Function

;[End Block]

;[Block] Prices

; Where supply and demand want a price: the base price at the target stock, more below it, less above.
Function WantedPrice#(station.Station, good.Good)
	Local number = good\index
	Local filled# = (station\stock[number] + 1.) / (station\target[number] + 1.)
	Local price# = good\basePrice * (.6 + .8 / (filled + .6))
	price = price * Blend(1., station\home\wealth, .4) * station\bonus * EventFactor(station\home, number)
	Return Limit(price, good\basePrice * PriceFloor, good\basePrice * PriceCeiling)
End Function

; Moves all prices of a station by one day.
Function MovePrices(station.Station)
	Local good.Good, number, wanted#, price#
	For good = Each Good
		number = good\index
		wanted = WantedPrice(station, good)
		price = Blend(station\price[number], wanted, PricePull)
		price = price * (1 + Wobble() * good\volatility)
		station\price[number] = Limit(price, good\basePrice * PriceFloor, good\basePrice * PriceCeiling)
	Next
End Function

; What a ship pays for one unit, and what it gets. The station keeps the difference.
Function BuyPrice(station.Station, number)
	Return Money(station\price[number] * 1.03)
End Function

Function SellPrice(station.Station, number)
	Return Money(station\price[number] * .97)
End Function

; The price of a good some days ago; of the first day, when that is not so long ago.
Function PriceBefore#(star.StarSystem, number, days)
	Local day = Greater(1, today - Lesser(days, HistoryDays - 1))
	Return priceHistory(star\index, number, day And (HistoryDays - 1))
End Function

; Stores the prices of the day. The days wrap around, so the table keeps the last ones.
Function RecordPrices()
	Local star.StarSystem, number
	For star = Each StarSystem
		For number = 1 To GoodsMax
			priceHistory(star\index, number, today And (HistoryDays - 1)) = star\station\price[number]
		Next
	Next
End Function

; "rising", "falling" or "steady", seen over the days that are kept.
Function Trend$(star.StarSystem, number)
	Local earlier# = PriceBefore(star, number, HistoryDays - 1)
	Local now# = star\station\price[number]
	If now > earlier * 1.08 Then Return "rising"
	If now < earlier * .92 Then Return "falling"
	Return "steady"
End Function

; The average price of a good over all stations.
Function AveragePrice#(number)
	Local star.StarSystem, sum#
	For star = Each StarSystem
		sum = sum + star\station\price[number]
	Next
	Return sum / SystemsMax
End Function

; Where a good is cheapest or dearest.
Function ExtremeMarket.StarSystem(number, dearest)
	Local star.StarSystem, best.StarSystem, better
	For star = Each StarSystem
		If best = Null
			best = star
		Else
			better = star\station\price[number] < best\station\price[number]
			If dearest Then better = star\station\price[number] > best\station\price[number]
			If better Then best = star
		EndIf
	Next
	Return best
End Function

;[End Block]

;[Block] A day of a station

Function UpdateStations()
	Local station.Station
	For station = Each Station
		If Not station\onStrike Then RunIndustry(station)
		UseUp(station)
		MovePrices(station)
		ShipIn(station)
	Next
End Function

; Makes goods. What is made of ore needs the ore: without it a station works at a quarter of its pace.
Function RunIndustry(station.Station)
	Local number, made#, pace#
	For number = 1 To GoodsMax
		If station\makes[number] > 0
			pace = 1.
			Select number
				Case GoodFuel
					pace = Supply(station, GoodIce)
				Case GoodTools
					pace = Lesser2(Supply(station, GoodIron), Supply(station, GoodNickel))
				Case GoodMachines
					pace = Lesser2(Supply(station, GoodIron), Supply(station, GoodIridium))
				Case GoodMedicine
					pace = Supply(station, GoodGold)
			End Select
			made = station\makes[number] * pace
			; A full store is no reason to make more.
			If station\stock[number] > station\target[number] * 2 Then made = made * .2
			station\stock[number] = station\stock[number] + made
		EndIf
	Next
End Function

; From .25 without any stock to 1 with stock for three days.
Function Supply#(station.Station, number)
	Local days#
	If station\needs[number] = 0 Then Return 1
	days = station\stock[number] / station\needs[number]
	Return Limit(.25 + days * .25, .25, 1)
End Function

Function UseUp(station.Station)
	Local number
	For number = 1 To GoodsMax
		station\stock[number] = Greater2(0, station\stock[number] - station\needs[number])
	Next
End Function

; A station is no island: when a good has nearly run out, a little of it comes from beyond the nine stars.
Function ShipIn(station.Station)
	Local number
	For number = 1 To GoodsMax
		If station\stock[number] < station\target[number] * .05
			station\stock[number] = station\stock[number] + station\target[number] * .03
		EndIf
		; And what lies about for long is sold abroad.
		If station\stock[number] > station\target[number] * 3
			station\stock[number] = station\stock[number] * .97
		EndIf
	Next
End Function

;[End Block]

;[Block] Trading with ships

; Sells a ship a good, at most the amount asked for, and what fits and can be paid.
; Returns the units that were bought.
Function BuyGood#(ship.Ship, number, amount#)
	Local station.Station = ship\place\station
	Local price = BuyPrice(station, number)
	Local units#, cost
	units = Lesser2(amount, station\stock[number])
	units = Lesser2(units, FreeTons(ship) / goods(number)\mass)
	units = Floor(Lesser2(units, Float(Spendable(ship\owner)) / price))
	If units < 1 Then Return 0

	cost = Int(units * price)
	Pay(ship\owner, cost)
	station\stock[number] = station\stock[number] - units
	station\turnover = station\turnover + cost
	ship\hold[number] = ship\hold[number] + units
	ship\load = ship\load + units * goods(number)\mass
	ship\paid = ship\paid + cost
	goods(number)\bought = goods(number)\bought + units
	Return units
End Function

; Buys a good from a ship. The price falls while it is sold, so a large cargo is sold in lots.
; Returns the money that came in.
Function SellGood(ship.Ship, number, amount#)
	Local station.Station = ship\place\station
	Local lot#, sum, rest# = Lesser2(amount, ship\hold[number])
	While rest > .001
		lot = Lesser2(rest, 10)
		sum = sum + Money(lot * SellPrice(station, number))
		station\stock[number] = station\stock[number] + lot
		station\price[number] = Blend(station\price[number], WantedPrice(station, goods(number)), .08)
		ship\hold[number] = ship\hold[number] - lot
		ship\load = Greater2(0, ship\load - lot * goods(number)\mass)
		tonsTraded = tonsTraded + lot * goods(number)\mass
		goods(number)\sold = goods(number)\sold + lot
		rest = rest - lot
	Wend
	If ship\hold[number] < .001 Then ship\hold[number] = 0
	station\turnover = station\turnover + sum
	Earn(ship\owner, sum)
	ship\earned = ship\earned + sum
	Return sum
End Function

;[End Block]

;~Zolto Editor Parameters:
;~B#49
;~C#ZoltoBasic