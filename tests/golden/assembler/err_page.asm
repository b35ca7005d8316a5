        AJMP FAR
        ORG 1000h
FAR:    RET
