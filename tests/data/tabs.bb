; Tabs within strings, comments,	and between tokens.
Global	title$	=	"one	two		three"	;	end
	  	If title = "	"	Then	Print	"tab"
    Print "spaces before"
 	 Print "	" + title + "	"
t$ = "unclosed	tab	
	
   
