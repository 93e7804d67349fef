; Puts an object in its place in the list, smallest key first.
Function SortIntoList(actor.Actor)
	Local other.Actor
	For other = Each Actor
		If other <> actor And other\key > actor\key
			Insert actor Before other
			Return
		EndIf
	Next
	Insert actor After Last Actor
End Function
