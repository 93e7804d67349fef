; This program has one error, on line 14: Area is called with one argument, and takes two.
; Checking it puts the caret there.

Const Rooms = 3

Dim width(Rooms)

For room = 1 To Rooms
	width(room) = 2 + room
Next

total = 0
For room = 1 To Rooms
	total = total + Area(width(room))
Next
Print "The house has " + total + " square metres"
End

Function Area(length, breadth)
	Return length * breadth
End Function

;~Zolto Editor Parameters:
;~C#ZoltoBasic