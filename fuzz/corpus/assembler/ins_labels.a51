Start:
Start: NOP
_x1: NOP
1x: NOP
Langeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeee: NOP
A: NOP
R0: NOP
