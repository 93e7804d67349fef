; A game that is in one state at a time; each state is a function that returns the next one.
Const StateTitle = 1, StatePlay = 2, StateOver = 3, StateQuit = 0

Global state = StateTitle

While state <> StateQuit
	Select state
		Case StateTitle
			state = RunTitle()
		Case StatePlay
			state = RunPlay()
		Case StateOver
			state = RunOver()
	End Select
Wend
End
