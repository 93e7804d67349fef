;------------------------------------------------------------------------------
; Companies: their money, their debts, and what they buy.
; All money goes through Earn, Pay, Borrow and Repay, so that the books can be
; checked at the end of the season.
;------------------------------------------------------------------------------

Function CreateCompany.Company(name$, strategy, money, home.StarSystem)
	Local firm.Company = New Company
	Local other.Company
	For other = Each Company
		firm\index = firm\index + 1			; this one is in the list already
	Next
	firm\name = name
	firm\strategy = strategy
	firm\home = home
	firm\money = money
	firm\startMoney = money
	Return firm
End Function

;[Block] Money

Function Earn(firm.Company, amount)
	firm\money = firm\money + amount
	firm\income = firm\income + amount
	moneyCreated = moneyCreated + amount
End Function

; Pays, with borrowed money where there is not enough.
Function Pay(firm.Company, amount)
	If firm\money < amount Then Borrow(firm, amount - firm\money)
	firm\money = firm\money - amount
	firm\costs = firm\costs + amount
	moneyDestroyed = moneyDestroyed + amount
End Function

Function Borrow(firm.Company, amount)
	firm\debt = firm\debt + amount
	firm\money = firm\money + amount
End Function

Function Repay(firm.Company, amount)
	amount = Lesser(amount, Lesser(firm\money, firm\debt))
	If amount <= 0 Then Return
	firm\debt = firm\debt - amount
	firm\money = firm\money - amount
End Function

; What a company may lay out today: its money and a part of the credit that is left.
Function Spendable(firm.Company)
	Local credit = (MostDebt - firm\debt) / 4
	Return Greater(0, firm\money + Greater(0, credit))
End Function

; What a company is worth: money, ships at their age's price, and the cargo at the average price.
Function NetWorth(firm.Company)
	Local ship.Ship, worth = firm\money - firm\debt
	For ship = Each Ship
		If ship\owner = firm And ship\state <> ShipLost
			worth = worth + ResalePrice(ship) + Int(CargoValue(ship))
		EndIf
	Next
	Return worth
End Function

;[End Block]

;[Block] A day of a company

Function UpdateCompanies()
	Local firm.Company
	For firm = Each Company
		PayWages(firm)
		PayInterest(firm)
		If firm\money > 4000 Then Repay(firm, firm\money - 4000)
		ConsiderNewShip(firm)
	Next
End Function

Function PayWages(firm.Company)
	Local ship.Ship, sum
	For ship = Each Ship
		If ship\owner = firm
			Select ship\state
				Case ShipLost
					; nobody is left to be paid
				Case ShipStranded
					sum = sum + WageADay * 2
				Default
					sum = sum + WageADay
			End Select
		EndIf
	Next
	If sum > 0 Then Pay(firm, sum)
End Function

; Interest grows faster than the debt itself: half as much again beyond half of the limit.
Function PayInterest(firm.Company)
	Local rate# = InterestADay
	If firm\debt = 0 Then Return
	If firm\debt > MostDebt / 2 Then rate = rate * 1.5
	Pay(firm, Greater(1, Int(Floor(firm\debt * rate))))
End Function

; A company without debts and with money for a hull and a half buys a new ship.
Function ConsiderNewShip(firm.Company)
	Local hull.Hull, choice.Hull
	Local budget = firm\money * 2 / 3
	Local ship.Ship
	If firm\debt > 0 Or firm\shipCount >= 6 Then Return
	If today > seasonDays - 30 Then Return		; too late to earn its price

	For hull = Each Hull
		If hull\price <= budget
			If choice = Null
				choice = hull
			ElseIf Preference(firm, hull) > Preference(firm, choice)
				choice = hull
			EndIf
		EndIf
	Next
	If choice = Null Then Return

	Pay(firm, choice\price)
	ship = CreateShip(NewShipName$(), choice, firm, ToolDrill)
	ship\captain = CreateCaptain(NewCaptainName$(), Dice(2, 4), Dice(2, 4), Dice(2, 4), Rand(2, 9))
	Note(firm\name + " buys the " + choice\name + " " + ship\name + ", captain " + ship\captain\name, LogHeadline)
End Function

; How much a company likes a hull, for its price.
Function Preference#(firm.Company, hull.Hull)
	Select firm\strategy
		Case StrategyMiner
			Return hull\strength + hull\holdSize * .3
		Case StrategyTrader
			Return hull\holdSize + hull\speed * 2
	End Select
	Return hull\holdSize * .5 + hull\speed + hull\strength * .5
End Function

;[End Block]

;[Block] Names

; A name that no ship has yet, made of two parts.
Function NewShipName$()
	Local name$, tries
	.again
	name = Pick$("Bright Distant Quiet Second Iron Patient Northern Lucky") + " " + Pick$("Lantern Harvest Anvil Comet Widow Margin Promise Kestrel")
	tries = tries + 1
	If ShipNamed(name) <> Null And tries < 50 Then Goto again
	Return name
End Function

Function NewCaptainName$()
	Return Pick$("Ada Boris Chen Dalia Emre Freya Goran Hana Ivo Jun") + " " + Pick$("Okafor Lindqvist Marsh Petrov Quill Reyes Sato Thorne Umber Vance")
End Function

; One of the words of a text.
Function Pick$(words$)
	Local count = 1, i, choice
	For i = 1 To Len(words)
		If Mid$(words, i, 1) = " " Then count = count + 1
	Next
	choice = Rand(1, count)
	For i = 2 To choice
		words = AfterFirstWord$(words)
	Next
	Return FirstWord$(words)
End Function

Function ShipNamed.Ship(name$)
	Local ship.Ship
	For ship = Each Ship
		If ship\name = name Then Return ship
	Next
	Return Null
End Function

;[End Block]

;~Zolto Editor Parameters:
;~C#ZoltoBasic