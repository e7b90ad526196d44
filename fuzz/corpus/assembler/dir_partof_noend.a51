NOP
#PART OF haupt.a51