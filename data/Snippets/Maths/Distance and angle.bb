Function Distance#(x1#, y1#, x2#, y2#)
	Local dx# = x2 - x1
	Local dy# = y2 - y1
	Return Sqr(dx * dx + dy * dy)
End Function

; The angle from one point to another, in degrees from 0 up to 360.
Function AngleTo#(x1#, y1#, x2#, y2#)
	Local angle# = ATan2(y2 - y1, x2 - x1)
	If angle < 0 Then angle = angle + 360
	Return angle
End Function
