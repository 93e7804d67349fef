;------------------------------------------------------------------------------
; Deep Vein
; Three companies mine and trade among nine stars for one season. Nobody plays:
; the captains decide by themselves, and the season ends with a table of who did
; best. The same seed always gives the same season.
;
; Arguments: -seed N   another season        -days N   a shorter or longer one
;            -quiet    no daily log          -prices   the price table at the end
;------------------------------------------------------------------------------

Include "Constants.bb"
Include "Types.bb"
Include "Tools\Maths.bb"
Include "Tools\Text.bb"
Include "World\Galaxy.bb"
Include "world\market.bb"
Include "World\Contracts.bb"
Include "World\Events.bb"
Include "Fleet\Ships.bb"
Include "Fleet\Mining.bb"
Include "Fleet\Companies.bb"
Include "fleet\PILOTS.bb"
Include "Report.bb"

;[Block] Start

ReadArguments()
SeedRnd gameSeed

Gosub LoadGoods
Gosub LoadYields
Gosub LoadSystems
Gosub LoadBelts
Gosub LoadHulls
Gosub LoadCompanies

MeasureDistances()
OpenStations()
PrintTitle()

;[End Block]

;[Block] The season

While today < seasonDays
	today = today + 1
	BeginDay()
	UpdateEvents()
	UpdateStations()
	UpdateContracts()
	UpdateCompanies()
	UpdateShips()
	RecordPrices()
	RecordWorth()
	If today Mod ReportEvery = 0 Then PrintMonth()
Wend

SellEverything()
PrintSummary()
If showPrices Then PrintPriceTable()
CheckBooks()
End

;[End Block]

;[Block] Subroutines that read the tables
; The tables themselves stand in Tables.bb. They are read here, in the main program,
; because Read and Restore work on the main program's data.

.LoadGoods
Restore GoodsTable
For goodNumber = 1 To GoodsMax
	good.Good = New Good
	good\index = goodNumber
	Read good\name, good\basePrice, good\mass, good\isOre, good\volatility
	goods(goodNumber) = good
Next
Return

; The yield of each class of rock, by tool and depth, in parts of a hundred for each good.
.LoadYields
Restore YieldTable
For class = 1 To RockClasses
	For tool = 1 To ToolsMax
		For depth = 1 To DepthsMax
			sum# = 0
			For ore = 1 To OresMax
				Read share
				oreYield(class, tool, depth, ore) = share * .01
				sum = sum + share
			Next
			If sum > 100.
				RuntimeError "Yields of class " + class + " with tool " + tool + " exceed a hundred"
			EndIf
		Next
	Next
Next
Return

.LoadSystems
Restore SystemTable
For number = 1 To SystemsMax
	star.StarSystem = New StarSystem
	star\index = number
	Read star\name, star\x, star\y, star\population, star\wealth, star\danger
	systems(number) = star
Next
Return

.LoadBelts
Restore BeltTable
Repeat
	Read beltName$
	If beltName = "" Then Exit
	Read systemNumber, class, richness#, depth
	CreateBelt(beltName, systems(systemNumber), class, richness, depth)
Forever
Return

.LoadHulls
Restore HullTable
For hullNumber = 1 To HullsMax
	hull.Hull = New Hull
	Read hull\name, hull\holdSize, hull\tank, hull\speed, hull\strength, hull\price
	hulls(hullNumber) = hull
Next
Return

; A company is followed by its ships, and each ship by its captain.
.LoadCompanies
Restore CompanyTable
For companyNumber = 1 To CompaniesMax
	Read companyName$, strategy, money, shipCount, homeNumber
	firm.Company = CreateCompany(companyName, strategy, money, systems(homeNumber))
	For shipNumber = 1 To shipCount
		Read shipName$, hullNumber, tool
		ship.Ship = CreateShip(shipName, hulls(hullNumber), firm, tool)
		Read captainName$, mining, trading, flying, nerve
		ship\captain = CreateCaptain(captainName, mining, trading, flying, nerve)
	Next
Next
Return

;[End Block]

; Takes the arguments apart. An argument that is not known is passed over.
Function ReadArguments()
	Local rest$ = Trim$(CommandLine$()) + " "
	Local word$, value
	While Len(rest) > 1
		word = Lower$(FirstWord$(rest))
		rest = AfterFirstWord$(rest)
		Select word
			Case "-seed", "-days"
				value = Int(FirstWord$(rest))
				rest = AfterFirstWord$(rest)
				If word = "-seed" And value <> 0 Then gameSeed = value
				If word = "-days" And value > 0 Then seasonDays = Lesser(value, LongestSeason)
			Case "-quiet"
				quiet = True
			Case "-prices"
				showPrices = True
		End Select
	Wend
End Function

; Clears what only counts for one day.
Function BeginDay()
	Local star.StarSystem
	linesToday = 0
	For star = Each StarSystem
		star\arrivals = 0
	Next
End Function

Include "Tables.bb"

;~Zolto Editor Parameters:
;~B#2C#81
;~C#ZoltoBasic