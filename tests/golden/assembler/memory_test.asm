; Test of the external memory: writes two patterns, reads them back, shows the failing page.
INCLUDE 8052.mc
TOP     EQU 20h
PAGE    EQU 0
GOOD    BIT 90h
BAD     BIT 91h
        ORG PAGE
        LJMP MAIN
        ORG 80h
MAIN:   CLR GOOD
        CLR BAD
        MOV R7,#55h
        ACALL PASS
        JC WRONG
        MOV R7,#0AAh
        ACALL PASS
        JC WRONG
        SETB GOOD
        SJMP $
WRONG:  SETB BAD
        MOV P2,DPH
        MOV P0,DPL
        SJMP $
PASS:   MOV DPTR,#0
WRITE:  MOV A,R7
        MOVX @DPTR,A
        INC DPTR
        MOV A,DPH
        CJNE A,#TOP,WRITE
        MOV DPTR,#0
READ:   MOVX A,@DPTR
        XRL A,R7
        JNZ OOPS
        INC DPTR
        MOV A,DPH
        CJNE A,#TOP,READ
        CLR C
        RET
OOPS:   SETB C
        RET
; the same over a page with R0
PAGED:  MOV R0,#0
P1L:    MOV A,R0
        MOVX @R0,A
        MOVX A,@R0
        CLR C
        SUBB A,R0
        JNZ OOPS
        DJNZ R0,P1L
        RET
        END
