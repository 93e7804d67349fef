; A map of tiles in an array, filled from strings.
Const MapWidth = 12, MapHeight = 5
Dim tile(MapWidth, MapHeight)

Restore MapRows
For y = 1 To MapHeight
	Read row$
	For x = 1 To MapWidth
		tile(x, y) = (Mid$(row, x, 1) = "#")
	Next
Next

.MapRows
Data "############"
Data "#....#.....#"
Data "#....#..#..#"
Data "#.......#..#"
Data "############"
