INCLUDE 8051.mc
        NOP
        MOV A,R9
