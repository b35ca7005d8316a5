; ----------------------------------------------------------------------
; Macros and an include file of your own
;
; Circuit:  none. The program is made for the debugger: F4 prepares the
;           data, F8 goes line by line, F5 runs up to the line STOP.
;
; Two classics with numbers of 16 bits. The Fibonacci numbers 1, 1, 2, 3,
; 5, 8 ...: each one is the sum of the two before it; the last one below
; 65536 is the 24th, 46368 = B520h. And the greatest common divisor of
; 46368 and 28656: it is 144 = 0090h.
; At STOP: NUMBER = 18h, FIBHI = B5h, FIBLO = 20h, DIVHI = 00h,
; DIVLO = 90h.
;
; Lessons:  1  INCLUDE takes a file in: words.inc calculates for us
;           2  a macro is an abbreviation for some lines
;           3  the carry flag as an answer of a subroutine
; ----------------------------------------------------------------------

INCLUDE 8051.mc

NUMBER  DATA 30h        ; which Fibonacci number it is
FIBHI   DATA 31h        ; the number, high byte ...
FIBLO   DATA 32h        ; ... and low byte
DIVHI   DATA 33h        ; the common divisor
DIVLO   DATA 34h

; --- Macros -----------------------------------------------------------
; Below its definition each line that holds the name alone, from the
; first column on, becomes the lines of the block. Nothing is called,
; nothing returns: the block stands there as often as the name does.
; The name is found everywhere, so it is one that no other word contains.
; There has to be something behind the words that end the block, be it
; a comment: otherwise the next line goes with it.
; A block may have many lines. But each line more than one makes the text
; longer than what the editor shows, and the debugger would select the
; wrong line by so many: these have one line each.

#define ADD_Y
        LCALL XPLUSY    ; X = X + Y
#end def ; -------------------------------------------------------------

#define SUBTRACT_Y
        LCALL XMINUSY   ; X = X - Y
#end def ; -------------------------------------------------------------

#define SWAP_XY
        LCALL XCHANGEY  ; X and Y change places
#end def ; -------------------------------------------------------------

; --- Program ----------------------------------------------------------

ORG 0
START:  MOV SP,#3Fh
        LCALL FIBO
        LCALL DIVISOR
        STOP            ; the debugger stops here
        SJMP $          ; a chip has nothing more to do

; --- Fibonacci numbers ------------------------------------------------
; Y is the newer of two neighbours, X the older one. Their sum is the
; next; what was the newer is the older then.

FIBO:   MOV R4,#0       ; X = 0
        MOV R5,#0
        MOV R6,#0       ; Y = 1, the first
        MOV R7,#1
        MOV NUMBER,#1
FIBO1:
ADD_Y
        JC FIBO2        ; too large: Y was the last
SWAP_XY
        INC NUMBER
        SJMP FIBO1
FIBO2:  MOV FIBHI,R6
        MOV FIBLO,R7
        RET

; --- Greatest common divisor ------------------------------------------
; Euclid: take the smaller from the larger until both are equal. Y is the
; last Fibonacci number still.

DIVISOR: MOV R4,#HIGH(%28656)
        MOV R5,#LOW(%28656)
DIVISOR1:
SUBTRACT_Y
        JC DIVISOR2     ; X was the smaller one
        MOV A,R4
        ORL A,R5
        JNZ DIVISOR1    ; there is something left: once more
        MOV DIVHI,R6    ; the difference is 0: they were equal
        MOV DIVLO,R7
        RET

DIVISOR2:
ADD_Y
SWAP_XY
        SJMP DIVISOR1   ; as it was, and the other way round

; --- The include file -------------------------------------------------
; It is looked for beside this file, then in the folders include and mc
; of the program. It holds subroutines, so it stands where the program
; would never run into it. Macros must stand in the main text.

INCLUDE words.inc

END
