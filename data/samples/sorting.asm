; ----------------------------------------------------------------------
; Sorting and searching with FOR and IF
;
; Circuit:  none. The program works on the memory only, and is made for
;           the debugger: F4 prepares the data, F8 goes line by line, F5
;           runs up to the line STOP.
;
; Twelve numbers are copied into the RAM, sorted in place, and searched in
; two ways. At the end the RAM window shows the sorted numbers from 40h on,
; and FOUND1 and FOUND2 both hold 5: the place of WANTED, counted from 0.
;
; Lessons:  1  FOR ... NEXT: a loop with a counter
;           2  IF ... END IF and IF in one line
;           3  ELSE, and assignments with =
;           4  what a statement becomes: each one is a handful of ordinary
;              instructions; in the debugger it is one step
; ----------------------------------------------------------------------

INCLUDE 8051.mc

TABLE   EQU 40h         ; the numbers in the RAM
COUNT   EQU %12         ; so many
WANTED  EQU %27         ; what is searched

FIRST   DATA 30h        ; the first of two neighbours
FOUND1  DATA 31h        ; place found one after the other, 0FFh: none
FOUND2  DATA 32h        ; place found by halving, 0FFh: none
LEFT    DATA 33h        ; first place that is still possible
RIGHT   DATA 34h        ; the place behind the last one
MIDDLE  DATA 35h

ORG 0
        LJMP START

ORG 30h
START:  MOV SP,#5Fh
        LCALL FETCH
        LCALL SORT
        LCALL SEEK
        LCALL HALVE
        STOP            ; the debugger stops here
        SJMP $          ; a chip has nothing more to do

; --- From the program memory into the RAM -----------------------------
; R2 runs from 0 to 11, both included. NEXT compares at the end of the
; loop: it is run once at least, and afterwards R2 holds 12.

FETCH:  MOV DPTR,#NUMBERS
        R0=#TABLE       ; R0 points into the RAM
        FOR R2=#0 TO #COUNT-1
          A=R2
          MOVC A,@A+DPTR
          MOV @R0,A
          INC R0
        NEXT
        RET

; --- Sort: neighbours in the wrong order change places ----------------
; After one pass the largest number stands last. With twelve numbers eleven
; passes will do, however they stood before.

SORT:   FOR R3=#1 TO #COUNT-1
          R0=#TABLE
          FOR R2=#1 TO #COUNT-1
            MOV A,@R0
            FIRST=A
            INC R0
            MOV A,@R0   ; the second of the two
            IF A<FIRST THEN
              MOV @R0,FIRST ; A is still the second: IF keeps it
              DEC R0
              MOV @R0,A
              INC R0
            END IF
          NEXT
        NEXT
        RET

; --- Search: one after the other --------------------------------------
; With an instruction behind THEN the IF is complete in its line, and
; needs no END IF.

SEEK:   MOV FOUND1,#0FFh
        R0=#TABLE
        FOR R2=#0 TO #COUNT-1
          MOV A,@R0
          IF A=#WANTED THEN MOV FOUND1,R2
          INC R0
        NEXT
        RET

; --- Search: by halving -----------------------------------------------
; In a sorted table each look at the number in the middle rules out one
; half: four looks for twelve numbers, and only 16 for 65000.

HALVE:  MOV LEFT,#0
        MOV RIGHT,#COUNT
HALVE1: A=LEFT
        ADD A,RIGHT
        CLR C
        RRC A           ; the sum divided by two
        MIDDLE=A
        ADD A,#TABLE
        R0=A
        MOV A,@R0
        IF A<#WANTED THEN
          LEFT=MIDDLE   ; too small: it stands further on
          INC LEFT
        ELSE
          RIGHT=MIDDLE  ; large enough: here or before
        END IF
        A=LEFT
        IF A<RIGHT THEN LJMP HALVE1

        MOV FOUND2,#0FFh
        IF A=#COUNT THEN RET ; all of them are smaller
        ; one place is left: the first number that isn't smaller
        ADD A,#TABLE
        R0=A
        MOV A,@R0
        IF A=#WANTED THEN FOUND2=LEFT
        RET

; --- The numbers ------------------------------------------------------

NUMBERS: DB %33,5,%254,%18,%27,%91,7,%64,2,%150,%40,%12

END
