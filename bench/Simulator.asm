; ----------------------------------------------------------------------
; Work for the benchmark of the simulator: what small programs do all
; day, in rounds. Every round fills external memory from a table, sorts
; a block, adds up decimal numbers, multiplies and divides 16 bits, and
; folds all of it into a checksum in RESULT.
;
; The benchmark replaces the lines TIMERS and ROUNDS. Nothing depends on
; the flags that simulators set in different ways.
; ----------------------------------------------------------------------

INCLUDE 8051.mc

TIMERS  EQU 0           ; 1: two timers run, one of them interrupts
ROUNDS  EQU %200        ; 1 to 255, each about 130000 instructions

RESULT  DATA 20h        ; checksum, two bytes
TICKS   DATA 22h        ; interrupts, two bytes
ROUND   DATA 24h        ; rounds still to go
INNER   DATA 25h
SEED    DATA 26h
BLOCK   EQU  40h        ; internal block to be sorted, 24 bytes
LENGTH  EQU  %24
SIGN    BIT  RESULT.7

ORG 0
        LJMP START
ORG 0Bh                 ; timer 0
        LJMP TICK

ORG 30h
START:  MOV SP,#5Fh
        CLR A
        MOV RESULT,A
        MOV RESULT+1,A
        MOV TICKS,A
        MOV TICKS+1,A
        MOV SEED,#1
        MOV ROUND,#ROUNDS
        MOV A,#TIMERS
        JZ LOOP
        MOV TMOD,#11h   ; both timers count 16 bits
        MOV TH0,#0F8h
        SETB TR0
        SETB TR1
        MOV IE,#82h     ; timer 0 interrupts
LOOP:   MOV INNER,#%20
LOOP1:  LCALL FILL
        LCALL FETCH
        LCALL SORT
        LCALL COUNT
        LCALL PRODUCT
        LCALL FOLD
        DJNZ INNER,LOOP1
        DJNZ ROUND,LOOP
        CLR EA
FINISH: STOP
        SJMP FINISH

; Timer 0: a tick is counted, the timer loaded anew.
TICK:   PUSH ACC
        PUSH PSW
        MOV TH0,#0F8h
        MOV A,TICKS
        ADD A,#1
        MOV TICKS,A
        JNC TICK1
        INC TICKS+1
TICK1:  POP PSW
        POP ACC
        RETI

; 256 bytes of external memory from the table and a running seed.
FILL:   MOV R7,#0
        MOV R2,#LOW(1000h)
        MOV R3,#HIGH(1000h)
FILL1:  MOV A,R7
        ANL A,#0Fh
        MOV DPTR,#SHAPES
        MOVC A,@A+DPTR
        XRL A,SEED
        RL A
        ADD A,R7
        MOV SEED,A
        MOV DPL,R2
        MOV DPH,R3
        MOVX @DPTR,A
        INC DPTR
        MOV R2,DPL
        MOV R3,DPH
        DJNZ R7,FILL1
        RET

; The first bytes of it into internal memory.
FETCH:  MOV DPTR,#1000h
        MOV R0,#BLOCK
        MOV R7,#LENGTH
FETCH1: MOVX A,@DPTR
        MOV @R0,A
        INC DPTR
        INC R0
        DJNZ R7,FETCH1
        RET

; Bubble sort, ascending.
SORT:   MOV R7,#LENGTH-1
SORT1:  MOV R0,#BLOCK
        MOV A,R7
        MOV R6,A
SORT2:  MOV A,@R0
        MOV R5,A
        INC R0
        MOV A,@R0
        CLR C
        SUBB A,R5
        JNC SORT3       ; in order
        MOV A,@R0       ; exchange
        XCH A,R5
        MOV @R0,A
        DEC R0
        MOV A,R5
        MOV @R0,A
        INC R0
SORT3:  DJNZ R6,SORT2
        DJNZ R7,SORT1
        RET

; How often each of four values stands in external memory.
COUNT:  MOV DPTR,#1000h
        MOV R4,#0
        MOV R7,#0
COUNT1: MOVX A,@DPTR
        ANL A,#0Fh
        CJNE A,#3,COUNT2
        SJMP COUNT5
COUNT2: CJNE A,#5,COUNT3
        SJMP COUNT5
COUNT3: CJNE A,#9,COUNT4
        SJMP COUNT5
COUNT4: CJNE A,#0Eh,COUNT6
COUNT5: MOV A,R4
        INC A
        MOV R4,A
COUNT6: INC DPTR
        DJNZ R7,COUNT1
        MOV A,R4
        LCALL ADDUP
        RET

; Sixteen products of 16 and 8 bits, each divided again.
PRODUCT: MOV R7,#%16
PROD1:  MOV A,R7
        MOV B,SEED
        MUL AB
        MOV R2,A
        MOV R3,B
        PUSH ACC
        PUSH B
        MOV A,R7
        SWAP A
        ORL A,#7
        MOV B,A
        MOV A,R3
        DIV AB
        XCH A,B
        LCALL ADDUP
        POP B
        POP ACC
        XRL A,B
        JNB ACC.0,PROD2
        CPL SIGN
PROD2:  LCALL ADDUP
        DJNZ R7,PROD1
        RET

; The sorted block into the checksum.
FOLD:   MOV R1,#BLOCK
        MOV R7,#LENGTH
FOLD1:  MOV A,@R1
        RRC A
        MOV C,SIGN
        RLC A
        ACALL ADDUP
        INC R1
        CJNE R1,#BLOCK+LENGTH,FOLD1
        RET

; A is added to the checksum.
ADDUP:  ADD A,RESULT
        MOV RESULT,A
        CLR A
        ADDC A,RESULT+1
        MOV RESULT+1,A
        RET

SHAPES: DB 3Fh,06h,5Bh,4Fh,66h,6Dh,7Dh,07h
        DB 7Fh,6Fh,77h,7Ch,39h,5Eh,79h,71h

END
