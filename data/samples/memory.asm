; ----------------------------------------------------------------------
; External RAM: test it, fill it with a table, and sum it up
;
; Circuit:  8051 with an address latch and a RAM of 32 KB at 0000h.
;           In the simulator the 64 KB of the EXRAM window do it.
;
; In the debugger:  F4 prepares the data, F5 runs to the line STOP.
; Then ERRORS is 0, the EXRAM window shows the squares 0, 1, 4, 9 ... 225
; from 0200h on, and SUMHI and SUMLO hold their sum 04D8h, which is 1240.
;
; Lessons:  1  MOVX: the only way to the external RAM leads through A
;           2  a test that leaves everything as it was
;           3  two addresses, but only one DPTR: one waits in the RAM
;           4  a sum of 16 bits: ADD for the low byte, ADDC for the high
; ----------------------------------------------------------------------

INCLUDE 8051.mc

BLOCK   EQU 200h        ; first address of the block in the external RAM
COUNT   EQU %16         ; its length

ERRORS  DATA 30h        ; cells that did not keep what was written
SUMHI   DATA 31h        ; the sum, high byte ...
SUMLO   DATA 32h        ; ... and low byte
OTHERH  DATA 33h        ; the address that waits, high byte ...
OTHERL  DATA 34h        ; ... and low byte

ORG 0
        LJMP START

ORG 30h
START:  MOV SP,#3Fh
        LCALL TEST
        LCALL FILL
        LCALL SUMUP
        STOP            ; the debugger stops here
        SJMP $          ; a chip has nothing more to do

; --- Test: does each cell keep what is written? -----------------------
; 55h is 01010101b, AAh is 10101010b: each bit was 1 once
; and 0 once. XRL compares: equal bytes give 0.

TEST:   MOV ERRORS,#0
        MOV DPTR,#BLOCK ; DPTR is the address, 16 bits
        MOV R2,#COUNT
TEST1:  MOVX A,@DPTR
        MOV R3,A        ; what stood there
        MOV A,#55h
        LCALL CELL
        MOV A,#0AAh
        LCALL CELL
        MOV A,R3
        MOVX @DPTR,A    ; as it was
        INC DPTR
        DJNZ R2,TEST1
        RET

; Writes A to the cell at DPTR, and counts an error if it isn't kept.

CELL:   MOV R4,A
        MOVX @DPTR,A
        CLR A           ; forget it, so that it must come from the cell
        MOVX A,@DPTR
        XRL A,R4
        JZ CELL1
        INC ERRORS
CELL1:  RET

; --- Fill: from the table in the program memory to the block ----------
; MOVC reads at SQUARES, MOVX writes at BLOCK, and both want DPTR. CHANGE
; swaps the address in DPTR with the one that waits.

FILL:   MOV OTHERH,#HIGH(BLOCK)
        MOV OTHERL,#LOW(BLOCK)
        MOV DPTR,#SQUARES
        MOV R2,#COUNT
FILL1:  CLR A
        MOVC A,@A+DPTR
        INC DPTR        ; on in the table
        LCALL CHANGE
        MOVX @DPTR,A
        INC DPTR        ; on in the block
        LCALL CHANGE
        DJNZ R2,FILL1
        RET

; XCH exchanges A with a byte: three of them exchange two bytes, and A is
; the same as before.

CHANGE: XCH A,DPL
        XCH A,OTHERL
        XCH A,DPL
        XCH A,DPH
        XCH A,OTHERH
        XCH A,DPH
        RET

; --- Sum of the block, 16 bits ----------------------------------------

SUMUP:  MOV SUMHI,#0
        MOV SUMLO,#0
        MOV DPTR,#BLOCK
        MOV R2,#COUNT
SUMUP1: MOVX A,@DPTR
        INC DPTR
        ADD A,SUMLO
        MOV SUMLO,A
        CLR A           ; CLR and MOV leave the carry as it is
        ADDC A,SUMHI    ; 0 + high byte + carry
        MOV SUMHI,A
        DJNZ R2,SUMUP1
        RET

; --- The table --------------------------------------------------------

SQUARES: DB 0,1,4,9,%16,%25,%36,%49
        DB %64,%81,%100,%121,%144,%169,%196,%225

END
