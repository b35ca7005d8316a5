; ----------------------------------------------------------------------
; Seven segments: a push button counts a digit from 0 to F
;
; Circuit:  P1   display with common anode, through resistors:
;                P1.0 to P1.6 are the segments a to g, P1.7 the point
;           P3.2 push button to ground
;           crystal 11.0592 MHz (12 MHz will do as well)
; ----------------------------------------------------------------------

INCLUDE 8051.mc

DISPLAY EQU P1
BUTTON  BIT P3.2        ; 0 while the button is held
DIGIT   DATA 30h        ; the digit shown, 0 to 0Fh

ORG 0
        LJMP START

ORG 30h
START:  MOV SP,#3Fh
        MOV DIGIT,#0

NEW:    MOV A,DIGIT
        LCALL SEGMENTS
        MOV DISPLAY,A

        JB BUTTON,$     ; wait until the button is pressed
        LCALL BOUNCE
        JB BUTTON,NEW   ; it was only a spike

        MOV A,DIGIT     ; one on; behind 0Fh comes 0 again
        INC A
        ANL A,#0Fh
        MOV DIGIT,A
        LCALL SEGMENTS
        ANL A,#01111111b ; the point is lit while the button is held
        MOV DISPLAY,A

HELD:   JNB BUTTON,$    ; wait until it is released
        LCALL BOUNCE
        JNB BUTTON,HELD
        SJMP NEW

; --- Digit in A to segments in A --------------------------------------

SEGMENTS: MOV DPTR,#SHAPES
        MOVC A,@A+DPTR
        RET

; --- About 20 ms, until the contacts are at rest ----------------------

BOUNCE: MOV R7,#%36
BOUNCE1: MOV R6,#0      ; 256 rounds of two cycles: 0.56 ms
        DJNZ R6,$
        DJNZ R7,BOUNCE1
        RET

; --- Shapes of the digits; a segment at 0 is lit ----------------------
;          .gfedcba
SHAPES: DB 11000000b    ; 0
        DB 11111001b    ; 1
        DB 10100100b    ; 2
        DB 10110000b    ; 3
        DB 10011001b    ; 4
        DB 10010010b    ; 5
        DB 10000010b    ; 6
        DB 11111000b    ; 7
        DB 10000000b    ; 8
        DB 10010000b    ; 9
        DB 10001000b    ; A
        DB 10000011b    ; b
        DB 11000110b    ; C
        DB 10100001b    ; d
        DB 10000110b    ; E
        DB 10001110b    ; F

END
