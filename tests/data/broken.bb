; Every construct is left open or closed twice.
Function Outer(a, b$
Type Half
	Field x, ,
Function Inner()
End Type
End Function
End Function
Next
Wend
EndIf
If a = Then
Dim (
Dim grid(
Global
Local ,x
Const = 5
.
Include
Include "
Select
Case
For i = 1 To
;[Block
;[End
;[End
"
\
$$$ ### %%%
x..y
5.5.5 .. .5. $ff $zz %1012
