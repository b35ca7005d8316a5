; ----------------------------------------------------------------------
; Sortieren und Suchen mit FOR und IF
;
; Schaltung:  keine. Das Programm arbeitet nur mit dem Speicher und ist
;             für den Debugger gemacht: F4 bereitet die Daten vor, F8 geht
;             zeilenweise, F5 läuft bis zur Zeile STOP.
;
; Zwölf Zahlen werden ins RAM kopiert, dort sortiert und auf zwei Arten
; durchsucht. Am Ende zeigt das RAM-Fenster ab 40h die sortierten Zahlen,
; und FUND1 und FUND2 enthalten beide 5: den Platz von GESUCHT, von 0 an
; gezählt.
;
; Lektionen:  1  FOR ... NEXT: eine Schleife mit Zähler
;             2  IF ... END IF und IF in einer Zeile
;             3  ELSE und Zuweisungen mit =
;             4  was aus einer Anweisung wird: jede ist eine Handvoll
;                gewöhnlicher Befehle; im Debugger ist sie ein Schritt
; ----------------------------------------------------------------------

INCLUDE 8051.mc

TABELLE EQU 40h         ; die Zahlen im RAM
ANZAHL  EQU %12         ; so viele
GESUCHT EQU %27         ; was gesucht wird

ERSTE   DATA 30h        ; die erste von zwei Nachbarinnen
FUND1   DATA 31h        ; Platz, der Reihe nach gesucht, 0FFh: keiner
FUND2   DATA 32h        ; Platz, durch Halbieren gesucht, 0FFh: keiner
LINKS   DATA 33h        ; erster Platz, der noch möglich ist
RECHTS  DATA 34h        ; der Platz hinter dem letzten
MITTE   DATA 35h

ORG 0
        LJMP START

ORG 30h
START:  MOV SP,#5Fh
        LCALL HOLEN
        LCALL SORTIEREN
        LCALL SUCHEN
        LCALL HALBIEREN
        STOP            ; hier hält der Debugger
        SJMP $          ; ein Chip hat nichts mehr zu tun

; --- Aus dem Programmspeicher ins RAM ---------------------------------
; R2 läuft von 0 bis 11, beide eingeschlossen. NEXT vergleicht am Ende der
; Schleife: sie läuft mindestens einmal, und danach steht in R2 eine 12.

HOLEN:  MOV DPTR,#ZAHLEN
        R0=#TABELLE     ; R0 zeigt ins RAM
        FOR R2=#0 TO #ANZAHL-1
          A=R2
          MOVC A,@A+DPTR
          MOV @R0,A
          INC R0
        NEXT
        RET

; --- Sortieren: falsch stehende Nachbarinnen tauschen -----------------
; Nach einem Durchgang steht die größte Zahl hinten. Bei zwölf Zahlen
; genügen elf Durchgänge, wie sie auch vorher standen.

SORTIEREN: FOR R3=#1 TO #ANZAHL-1
          R0=#TABELLE
          FOR R2=#1 TO #ANZAHL-1
            MOV A,@R0
            ERSTE=A
            INC R0
            MOV A,@R0   ; die zweite der beiden
            IF A<ERSTE THEN
              MOV @R0,ERSTE ; A ist noch die zweite: IF erhält es
              DEC R0
              MOV @R0,A
              INC R0
            END IF
          NEXT
        NEXT
        RET

; --- Suchen: der Reihe nach -------------------------------------------
; Mit einem Befehl hinter THEN ist das IF in seiner Zeile vollständig und
; braucht kein END IF.

SUCHEN: MOV FUND1,#0FFh
        R0=#TABELLE
        FOR R2=#0 TO #ANZAHL-1
          MOV A,@R0
          IF A=#GESUCHT THEN MOV FUND1,R2
          INC R0
        NEXT
        RET

; --- Suchen: durch Halbieren ------------------------------------------
; In einer sortierten Tabelle schließt jeder Blick auf die Zahl in der
; Mitte eine Hälfte aus: vier Blicke für zwölf Zahlen, und nur 16 für
; 65000.

HALBIEREN: MOV LINKS,#0
        MOV RECHTS,#ANZAHL
HALB1:  A=LINKS
        ADD A,RECHTS
        CLR C
        RRC A           ; die Summe durch zwei geteilt
        MITTE=A
        ADD A,#TABELLE
        R0=A
        MOV A,@R0
        IF A<#GESUCHT THEN
          LINKS=MITTE   ; zu klein: sie steht weiter hinten
          INC LINKS
        ELSE
          RECHTS=MITTE  ; groß genug: hier oder davor
        END IF
        A=LINKS
        IF A<RECHTS THEN LJMP HALB1

        MOV FUND2,#0FFh
        IF A=#ANZAHL THEN RET ; alle sind kleiner
        ; ein Platz bleibt: die erste Zahl, die nicht kleiner ist
        ADD A,#TABELLE
        R0=A
        MOV A,@R0
        IF A=#GESUCHT THEN FUND2=LINKS
        RET

; --- Die Zahlen -------------------------------------------------------

ZAHLEN: DB %33,5,%254,%18,%27,%91,7,%64,2,%150,%40,%12

END
