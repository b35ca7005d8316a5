; Two lines of text on an LCD controller of the HD44780 kind in the 4 bit mode.
INCLUDE 8051.mc
RS      BIT 95h
RW      BIT 96h
E       BIT 97h
LCD     EQU P1
        ORG 0
        LJMP BEGIN
        ORG 100h
BEGIN:  MOV SP,#30h
        MOV R4,#50
        CALL MS
        MOV A,#28h
        CALL CMD
        MOV A,#0Ch
        CALL CMD
        MOV A,#1
        CALL CMD
        MOV R4,#2
        CALL MS
        MOV DPTR,#LINE1
        CALL TEXT
        MOV A,#0C0h
        CALL CMD
        MOV DPTR,#LINE1+17
        CALL TEXT
STAY:   JMP STAY
CMD:    CLR RS
        SJMP OUT
CHAR:   SETB RS
OUT:    CLR RW
        MOV B,A
        SWAP A
        CALL NIBBLE
        MOV A,B
NIBBLE: ANL LCD,#0F0h
        ANL A,#0Fh
        ORL LCD,A
        SETB E
        NOP
        CLR E
        MOV R5,#20
N1:     DJNZ R5,N1
        RET
TEXT:   CLR A
        MOVC A,@A+DPTR
        JZ TEXTE
        CALL CHAR
        INC DPTR
        JMP TEXT
TEXTE:  RET
MS:     MOV R5,#250
MS1:    NOP
        NOP
        DJNZ R5,MS1
        DJNZ R4,MS
        RET
LINE1:  DB "Good morning;   ",0
        DB "it's a fine day ",0
        END
