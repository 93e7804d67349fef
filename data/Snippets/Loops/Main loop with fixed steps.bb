; A main loop that advances the world in steps of equal length, however long a turn of the loop takes.
Const StepMs = 20
Global quitAsked

previous = MilliSecs()
Repeat
	now = MilliSecs()
	pending = pending + (now - previous)
	previous = now
	If pending > 10 * StepMs Then pending = 10 * StepMs		; after a long pause, do not race to catch up
	While pending >= StepMs
		UpdateWorld(StepMs / 1000.0)
		pending = pending - StepMs
	Wend
	DrawWorld(Float(pending) / StepMs)
	Delay 1
Until quitAsked
End

Function UpdateWorld(seconds#)
End Function

Function DrawWorld(fraction#)
End Function
