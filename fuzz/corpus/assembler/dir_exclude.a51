#exclude byte 70h-7Fh
#exclude bit 00h-0Fh
#byte a
#bit b
#exclude word 1-2
#exclude byte 7Fh-70h
#exclude byte
#exclude bit 10h
