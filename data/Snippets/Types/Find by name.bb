; The first object of that name, or Null.
Function FindActor.Actor(name$)
	Local actor.Actor
	For actor = Each Actor
		If Lower$(actor\name) = Lower$(name) Then Return actor
	Next
	Return Null
End Function
