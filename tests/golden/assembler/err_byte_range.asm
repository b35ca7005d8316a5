        NOP
        MOV A,#256
