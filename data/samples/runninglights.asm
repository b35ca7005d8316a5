; ----------------------------------------------------------------------
; Running lights with a timer interrupt
;
; Circuit:  P1.0 to P1.7   eight LEDs with resistors to +5 V
;           crystal        12 MHz
;
; The introduction waits in a loop until its pause is over, and can do
; nothing else meanwhile. Here the timer calls: each time it overflows,
; the chip leaves the main program for a moment, moves the light, and
; goes on as if nothing had happened.
;
; Lessons:  1  what an interrupt needs: an address, a routine that ends
;              with RETI, and the bits that allow it
;           2  why the routine has to leave A and the flags as they were
;           3  how routine and main program talk: by a byte of the RAM
;           4  how a program is tried out without a chip
;
; In the debugger:  F4 prepares the data, F5 starts; the program stops at
; the line STOP, when the light has run to and fro twice. The windows
; then show STEPS = 1Ch and P1 = FEh. F8 goes on line by line.
; On a chip STOP is nothing at all, and the light runs for ever.
; ----------------------------------------------------------------------

INCLUDE 8051.mc

LEDS    EQU P1          ; a pin at 0 lights its LED
FLAGS   DATA 20h        ; bits can be addressed at 20h to 2Fh
BACK    BIT FLAGS.0     ; 1 while the light runs back
STEPS   DATA 30h        ; steps since the start: written by the interrupt
WORK    DATA 31h        ; two bytes: rounds of the main program
ROUND   EQU %14         ; steps of one way to and fro

; The timer counts up and overflows behind 65535. On the chip it counts
; machine cycles, 1000000 a second: 50000 of them are 50 ms. In the
; debugger it counts the bytes of the instructions, and nobody wants to
; watch 50000 of them: 300 will do. Which of the two lines is taken is
; decided when the program is assembled.

#IF DEBUGGING
RELOAD  EQU %65236      ; 65536 - 300
#END IF
#IF NOT DEBUGGING
RELOAD  EQU %15536      ; 65536 - 50000
#END IF

; --- Addresses that the chip knows ------------------------------------

ORG 0                   ; after a reset
        LJMP START

ORG 0Bh                 ; when timer 0 overflows: there are 8 bytes here,
        LJMP TICK       ; so the routine itself stands elsewhere

; --- Main program -----------------------------------------------------

ORG 30h
START:  MOV SP,#3Fh     ; calls and interrupts use the stack
        MOV STEPS,#0
        MOV WORK,#0
        MOV WORK+1,#0
        CLR BACK
        MOV LEDS,#0FEh  ; the light begins at P1.0

        MOV TMOD,#01h   ; timer 0 counts with 16 bits
        MOV TH0,#HIGH(RELOAD)
        MOV TL0,#LOW(RELOAD)
        SETB ET0        ; timer 0 may interrupt
        SETB EA         ; interrupts are allowed at all
        SETB TR0        ; the timer starts

; From here on the light moves by itself. What stands in this loop is what
; the program has time for: it only counts its own rounds.

MAIN:   INC WORK        ; low byte
        MOV A,WORK
        JNZ MAIN1
        INC WORK+1      ; it went from 0FFh to 0: the high byte follows
MAIN1:  MOV A,STEPS     ; what the interrupt has left here
        CJNE A,#2*ROUND,MAIN
        STOP            ; the debugger stops here: two ways to and fro
        MOV STEPS,#0
        SJMP MAIN

; --- Interrupt: one step of the light ---------------------------------
; It can come between any two instructions of the main program, also
; between MOV A,STEPS and CJNE. Both use A, and CJNE leaves its result in
; the flags: without the four PUSH and POP the main program would
; go wrong now and then, and nobody would find out why.

TICK:   PUSH ACC
        PUSH PSW
        CLR TR0         ; load the timer anew
        MOV TH0,#HIGH(RELOAD)
        MOV TL0,#LOW(RELOAD)
        SETB TR0

        MOV A,LEDS
        JB BACK,TICK1
        RL A            ; the dark bit 0 moves up
        SJMP TICK2
TICK1:  RR A            ; or down
TICK2:  MOV LEDS,A

        JB ACC.7,TICK3  ; bit 7 isn't the lit one
        SETB BACK       ; it is: turn round
TICK3:  JB ACC.0,TICK4
        CLR BACK
TICK4:  INC STEPS       ; the message to the main program

        POP PSW         ; what came last goes first
        POP ACC
        RETI            ; as RET, and the next interrupt may come

END
