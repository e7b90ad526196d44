#use lcall
Sub
#use acall
Sub
#use
Sub: RET
