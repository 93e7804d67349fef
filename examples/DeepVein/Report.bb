;------------------------------------------------------------------------------
; What is printed besides the log: the title, the month, and the end of the season.
;------------------------------------------------------------------------------

Const PageWidth = 78

;[Block] Title

Function PrintTitle()
	Local middle.StarSystem = CentralSystem()
	Local firm.Company, names$
	Print Ruler$(PageWidth, "=")
	Print Centred$("D E E P   V E I N", PageWidth)
	Print Centred$("a season of " + Counted$(seasonDays, "day") + ", seed " + gameSeed, PageWidth)
	Print Ruler$(PageWidth, "=")
	For firm = Each Company
		names = AppendToList$(names, firm\name)
	Next
	Print names + " share " + SystemsMax + " stars."
	Print "They lie within " + Fixed$(GalaxyWidth#(), 1) + " units, with " + middle\name + " in the middle."
	PrintSystems(middle)
	Print ""
End Function

; A line for each star: where it lies, who lives there, what it makes.
Function PrintSystems(middle.StarSystem)
	Local star.StarSystem, where$
	Print ""
	Print LeftColumn$("Star", 12) + LeftColumn$("Direction", 12) + RightColumn$("People", 8) + "  " + LeftColumn$("Danger", 11) + "Makes"
	For star = Each StarSystem
		If star = middle
			where = "centre"
		Else
			where = Direction$(middle\x, middle\y, star\x, star\y)
		EndIf
		Write LeftColumn$(star\name, 12)
		Write LeftColumn$(where, 12)
		Write RightColumn$(Thousands$(star\population), 7) + "k  "
		Write LeftColumn$(DangerName$(star\danger), 11)
		Print MakesText$(star\station)
	Next
End Function

Function MakesText$(station.Station)
	Local number, list$, belt.Belt
	For number = 1 To GoodsMax
		If station\makes[number] > 0 Then list = AppendToList$(list, goods(number)\name)
	Next
	For belt = Each Belt
		If belt\home = station\home Then list = AppendToList$(list, ClassName$(belt\class) + " rock")
	Next
	If list = "" Then list = "nothing"
	Return list
End Function

;[End Block]

;[Block] The month

; A table of the companies, and then the account starts anew.
Function PrintMonth()
	Local firm.Company
	If Not quiet
		Print ""
		Print Centred$("- After day " + today + " -", PageWidth)
		Print CompanyHeading$()
		For firm = Each Company
			PrintCompany(firm)
		Next
		PrintGoodsOfTheMonth()
		PrintFleet()
		If linesHeldBack > 0 Then Print Counted$(linesHeldBack, "line") + " of busy days not shown."
		Print ""
	EndIf
	linesHeldBack = 0
	For firm = Each Company
		firm\income = 0
		firm\costs = 0
	Next
End Function

Function CompanyHeading$()
	Local line$ = LeftColumn$("Company", 20)
	line = line + RightColumn$("Money", 10) + RightColumn$("Debt", 9)
	line = line + RightColumn$("Income", 10) + RightColumn$("Costs", 10)
	Return line + RightColumn$("Worth", 11) + RightColumn$("Ships", 7)
End Function

Function PrintCompany(firm.Company)
	Write LeftColumn$(firm\name, 20)
	Write RightColumn$(Thousands$(firm\money), 10)
	Write RightColumn$(Thousands$(firm\debt), 9)
	Write RightColumn$(Thousands$(firm\income), 10)
	Write RightColumn$(Thousands$(firm\costs), 10)
	Write RightColumn$(Thousands$(NetWorth(firm)), 11)
	Print RightColumn$(Str$(firm\shipCount), 7)
End Function

; The two goods whose prices are furthest apart, with where to buy and where to sell.
Function PrintGoodsOfTheMonth()
	Local best = WidestGood(0)
	Print ""
	Print SpreadText$(best)
	Print SpreadText$(WidestGood(best))
End Function

Function WidestGood(leaveOut)
	Local number, best, spread#, widest#
	For number = 1 To GoodsMax
		spread = PriceSpread(number)
		If spread > widest And number <> leaveOut
			widest = spread
			best = number
		EndIf
	Next
	Return best
End Function

; The dearest price of a good as a multiple of the cheapest.
Function PriceSpread#(number)
	Local cheap.StarSystem = ExtremeMarket(number, False)
	Local dear.StarSystem = ExtremeMarket(number, True)
	Return dear\station\price[number] / cheap\station\price[number]
End Function

Function SpreadText$(number)
	Local cheap.StarSystem = ExtremeMarket(number, False)
	Local dear.StarSystem = ExtremeMarket(number, True)
	Local text$ = Capital$(goods(number)\name) + " costs " + Money(cheap\station\price[number])
	text = text + " at " + cheap\name + " (" + Trend$(cheap, number) + ") and "
	Return text + Money(dear\station\price[number]) + " at " + dear\name + " (" + Trend$(dear, number) + ")"
End Function

; What every ship is doing.
Function PrintFleet()
	Local ship.Ship
	Print ""
	For ship = Each Ship
		If ship\state <> ShipLost
			Write "  " + LeftColumn$(ship\name, 20) + LeftColumn$(ship\hull\name, 11)
			Write LeftColumn$(Condition$(ship), 9)
			Write LeftColumn$("[" + Bar$(ship\load, ship\hull\holdSize, 8) + "]", 12)
			Print Doing$(ship)
		EndIf
	Next
End Function

Function Doing$(ship.Ship)
	Select ship\state
		Case ShipFlying
			Return "to " + ship\goal\name + ", " + Counted$(ship\daysLeft, "day")
		Case ShipMining
			Return "mines " + ship\belt\name
		Case ShipRepairing
			Return "in the yard at " + ship\place\name
		Case ShipStranded
			Return "adrift"
	End Select
	Return "in port at " + ship\place\name
End Function

;[End Block]

;[Block] The end of the season

; Every ship sells what it has, as if it were in port where it was last.
Function SellEverything()
	Local ship.Ship, firm.Company
	linesToday = 0
	For ship = Each Ship
		If ship\state <> ShipLost
			If ship\state = ShipMining Then StopMining(ship)
			If ship\load > 0 Then SellAll(ship)
		EndIf
	Next
	For firm = Each Company
		Repay(firm, firm\money)
	Next
End Function

Function PrintSummary()
	Print Ruler$(PageWidth, "=")
	Print Centred$("The season is over", PageWidth)
	Print Ruler$(PageWidth, "=")
	PrintRanking()
	PrintChart()
	PrintShips()
	PrintBelts()
	PrintGoods()
	PrintNumbers()
End Function

; The companies by what they have gained. The names stand in an array beside the numbers.
Function PrintRanking()
	Local firm.Company, count, i
	For firm = Each Company
		count = count + 1
		rankName(count) = firm\name
		rankWorth(count) = NetWorth(firm) - StartWorth(firm)
	Next
	SortRanks(count)
	For i = 1 To count
		Write RightColumn$(Str$(i), 3) + "  " + LeftColumn$(rankName(i), 20)
		If rankWorth(i) >= 0
			Print RightColumn$("+" + Thousands$(rankWorth(i)), 10) + " cr"
		Else
			Print RightColumn$(Thousands$(rankWorth(i)), 10) + " cr"
		EndIf
	Next
	Print ""
	If rankWorth(1) > 0
		Print rankName(1) + " wins the season."
	Else
		Print "Nobody has gained anything. The miners blame the traders, and the traders the pirates."
	EndIf
End Function

; Money at the start, with the price of the ships that it began with.
Function StartWorth(firm.Company)
	Local ship.Ship, worth = firm\startMoney, count
	For ship = Each Ship
		If ship\owner = firm And count < 3
			worth = worth + ship\hull\price * 2 / 3
			count = count + 1
		EndIf
	Next
	Return worth
End Function

; Sorts the ranks by insertion; there are few of them.
Function SortRanks(count)
	Local i, j, worth, name$
	For i = 2 To count
		worth = rankWorth(i)
		name = rankName(i)
		j = i - 1
		While j >= 1
			If rankWorth(j) >= worth Then Exit
			rankWorth(j + 1) = rankWorth(j)
			rankName(j + 1) = rankName(j)
			j = j - 1
		Wend
		rankWorth(j + 1) = worth
		rankName(j + 1) = name
	Next
End Function

; The ships by what they have earned. The list of the type itself is sorted.
Function PrintShips()
	Local ship.Ship
	SortShips()
	Print ""
	Print LeftColumn$("Ship", 20) + LeftColumn$("Captain", 20) + LeftColumn$("Skills", 10) + RightColumn$("Trips", 6) + RightColumn$("Earned", 12)
	For ship = Each Ship
		Write LeftColumn$(ship\name, 20) + LeftColumn$(ship\captain\name, 20)
		Write LeftColumn$(ship\captain\mining + "-" + ship\captain\trading + "-" + ship\captain\flying, 10)
		Write RightColumn$(Str$(ship\trips), 6)
		Write RightColumn$(Thousands$(ship\earned), 12)
		If ship\state = ShipLost Print "  lost" Else Print ""
	Next
End Function

Function SortShips()
	Local ship.Ship, other.Ship, following.Ship
	ship = First Ship
	While ship <> Null
		following = After ship
		other = First Ship
		While other <> ship
			If other\earned < ship\earned
				Insert ship Before other
				Exit
			EndIf
			other = After other
		Wend
		ship = following
	Wend
End Function

Function PrintBelts()
	Local belt.Belt, most#
	For belt = Each Belt
		most = Greater2(most, belt\mined)
	Next
	Print ""
	Print LeftColumn$("Belt", 20) + LeftColumn$("Star", 12) + LeftColumn$("Rock", 10) + RightColumn$("Depth", 6) + RightColumn$("Mined", 12)
	For belt = Each Belt
		Write LeftColumn$(belt\name, 20) + LeftColumn$(belt\home\name, 12) + LeftColumn$(ClassName$(belt\class), 10)
		Write RightColumn$(Str$(belt\depth), 6) + RightColumn$(Tons$(belt\mined), 12)
		Print "  " + Bar$(belt\mined, most, 16)
	Next
End Function

Function PrintGoods()
	Local good.Good
	Print ""
	Print LeftColumn$("Good", 12) + RightColumn$("Bought", 10) + RightColumn$("Sold", 10) + RightColumn$("Base", 9) + RightColumn$("Now", 9) + "  Cheapest at"
	For good = Each Good
		Write LeftColumn$(Capital$(good\name), 12)
		Write RightColumn$(Thousands$(good\bought), 10)
		Write RightColumn$(Thousands$(good\sold), 10)
		Write RightColumn$(Fixed$(good\basePrice, 0), 9)
		Write RightColumn$(Fixed$(AveragePrice(good\index), 1), 9)
		Print "  " + CheapestName$(good\index)
	Next
End Function

Function CheapestName$(number)
	Local star.StarSystem = ExtremeMarket(number, False)
	Return star\name
End Function

Function PrintNumbers()
	Print ""
	Print "Mined   " + RightColumn$(Tons$(tonsMined), 12)
	Print "Traded  " + RightColumn$(Tons$(tonsTraded), 12)
	Print "Flights " + RightColumn$(Thousands$(tripsFlown), 12)
	Print ""
	Print Counted$(contractsOffered, "contract") + " offered, " + contractsKept + " kept, " + contractsBroken + " broken, " + OpenContracts() + " open."
	Print Counted$(attacks, "attack") + " by pirates, " + Counted$(shipsLost, "ship") + " lost, " + Counted$(rescues, "rescue") + "."
	Print Counted$(headlines, "headline") + "."
	PrintBusiestPort()
End Function

Function PrintBusiestPort()
	Local star.StarSystem, best.StarSystem = First StarSystem
	For star = Each StarSystem
		If star\visits > best\visits Then best = star
	Next
	Print "The busiest port was " + best\name + " with " + Counted$(best\visits, "arrival") + " and " + Credits$(best\station\turnover) + " of trade."
End Function

;[End Block]

;[Block] The chart

Const ChartHeight = 12
Const ChartWidth = 60

; Takes a sample of what every company is worth. The first one is of the first day.
Function RecordWorth()
	Local firm.Company, sample
	If today Mod SampleEvery <> 1 Then Return
	sample = today / SampleEvery
	If sample > SamplesMax Then Return
	For firm = Each Company
		worthHistory(firm\index, sample) = NetWorth(firm)
	Next
End Function

; Draws the worth of all companies over the season. Each has a letter of its name as its mark; where two of
; them meet there is a star.
Function PrintChart()
	Local row, column, samples = (today - 1) / SampleEvery
	Local highest, lowest, span#
	If samples < 2 Then Return
	samples = Lesser(samples, SamplesMax)
	highest = ExtremeWorth(samples, True)
	lowest = ExtremeWorth(samples, False)
	span = Greater(1, highest - lowest)

	Print ""
	Print "Worth in thousands, over the season (" + ChartLegend$() + ")"
	For row = ChartHeight To 0 Step -1
		If row Mod 3 = 0
			Write RightColumn$(Fixed$((lowest + span * row / ChartHeight) / 1000, 0), 7) + " |"
		Else
			Write String$(" ", 7) + " |"
		EndIf
		For column = 0 To ChartWidth - 1
			Write ChartMark$(row, column * samples / ChartWidth, lowest, span)
		Next
		Print ""
	Next
	Print String$(" ", 8) + "+" + Ruler$(ChartWidth)
End Function

; The mark at a place of the chart.
Function ChartMark$(row, sample, lowest, span#)
	Local firm.Company, mark$ = " "
	Local height
	For firm = Each Company
		height = Int(Floor((worthHistory(firm\index, sample) - lowest) / span * ChartHeight + .5))
		If height = row
			If mark = " " Then mark = CompanyMark$(firm) Else mark = "*"
		EndIf
	Next
	Return mark
End Function

; The first letter of the last word of its name.
Function CompanyMark$(firm.Company)
	Local rest$ = firm\name, word$
	While rest <> ""
		word = FirstWord$(rest)
		rest = Trim$(AfterFirstWord$(rest))
	Wend
	Return Left$(word, 1)
End Function

Function ChartLegend$()
	Local firm.Company, list$
	For firm = Each Company
		list = AppendToList$(list, CompanyMark$(firm) + " " + firm\name)
	Next
	Return list
End Function

Function ExtremeWorth(samples, highest)
	Local number, sample, best = worthHistory(1, 0)
	For number = 1 To CompaniesMax
		For sample = 0 To samples
			If highest
				best = Greater(best, worthHistory(number, sample))
			Else
				best = Lesser(best, worthHistory(number, sample))
			EndIf
		Next
	Next
	Return best
End Function

;[End Block]

;[Block] Prices and books

; All prices at all stations, and a line that shows how each of them moved lately.
Function PrintPriceTable()
	Local star.StarSystem, good.Good
	Print ""
	Write LeftColumn$("Price", 12)
	For star = Each StarSystem
		Write RightColumn$(Left$(star\name, 6), 7)
	Next
	Print ""
	For good = Each Good
		Write LeftColumn$(Capital$(good\name), 12)
		For star = Each StarSystem
			Write RightColumn$(Fixed$(star\station\price[good\index], 0), 7)
		Next
		Print ""
		Write LeftColumn$("", 12)
		For star = Each StarSystem
			Write RightColumn$(Course$(star, good\index), 7)
		Next
		Print ""
	Next
End Function

; The course of a price as a few marks, oldest first.
Function Course$(star.StarSystem, number)
	Local days, earlier#, later#, marks$
	For days = 5 To 1 Step -1
		earlier = PriceBefore(star, number, days)
		later = PriceBefore(star, number, days - 1)
		If later > earlier * 1.02
			marks = marks + "/"
		ElseIf later < earlier * .98
			marks = marks + "\"
		Else
			marks = marks + "-"
		EndIf
	Next
	Return marks
End Function

; No money may appear or vanish without having gone through Earn and Pay.
Function CheckBooks()
	Local firm.Company, have, expected = moneyCreated - moneyDestroyed
	For firm = Each Company
		have = have + firm\money - firm\debt
		expected = expected + firm\startMoney
	Next
	If have = expected
		Print "The books agree at " + Credits$(have) + "."
	Else
		Print "The books do not agree. There should be " + Credits$(expected) + ", there are " + Credits$(have) + "."
	EndIf
End Function

;[End Block]

;~Zolto Editor Parameters:
;~C#ZoltoBasic