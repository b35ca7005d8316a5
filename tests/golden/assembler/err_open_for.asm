        FOR R0=#1 TO #5
        FOR R1=#1 TO #5
        NOP
        NEXT
