; ----------------------------------------------------------------------
; Introduction: a running light with a push button, on any 8051
;
; Circuit:  P1.0 to P1.7   eight LEDs with resistors to +5 V
;           P3.2           push button to ground
;           crystal        11.0592 MHz
;
; The light runs to and fro. While the button is held it runs backwards.
;
; How a line is built:   LABEL:  INSTRUCTION  OPERANDS   ; comment
; Upper and lower case are the same. Numbers: 0Fh is hexadecimal,
; %15 is decimal, 00001111b is binary.
; ----------------------------------------------------------------------

INCLUDE 8051.mc         ; the names of the registers: P1, TMOD, TR0 ...

; --- Names ------------------------------------------------------------
; A name stands for a value and must be defined above its first use.

LEDS    EQU P1          ; the port of the LEDs; a pin at 0 lights its LED
BUTTON  BIT P3.2        ; one bit of port 3; 0 while the button is held
STEPS   EQU %14         ; length of the table PATTERN
TICKS   EQU 2           ; pause between two steps, in units of 50 ms

; The timer counts 11059200 / 12 = 921600 times a second and overflows
; behind 65535. From 65536 - 46080 = 19456 it needs 46080 counts: 50 ms.
RELOAD  EQU %19456

; --- Program ----------------------------------------------------------

ORG 0                   ; after a reset the chip starts at address 0
        LJMP START      ; jump over the interrupt addresses

ORG 30h
START:  MOV SP,#2Fh     ; the stack grows upwards from 30h
        MOV TMOD,#01h   ; timer 0 counts with 16 bits
        MOV R6,#0       ; R6 is the number of the step

LOOP:   LCALL SHOW      ; LCALL runs a subroutine, RET comes back here
        LCALL PAUSE
        JNB BUTTON,BACK ; jump if the bit is 0: the button is held
        INC R6          ; one step on
        CJNE R6,#STEPS,LOOP ; not at the end of the table: go on
        MOV R6,#0       ; otherwise begin again
        SJMP LOOP

BACK:   DEC R6          ; one step back; 0 becomes 0FFh
        CJNE R6,#0FFh,LOOP
        MOV R6,#STEPS-1 ; it was the first: go on with the last
        SJMP LOOP

; --- Subroutine: show step R6 -----------------------------------------

SHOW:   MOV DPTR,#PATTERN ; DPTR points at the first byte of the table
        MOV A,R6
        MOVC A,@A+DPTR  ; read the byte number A of the table
        MOV LEDS,A
        RET

; --- Subroutine: wait TICKS times 50 ms -------------------------------

PAUSE:  MOV R7,#TICKS
PAUSE1: CLR TR0         ; stop the timer while it is loaded
        MOV TH0,#HIGH(RELOAD)
        MOV TL0,#LOW(RELOAD)
        CLR TF0         ; TF0 becomes 1 when the timer overflows
        SETB TR0        ; start
        JNB TF0,$       ; $ is the address of this very instruction
        DJNZ R7,PAUSE1  ; R7 minus 1, and again unless it is 0
        RET

; --- Table ------------------------------------------------------------
; DB puts bytes into the program memory. Each 0 is a lit LED.

PATTERN:
        DB 11111110b,11111101b,11111011b,11110111b
        DB 11101111b,11011111b,10111111b,01111111b
        DB 10111111b,11011111b,11101111b,11110111b
        DB 11111011b,11111101b

END                     ; what follows is not looked at
