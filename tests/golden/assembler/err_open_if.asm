        NOP
        IF A=#5 THEN
        NOP
        RET
