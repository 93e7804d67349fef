; A type, its constructor, and a pass over the list of all its objects.
Type Actor
	Field name$
	Field x#, y#
	Field speed#
	Field key			; for a sorted list
	Field dead			; is to be removed
End Type

Function CreateActor.Actor(name$, x#, y#, speed# = 1.0)
	Local actor.Actor = New Actor
	actor\name = name
	actor\x = x
	actor\y = y
	actor\speed = speed
	Return actor
End Function

Function UpdateActors(seconds#)
	Local actor.Actor
	For actor = Each Actor
		actor\x = actor\x + actor\speed * seconds
	Next
End Function
