; ----------------------------------------------------------------------
; Makros und eine eigene Include-Datei
;
; Schaltung:  keine. Das Programm ist für den Debugger gemacht: F4 bereitet
;             die Daten vor, F8 geht Zeile für Zeile, F5 läuft bis STOP.
;
; Zwei Klassiker mit Zahlen von 16 Bits. Die Fibonacci-Zahlen 1, 1, 2, 3,
; 5, 8 ...: jede ist die Summe der beiden vor ihr; die letzte unter 65536
; ist die 24., 46368 = B520h. Und der größte gemeinsame Teiler von 46368
; und 28656: er ist 144 = 0090h.
; Bei STOP: NUMMER = 18h, FIBH = B5h, FIBL = 20h, TEILH = 00h,
; TEILL = 90h.
;
; Lektionen:  1  INCLUDE bindet eine Datei ein: words.inc rechnet für uns
;             2  ein Makro ist eine Abkürzung für einige Zeilen
;             3  das Carry-Flag als Antwort eines Unterprogramms
; ----------------------------------------------------------------------

INCLUDE 8051.mc

NUMMER  DATA 30h        ; die wievielte Fibonacci-Zahl es ist
FIBH    DATA 31h        ; die Zahl, Highbyte ...
FIBL    DATA 32h        ; ... und Lowbyte
TEILH   DATA 33h        ; der gemeinsame Teiler
TEILL   DATA 34h

; --- Makros -----------------------------------------------------------
; Unter seiner Definition wird aus jeder Zeile, in der nur der Name steht,
; von der ersten Spalte an, der Block. Nichts wird gerufen, nichts kehrt
; zurück: der Block steht so oft da wie der Name.
; Der Name wird überall gefunden: kein anderes Wort darf ihn enthalten.
; Hinter den Worten, die den Block beenden, muss noch etwas stehen, und
; sei es ein Kommentar: sonst geht die nächste Zeile mit verloren.
; Ein Block darf viele Zeilen haben. Doch jede außer der ersten macht den
; Text länger, als der Editor ihn zeigt, und der Debugger würde um so
; viele Zeilen daneben markieren: diese haben je eine.

#define ADDIERE_Y
        LCALL XPLUSY    ; X = X + Y
#end def ; -------------------------------------------------------------

#define SUBTRAHIERE_Y
        LCALL XMINUSY   ; X = X - Y
#end def ; -------------------------------------------------------------

#define TAUSCHE_XY
        LCALL XCHANGEY  ; X und Y tauschen den Platz
#end def ; -------------------------------------------------------------

; --- Programm ---------------------------------------------------------

ORG 0
START:  MOV SP,#3Fh
        LCALL FIBO
        LCALL TEILER
        STOP            ; hier hält der Debugger
        SJMP $          ; ein Chip hat nichts mehr zu tun

; --- Fibonacci-Zahlen -------------------------------------------------
; Y ist die neuere von zwei Nachbarn, X die ältere. Ihre Summe ist die
; nächste; was die neuere war, ist dann die ältere.

FIBO:   MOV R4,#0       ; X = 0
        MOV R5,#0
        MOV R6,#0       ; Y = 1, die erste
        MOV R7,#1
        MOV NUMMER,#1
FIBO1:
ADDIERE_Y
        JC FIBO2        ; zu groß: Y war die letzte
TAUSCHE_XY
        INC NUMMER
        SJMP FIBO1
FIBO2:  MOV FIBH,R6
        MOV FIBL,R7
        RET

; --- Größter gemeinsamer Teiler ---------------------------------------
; Euklid: die kleinere von der größeren abziehen, bis beide gleich sind. Y
; ist noch die letzte Fibonacci-Zahl.

TEILER: MOV R4,#HIGH(%28656)
        MOV R5,#LOW(%28656)
TEILER1:
SUBTRAHIERE_Y
        JC TEILER2      ; X war die kleinere
        MOV A,R4
        ORL A,R5
        JNZ TEILER1     ; es bleibt etwas übrig: noch einmal
        MOV TEILH,R6    ; der Unterschied ist 0: sie waren gleich
        MOV TEILL,R7
        RET

TEILER2:
ADDIERE_Y
TAUSCHE_XY
        SJMP TEILER1    ; wie es war, und umgekehrt

; --- Die Include-Datei ------------------------------------------------
; Gesucht wird sie neben dieser Datei, dann in den Ordnern include und mc
; des Programms. Sie enthält Unterprogramme und steht deshalb dort, wohin
; das Programm nie von selbst gerät. Makros müssen im Haupttext stehen.

INCLUDE words.inc

END
