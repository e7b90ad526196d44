	FOR R7 = #8
	  INC A
	NEXT
	FOR 30h = #3
	  FOR R6 = #2
	    IF A=#3 THENEXITFOR
	    EXIT FOR
	  NEXT
	NEXT
	NEXT
	EXIT FOR
	FOR A
	FOR R0 = #1, x
