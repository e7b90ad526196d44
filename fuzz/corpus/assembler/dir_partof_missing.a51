#part of nirgends.a51
NOP
