;------------------------------------------------------------------------------
; What stays the same during a season, and what everything shares.
; Arrays are dimensioned here, before any code that uses them.
;------------------------------------------------------------------------------

;[Block] Sizes

Const GoodsMax = 10			; goods 1 to 5 are ores, the others are made
Const OresMax = 5
Const SystemsMax = 9
Const HullsMax = 4
Const CompaniesMax = 3
Const RockClasses = 4
Const ToolsMax = 3
Const DepthsMax = 3
Const SamplesMax = 200		; of a company's worth, over the season
Const SampleEvery = 5		; days
Const HistoryDays = 8		; a power of two, see RecordPrices
Const RocksInBelt = 6

;[End Block]

;[Block] Goods by number

Const GoodIron = 1
Const GoodNickel = 2
Const GoodIce = 3
Const GoodGold = 4
Const GoodIridium = 5
Const GoodFuel = 6
Const GoodFood = 7
Const GoodTools = 8
Const GoodMedicine = 9
Const GoodMachines = 10

;[End Block]

;[Block] States and kinds

; What a ship is doing
Const ShipIdle = 0
Const ShipFlying = 1
Const ShipMining = 2
Const ShipRepairing = 3
Const ShipStranded = 4
Const ShipLost = 5

; How a company makes its living
Const StrategyMiner = 1
Const StrategyTrader = 2
Const StrategyMixed = 3

; Tools for mining
Const ToolDrill = 1
Const ToolLaser = 2
Const ToolCharges = 3

; Events
Const EventStrike = 1
Const EventFestival = 2
Const EventPirates = 3
Const EventShortage = 4
Const EventGlut = 5
Const EventDiscovery = 6
Const EventKinds = 6

; How much a line of the log matters
Const LogDetail = 1
Const LogNormal = 2
Const LogHeadline = 3

;[End Block]

;[Block] Rules

Const DefaultSeed = 2417
Const DefaultDays = 120
Const LongestSeason = 1000
Const ReportEvery = 30
Const MostLinesADay = 6		; the rest of a busy day is only counted

Const FuelPerUnit# = .9		; tons of fuel for one unit of distance
Const MinePerDay# = 6.		; tons that a captain without skill brings up in a day
Const WageADay = 18
Const DockFee = 40
Const RepairPrice = 25		; for one point of hull
Const InterestADay# = .0004
Const MostDebt = 15000
Const RescuePrice = 1200
Const PirateShare# = .6		; of the cargo
Const FleeBurns# = .15		; of a full tank

Const PriceFloor# = .35		; of the base price
Const PriceCeiling# = 3.2
Const PricePull# = .12		; how fast a price moves to where supply and demand want it

;[End Block]

;[Block] Globals

Global gameSeed = DefaultSeed
Global seasonDays = DefaultDays
Global quiet = False
Global showPrices = False
Global today = 0

; The log
Global linesToday, linesHeldBack
Global headlines

; Counters for the summary
Global tonsMined#, tonsTraded#, tripsFlown
Global shipsLost, attacks, rescues
Global contractsOffered, contractsKept, contractsBroken

; Money that came into the game and left it, so that the books can be checked at the end
Global moneyCreated, moneyDestroyed

;[End Block]

;[Block] Arrays

Dim goods.Good(GoodsMax)
Dim systems.StarSystem(SystemsMax)
Dim hulls.Hull(HullsMax)

; Distance between two systems; the same both ways
Dim distance#(SystemsMax, SystemsMax)

; Prices of the last days, by system, good and day modulo HistoryDays
Dim priceHistory#(SystemsMax, GoodsMax, HistoryDays - 1)

; Part of a ton of rock that is ore, by class of rock, tool, depth and ore
Dim oreYield#(RockClasses, ToolsMax, DepthsMax, OresMax)

; Worth of each company over the season
Dim worthHistory(CompaniesMax, SamplesMax)

; Scratch table for the reports
Dim rankName$(CompaniesMax)
Dim rankWorth(CompaniesMax)

;[End Block]

;~Zolto Editor Parameters:
;~C#ZoltoBasic