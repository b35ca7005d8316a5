; Sorts LENGTH bytes from FIRST on, smallest first, and searches one of them.
FIRST   EQU 40h
LENGTH  EQU 12
B       DATA 0F0h
SWAPPED BIT 20h
LEFT    DATA 31h
        ORG 400h
SORT:   MOV LEFT,#LENGTH-1
PASS:   CLR SWAPPED
        MOV R0,#FIRST
        MOV R2,LEFT
PAIR:   MOV A,@R0
        MOV R3,A
        INC R0
        MOV A,@R0
        CLR C
        SUBB A,R3
        JNC INORDER
        MOV A,@R0
        MOV B,A
        MOV A,R3
        MOV @R0,A
        DEC R0
        MOV @R0,B
        INC R0
        SETB SWAPPED
INORDER: DJNZ R2,PAIR
        JNB SWAPPED,DONE
        DJNZ LEFT,PASS
DONE:   RET
; looks for A; carry set when it isn't there, else its place in R1
FIND:   MOV R1,#FIRST
        MOV R2,#LENGTH
SEEK:   MOV B,@R1
        CJNE A,B,NOTYET
        CLR C
        RET
NOTYET: INC R1
        DJNZ R2,SEEK
        SETB C
        RET
        LCALL SORT
        LJMP FIND
