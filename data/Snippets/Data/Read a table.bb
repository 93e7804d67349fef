; Reads a table from Data lines up to an end mark.
Type Enemy
	Field name$
	Field health
	Field speed#
End Type

Restore EnemyTable
Repeat
	Read name$
	If name = "" Then Exit
	enemy.Enemy = New Enemy
	enemy\name = name
	Read enemy\health
	Read enemy\speed
Forever

.EnemyTable
Data "Drone", 10, 1.5
Data "Hunter", 25, 2.25
Data "Fortress", 120, 0
Data ""
