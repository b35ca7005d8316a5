; P1 is not known
        NOP
        MOV P1,A
