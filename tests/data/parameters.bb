; Has an editor-parameter block with folds, bookmarks, arguments and a compiler.
Type Rock
	Field x, y
End Type

Function Area(w, h)
	Return w * h
End Function

Print Area(3, 4)

;~Zolto Editor Parameters:
;~F#1#5
;~B#5#9
;~L#-windowed 800 600
;~C#ZoltoBasic