;------------------------------------------------------------------------------
; The types. A record that belongs to another one names it, never the other way
; round, unless the way back is needed every day.
;------------------------------------------------------------------------------

;[Block] World

Type Good
	Field index
	Field name$
	Field basePrice#
	Field mass#					; tons for one unit of it
	Field isOre
	Field volatility#			; how much its price wanders by itself, in parts of one
	Field sold, bought			; units, over the season
End Type

Type StarSystem
	Field index
	Field name$
	Field x#, y#
	Field population			; thousands
	Field wealth#				; 1 is the average
	Field danger#				; chance of meeting pirates on a day of flight
	Field station.Station
	Field arrivals				; ships that docked today
	Field visits				; ships that docked since the start
End Type

Type Station
	Field home.StarSystem
	Field stock#[GoodsMax]
	Field price#[GoodsMax]
	Field target#[GoodsMax]		; stock at which the price is the base price
	Field makes[GoodsMax]		; units made in a day
	Field needs[GoodsMax]		; units used up in a day
	Field onStrike
	Field bonus#				; factor on all prices, 1 unless there is a festival
	Field turnover
End Type

Type Belt
	Field name$
	Field home.StarSystem
	Field class					; of its rocks, 1 to RockClasses
	Field richness#
	Field depth					; deepest level that has been reached, 1 to DepthsMax
	Field rocks					; that are left
	Field mined#				; tons, over the season
End Type

Type Rock
	Field belt.Belt
	Field mass#
	Field grade#				; factor on the yield
	Field claimedBy.Ship
End Type

;[End Block]

;[Block] Fleet

Type Hull
	Field name$
	Field holdSize
	Field tank#
	Field speed#				; distance in a day
	Field strength
	Field price
End Type

Type Captain
	Field name$
	Field mining, trading, flying	; 1 to 10
	Field nerve						; 1 flees from everything, 10 from nothing
	Field experience
End Type

Type Ship
	Field name$
	Field hull.Hull
	Field owner.Company
	Field captain.Captain
	Field state
	Field place.StarSystem			; where it is, or where it comes from while it flies
	Field goal.StarSystem
	Field belt.Belt					; that it mines
	Field rock.Rock
	Field daysLeft					; of the flight or the repair
	Field fuel#
	Field damage					; hull points that are missing
	Field tool
	Field hold#[GoodsMax]
	Field load#						; tons in the hold
	Field paid#						; what its cargo has cost
	Field job.Contract
	Field earned, trips
End Type

Type Company
	Field index
	Field name$
	Field strategy
	Field home.StarSystem
	Field money, debt
	Field income, costs				; since the last report
	Field startMoney
	Field shipCount
End Type

;[End Block]

;[Block] Business

Type Contract
	Field number
	Field good
	Field amount#
	Field goal.StarSystem
	Field reward
	Field deadline					; day by which it has to be there
	Field carrier.Ship				; Null while nobody has taken it
End Type

; Something that happens to a system for some days.
Type Event
	Field kind
	Field where.StarSystem
	Field good
	Field factor#
	Field lastDay
End Type

; A trade that a captain thinks about: buy here, sell there.
Type Idea
	Field good
	Field goal.StarSystem
	Field amount#
	Field profitADay#
End Type

;[End Block]

;~Zolto Editor Parameters:
;~F#5#3C#70
;~C#ZoltoBasic