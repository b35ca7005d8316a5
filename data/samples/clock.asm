; ----------------------------------------------------------------------
; Clock: hours, minutes and seconds by the interrupt of timer 0
;
; Circuit:  P1   eight LEDs with resistors to +5 V: the seconds, each
;                half of the byte one decimal digit
;           crystal 11.0592 MHz
;
; 11059200 / 12 = 921600 counts a second. Timer 0 counts with 8 bits and
; reloads itself, so it interrupts 921600 / 256 = 3600 times a second,
; and 3600 is 240 times 15. No count is ever lost.
; ----------------------------------------------------------------------

INCLUDE 8051.mc

; --- Variables in the internal RAM ------------------------------------

SECONDS DATA 30h        ; 00h to 59h, one decimal digit in each half
MINUTES DATA 31h        ; 00h to 59h
HOURS   DATA 32h        ; 00h to 23h
FINE    DATA 33h        ; counts down from 240
COARSE  DATA 34h        ; counts down from 15

NFINE   EQU %240
NCOARSE EQU %15

; --- Addresses that the hardware jumps to -----------------------------

ORG 0                   ; reset
        LJMP START
ORG 0Bh                 ; timer 0
        LJMP TICK

; --- Main program -----------------------------------------------------

ORG 30h
START:  MOV SP,#3Fh     ; the stack lies behind the variables
        MOV SECONDS,#0
        MOV MINUTES,#0
        MOV HOURS,#12h  ; it starts at noon
        MOV FINE,#NFINE
        MOV COARSE,#NCOARSE
        MOV TMOD,#02h   ; timer 0: 8 bits with reload from TH0
        MOV TH0,#0
        MOV TL0,#0
        SETB ET0        ; allow the interrupt of timer 0 ...
        SETB EA         ; ... and interrupts at all
        SETB TR0

SHOW:   MOV A,SECONDS   ; the main program has nothing to do but to show
        CPL A           ; a pin at 0 lights its LED
        MOV P1,A
        SJMP SHOW

; --- Interrupt of timer 0, 3600 times a second ------------------------
; It may come at any place, so it saves what it changes.

TICK:   PUSH ACC
        PUSH PSW
        DJNZ FINE,READY
        MOV FINE,#NFINE
        DJNZ COARSE,READY
        MOV COARSE,#NCOARSE

        MOV A,SECONDS   ; a second has passed
        LCALL COUNT
        MOV SECONDS,A
        CJNE A,#60h,READY
        MOV SECONDS,#0
        MOV A,MINUTES
        LCALL COUNT
        MOV MINUTES,A
        CJNE A,#60h,READY
        MOV MINUTES,#0
        MOV A,HOURS
        LCALL COUNT
        MOV HOURS,A
        CJNE A,#24h,READY
        MOV HOURS,#0

READY:  POP PSW         ; in the reverse order
        POP ACC
        RETI

; --- A plus 1 in decimal digits ---------------------------------------

COUNT:  ADD A,#1        ; DA needs the flags of an addition: no INC here
        DA A            ; 0Ah becomes 10h
        RET

END
