;------------------------------------------------------------------------------
; Contracts: a station that is short of something pays well for its delivery by
; a certain day.
;------------------------------------------------------------------------------

Global lastContract

; Offers new contracts, and ends those whose day is over.
Function UpdateContracts()
	Local contract.Contract, following.Contract
	contract = First Contract
	While contract <> Null
		following = After contract
		If contract\deadline < today
			BreakContract(contract)
		EndIf
		contract = following
	Wend
	If today Mod 3 = 1 Then OfferContract()
End Function

; Looks for the greatest want among all stations, and offers a contract for it.
Function OfferContract()
	Local star.StarSystem, number
	Local want#, greatest# = .3
	Local where.StarSystem, what
	For star = Each StarSystem
		For number = 1 To GoodsMax
			If star\station\needs[number] > 0
				want = 1 - star\station\stock[number] / star\station\target[number]
				want = want + Rnd(0, .2)
				If want > greatest And ContractFor(star, number) = Null
					greatest = want
					where = star
					what = number
				EndIf
			EndIf
		Next
	Next
	If where <> Null Then WriteContract(where, what)
End Function

; The contract that a system has offered for a good, or Null.
Function ContractFor.Contract(star.StarSystem, number)
	Local contract.Contract
	For contract = Each Contract
		If contract\goal = star And contract\good = number Then Return contract
	Next
	Return Null
End Function

Function WriteContract.Contract(goal.StarSystem, number)
	Local contract.Contract = New Contract
	Local worth#
	lastContract = lastContract + 1
	contract\number = lastContract
	contract\good = number
	contract\goal = goal
	contract\amount = Lesser(40, 5 + 4 * goal\station\needs[number])
	worth = contract\amount * goods(number)\basePrice
	contract\reward = RoundTo(200 + worth * Rnd(.5, .9), 50)
	contract\deadline = today + 14 + Rand(0, 10)
	contractsOffered = contractsOffered + 1
	Note(goal\name + " asks for " + ContractText$(contract), LogDetail)
	Return contract
End Function

Function ContractText$(contract.Contract)
	Local text$ = Fixed$(contract\amount, 0) + " " + goods(contract\good)\name
	Return text + " by day " + contract\deadline + ", reward " + Credits$(contract\reward)
End Function

; The best contract for a ship that it could keep: it can get there in time, and its hold is large enough.
Function BestContract.Contract(ship.Ship)
	Local contract.Contract, best.Contract
	Local value#, highest#
	For contract = Each Contract
		If contract\carrier = Null And contract\amount * goods(contract\good)\mass <= FreeTons(ship)
			value = ContractValue(contract, ship)
			If value > highest
				highest = value
				best = contract
			EndIf
		EndIf
	Next
	Return best
End Function

; What a contract would bring a ship for each day of work; 0 when it cannot be kept.
Function ContractValue#(contract.Contract, ship.Ship)
	Local days, cost
	Local here.Station = ship\place\station
	If here\stock[contract\good] < contract\amount And ship\hold[contract\good] < contract\amount Then Return 0
	If contract\goal = ship\place Then Return 0
	If Not CanReach(ship, contract\goal) Then Return 0
	days = FlightDays(ship, ship\place, contract\goal)
	If today + days > contract\deadline Then Return 0
	cost = contract\amount * BuyPrice(here, contract\good)
	If cost > Spendable(ship\owner) Then Return 0
	Return (contract\reward + contract\amount * SellPrice(contract\goal\station, contract\good) - cost) / Float(days)
End Function

; Called where a ship with a contract has docked. Returns the money that came in.
Function DeliverContract(ship.Ship)
	Local contract.Contract = ship\job
	Local income
	If contract = Null Then Return 0
	If contract\goal <> ship\place Then Return 0
	If ship\hold[contract\good] < contract\amount Then Return 0
	income = SellGood(ship, contract\good, contract\amount) + contract\reward
	Earn(ship\owner, contract\reward)
	ship\earned = ship\earned + contract\reward
	ship\captain\experience = ship\captain\experience + 3
	contractsKept = contractsKept + 1
	Note(ship\name + " delivers " + Fixed$(contract\amount, 0) + " " + goods(contract\good)\name + " to " + ship\place\name + " for " + Credits$(income))
	ship\job = Null
	Delete contract
	Return income
End Function

; A contract that nobody took just goes. One that was taken and not kept costs a fine.
Function BreakContract(contract.Contract)
	Local ship.Ship = contract\carrier
	If ship <> Null
		Pay(ship\owner, contract\reward / 4)
		ship\job = Null
		contractsBroken = contractsBroken + 1
		Note(ship\name + " is too late with its " + goods(contract\good)\name + " for " + contract\goal\name)
	EndIf
	Delete contract
End Function

Function OpenContracts()
	Local contract.Contract, count
	For contract = Each Contract
		If contract\carrier = Null count = count + 1
	Next
	Return count
End Function

;~Zolto Editor Parameters:
;~C#ZoltoBasic