; Größe, naïve façade, 5 € and a ÿ at the end ÿ
Global gruß$ = "Schöne Grüße – “quoted” …"
Global label$ = "ÀÉÎÕÜ ß ş"
.Zurück
Größe = 3
Größe# = 2.5 ; a name that begins in ASCII and goes on above it
é = 1
Print gruß + label : Print ÄÖ
Print "unclosed ß
x = 4 × 5 ÷ 2
Field ü.Type
©
Function Maße(länge#, höhe#)
	Return länge * höhe ; ½ of it would be a triangle
End Function
; not assigned in the code page:     
; no-break space: end
Print "after a no-break space"
