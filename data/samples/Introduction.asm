; ----------------------------------------------------------------------
; Introduction: the first program, from a register to a blinking port
;
; Circuit:  P1.0   an LED with a resistor to +5 V
;           crystal 11.0592 MHz
; None of it is needed today: everything can be seen in the simulator.
;
; How to go through it:
;   F4   prepares the data; the windows of the simulator open, and the
;        line that comes next is selected
;   F8   executes this line; what it has changed is marked
;   F5   runs on, up to the line STOP
; Read a comment, think of what will happen, press F8, and look.
; Debugger, Quit debugger mode, brings the text back to be edited.
;
; How a line is built:   LABEL:  INSTRUCTION  OPERANDS   ; comment
; Upper and lower case are the same. Numbers: 0Fh is hexadecimal,
; %15 is decimal, 00001111b is binary: three times the same.
; ----------------------------------------------------------------------

INCLUDE 8051.mc         ; the names of the registers: A, P1, SP ...

; A name stands for a value and must be defined above its first use.

LED     BIT P1.0        ; one pin of port 1
SUM     DATA 30h        ; one byte of the RAM, its address is 30h
LAST    EQU %10         ; a plain number

ORG 0                   ; after a reset the chip starts at address 0

; --- Lesson 1: registers ----------------------------------------------
; R0 to R7 stand in the RAM window at the addresses 00 to 07. A is the
; one that calculates; the SFR window has it at E0 as ACC.
; The sign # says "the number itself". Without it a number is an address.

START:  MOV A,#5        ; A becomes 5
        MOV R0,#3       ; R0 becomes 3
        ADD A,R0        ; A becomes 8: the result is always in A
        INC A           ; A becomes 9
        MOV R1,A        ; so that it isn't lost: R1 becomes 9

; --- Lesson 2: the memory ---------------------------------------------

        MOV 31h,A       ; the byte at address 31h becomes 9
        MOV SUM,#0      ; the same by a name: the byte at 30h becomes 0

; --- Lesson 3: a loop -------------------------------------------------
; 10 + 9 + 8 + ... + 1. DJNZ takes 1 from R2 and jumps unless R2 is 0:
; the three lines are executed ten times.

        MOV R2,#LAST
ADDUP:  MOV A,SUM
        ADD A,R2
        MOV SUM,A       ; 0Ah, 13h, 1Bh ... at last 37h, which is 55
        DJNZ R2,ADDUP

; --- Lesson 4: a decision ---------------------------------------------
; CJNE compares, and jumps if the two are not equal.

        MOV R3,#0       ; "wrong"
        CJNE A,#%55,NEXTONE
        MOV R3,#1       ; "right": here we get only with 55 in A
NEXTONE:

; --- Lesson 5: a port -------------------------------------------------
; A port is a byte whose eight bits are pins of the chip. All are 1
; after a reset. The LED lies between +5 V and its pin: 0 lights it.

        CLR LED         ; bit 0 of P1 (address 90 in the SFR window) is
        SETB LED        ; 0: the LED is lit; and now it is dark again

; --- Lesson 6: a subroutine, and the light blinks ---------------------
; LCALL jumps to PAUSE and remembers the way back on the stack; RET
; comes back here. F5 runs to STOP: the LED has changed. F5 again ...
; On a chip STOP is nothing at all, and the LED blinks for ever.

BLINK:  CPL LED         ; the LED changes: 1 becomes 0, 0 becomes 1
        LCALL PAUSE
        STOP
        SJMP BLINK      ; once more

; --- Subroutine: do nothing for half a second -------------------------
; DJNZ R7,$ jumps to itself until R7 is 0: 230 times 2 machine cycles,
; 0.5 ms. That 250 times is 1/8 second, and that four times is 1/2.
; Nobody wants to press F8 so often: for the debugger the numbers are
; small. Which of the two is taken is decided on assembling.

#IF DEBUGGING
OUTER   EQU 2
MIDDLE  EQU 2
INNER   EQU 2
#END IF
#IF NOT DEBUGGING
OUTER   EQU 4
MIDDLE  EQU %250
INNER   EQU %230
#END IF

PAUSE:  MOV R5,#OUTER
PAUSE1: MOV R6,#MIDDLE
PAUSE2: MOV R7,#INNER
        DJNZ R7,$       ; $ is the address of this very instruction
        DJNZ R6,PAUSE2
        DJNZ R5,PAUSE1
        RET

; Now change it: let the light blink twice as fast, or eight LEDs at once
; (CPL A and MOV P1,A). What is wrong is told on assembling (Shift+F2).
; Go on with sevenseg.asm (tables), runninglights.asm (timer, interrupt)
; and sorting.asm (IF and FOR).

END                     ; what follows is not looked at
