START:  NOP
        ORG 200
        SJMP START
