;------------------------------------------------------------------------------
; The tables of the game. The subroutines in DeepVein.bb read them.
;------------------------------------------------------------------------------

;[Block] Goods
; Name, base price of a unit, tons for a unit, whether it is an ore, and how much
; its price wanders.

.GoodsTable
Data "iron", 14, 1.0, True, .02
Data "nickel", 22, 1.0, True, .03
Data "ice", 9, 1.0, True, .04
Data "gold", 80, .5, True, .03
Data "iridium", 150, .25, True, .06
Data "fuel", 16, .5, False, .03
Data "food", 24, .8, False, .02
Data "tools", 60, .5, False, .02
Data "medicine", 130, .2, False, .05
Data "machines", 280, 2., False, .02

;[End Block]

;[Block] Yields
; For each class of rock and each tool there is a line for each depth: iron, nickel,
; ice, gold and iridium, in parts of a hundred. What is missing to a hundred is waste.

.YieldTable
; stony rock, drill
Data 30, 8, 4, 0, 0
Data 32, 10, 2, 1, 0
Data 34, 12, 0, 2, 0
; stony rock, laser
Data 24, 6, 2, 1, 0
Data 26, 8, 1, 2, 0
Data 26, 10, 0, 3, 1
; stony rock, charges
Data 36, 10, 1, 0, 0
Data 38, 12, 1, 0, 0
Data 40, 14, 0, 1, 0

; metallic rock, drill
Data 45, 20, 0, 1, 0
Data 44, 24, 0, 2, 0
Data 42, 26, 0, 3, 1
; metallic rock, laser
Data 34, 18, 0, 2, 1
Data 34, 20, 0, 3, 1
Data 30, 22, 0, 4, 2
; metallic rock, charges
Data 50, 22, 0, 1, 0
Data 50, 24, 0, 1, 0
Data 48, 28, 0, 2, 0

; icy rock, drill
Data 2, 1, 70, 0, 0
Data 4, 2, 72, 0, 0
Data 6, 3, 66, 1, 0
; icy rock, laser
Data 2, 1, 55, 0, 0
Data 3, 2, 54, 1, 0
Data 4, 3, 50, 1, 1
; icy rock, charges
Data 1, 1, 60, 0, 0
Data 2, 1, 62, 0, 0
Data 3, 2, 64, 0, 0

; carbon rock, drill
Data 12, 4, 20, 1, 0
Data 12, 6, 16, 2, 0
Data 10, 8, 12, 2, 1
; carbon rock, laser
Data 10, 4, 14, 2, 1
Data 10, 6, 10, 3, 1
Data 8, 8, 6, 4, 2
; carbon rock, charges
Data 14, 5, 12, 1, 0
Data 14, 6, 12, 1, 0
Data 14, 8, 10, 2, 0

;[End Block]

;[Block] Stars
; Name, place, thousands of people, wealth, and the danger of pirates.

.SystemTable
Data "Meridian", 0.0, 0.0, 420, 1.4, .004
Data "Tamsin", 9.5, 3.0, 180, 1.1, .01
Data "Orrery", -7.0, 5.5, 240, 1.2, .012
Data "Cobalt", 4.0, -8.0, 90, .8, .03
Data "Lowell", -5.0, -7.5, 40, .7, .04
Data "Haven", 12.5, -4.5, 310, 1.35, .012
Data "Splinter", -13., -1.0, 25, .6, .07
Data "Ember", 2.5, 11.0, 70, .85, .045
Data "Farside", 16., 9.0, 35, .75, .08

;[End Block]

;[Block] Belts
; Name, number of the star, class of rock, richness, depth. An empty name ends the table.

.BeltTable
Data "Cobalt Ring", 4, 2, 1.0, 1
Data "Lowell Shoals", 5, 3, 1.8, 1
Data "Outer Lowell", 5, 1, 1.5, 1
Data "The Splinters", 7, 2, 1.3, 1
Data "Ash Drift", 8, 4, 1.1, 1
Data "Farside Deep", 9, 4, 1.4, 2
Data "Farside Rim", 9, 3, 1.0, 1
Data "Tamsin Gap", 2, 1, .8, 1
Data ""

;[End Block]

;[Block] Hulls
; Name, tons in the hold, tons of fuel, distance in a day, strength, price.

.HullTable
Data "courier", 30, 20, 5., 30, 6000
Data "prospector", 60, 16, 3.2, 60, 9000
Data "freighter", 140, 26, 2.8, 50, 15000
Data "hauler", 240, 32, 2.2, 80, 26000

;[End Block]

;[Block] Companies
; Name, strategy, money, number of ships, number of the home star. Then two lines for
; each ship: its name, hull and tool; its captain's name and skills in mining, trading
; and flying, and nerve.

.CompanyTable
Data "Kessel & Daughters", 1, 3000, 3, 4
	Data "Stubborn Mule", 2, 1
	Data "Agnes Kessel", 8, 4, 5, 7
	Data "Deep Breath", 2, 1
	Data "Tomas Wren", 6, 3, 6, 5
	Data "Old Reliable", 3, 1
	Data "Bea Kessel", 5, 6, 5, 4
Data "Meridian Freight", 2, 15000, 3, 1
	Data "Fair Exchange", 3, 1
	Data "Lucan Ferro", 2, 8, 6, 5
	Data "Second Thought", 1, 1
	Data "Ines Adeyemi", 3, 7, 9, 3
	Data "Round Number", 3, 1
	Data "Piet Halloran", 4, 6, 5, 6
Data "The Tamsin Combine", 3, 9000, 3, 2
	Data "Common Ground", 2, 2
	Data "Rosa Tamm", 6, 6, 6, 6
	Data "Long Odds", 1, 1
	Data "Silvan Birch", 5, 7, 7, 9
	Data "Plain Sailing", 3, 1
	Data "Mirja Koski", 5, 5, 4, 4

;[End Block]

;~Zolto Editor Parameters:
;~F#4#16#51#61#71#7C
;~C#ZoltoBasic