; The lines of version 2 that are wrong, each in a module of its own.
[Modules]
BaseAddress=0xFF0000
FileVersion=2
Module1=PREFIX
Module2=MINUS
Module3=SIZE
Module4=FLAG
Module5=RADIX
Module6=WORD
Module7=ALL
Module8=NOBITS
Module9=NOSECTION
; A name with a percent sign shows as it stands.
[PREFIX]
reg0=R1
[R1]
id=P%1 FF0000 B A
; The prefix stands behind a minus.
[MINUS]
reg0=R2
[R2]
id=M 0x10 B A H P-0x
[SIZE]
reg0=R3
[R3]
id=S 0x10 Q A D
[FLAG]
reg0=R4
[R4]
id=F 0x10 W Q H
[RADIX]
reg0=R5
[R5]
id=R 0x10 W A Q
[WORD]
reg0=R6
[R6]
id=W 0x10 B A HEX BITS
[ALL]
reg0=R7
[R7]
id=A 10 X Y Z
; Without an entry of bits the register is shown all the same.
[NOBITS]
reg0=R8
[R8]
id=N 0x5A B A H NOTHING
