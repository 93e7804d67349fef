; Walks a list and deletes some of its objects on the way. The next object is taken before the present one goes.
Function RemoveDeadActors()
	Local actor.Actor = First Actor
	Local following.Actor
	Local removed
	While actor <> Null
		following = After actor
		If actor\dead
			Delete actor
			removed = removed + 1
		EndIf
		actor = following
	Wend
	Return removed
End Function
