nop : inc a : mov r2,a ; comment : not a statement
L1:
clr c:setb c:sjmp L1
	END
