; Keypad of 4 by 4: rows on P1.0 to P1.3, columns on P1.4 to P1.7; the code goes out on P3.
INCLUDE 8051.mc
KEYS    DATA 90h
LAST    DATA 32h
NEW     BIT 0
        ORG 0
        MOV LAST,#255
POLL:   CALL SCAN
        JNB NEW,POLL
        CJNE A,LAST,FRESH
        JMP POLL
FRESH:  MOV LAST,A
        MOV DPTR,#NAMES
        MOVC A,@A+DPTR
        MOV P3,A
        JMP POLL
SCAN:   CLR NEW
        MOV R2,#11111110b
        MOV R3,#0
ROW:    MOV KEYS,R2
        NOP
        MOV A,KEYS
        ORL A,#0Fh
        CPL A
        JNZ HIT
        MOV A,R2
        RL A
        MOV R2,A
        INC R3
        CJNE R3,#4,ROW
        RET
HIT:    SETB NEW
        SWAP A
        MOV R4,#0
BITS:   RRC A
        JC FOUND
        INC R4
        SJMP BITS
FOUND:  MOV A,R3
        RL A
        RL A
        ADD A,R4
        RET
NAMES:  DB "123A456B"
        DB "789C*0#D"
        END
