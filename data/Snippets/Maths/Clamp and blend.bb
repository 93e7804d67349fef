Function Clamp#(value#, low#, high#)
	If value < low Then Return low
	If value > high Then Return high
	Return value
End Function

; From one value to another; fraction runs from 0 to 1.
Function Blend#(from#, goal#, fraction#)
	Return from + (goal - from) * fraction
End Function

; Moves a value towards its goal by at most one step, without running past it.
Function Approach#(value#, goal#, stepSize#)
	If Abs(goal - value) <= stepSize Then Return goal
	Return value + Sgn(goal - value) * stepSize
End Function
