; Shows a menu, and does what the answer asks for.
Function ShowMenu()
	Local choice$
	Repeat
		Print "(N)ew game"
		Print "(L)oad game"
		Print "(Q)uit"
		choice = Upper$(Left$(Input$("Your choice? "), 1))
		Select choice
			Case "N"
				NewGame()
			Case "L"
				LoadGame()
			Case "Q", ""
				Return
			Default
				Print "There is no such entry."
		End Select
	Forever
End Function
