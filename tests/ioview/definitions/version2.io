; The lines of version 2 that are right. The base of the file is FF0000, that of the target 1FF0000.
[Modules]
BaseAddress=0xFF0000
FileVersion=2
Module1=LINES
Module2=BITS
Module3=TEXTS

[LINES]
reg0=L0
REG1=L1
reg2=L2
reg3=L3
reg4=L4
[L0]
id=DECIMAL 0x10 W A D
; in small letters
[L1]
id=BINARY 0x10 b r b
[L2]
id=ADDRESS 0x10
; A minus at the start belongs to the name.
[L3]
id=-0x5 0x10 B A
; The prefix of another field is one as well.
[L4]
id=PREFIX 10 B A H 0x
[0x]
bit0=LOW

; Bit sections, of registers with the value 5A.
[BITS]
reg0=B0
reg1=B1
reg2=B2
reg3=B3
reg4=B4
reg5=B5
reg6=B6
reg7=B7
[B0]
id=ORDER 0x5A B A H ORDER
[ORDER]
bit4=HIGH 4
BIT1=ONE
[B1]
id=OTHERKEYS 0x5A B A H OTHERKEYS
[OTHERKEYS]
x=1
bi=N 1
Bit0=LOW 4 rest
[B2]
id=NOLENGTH 0x5A B A H NOLENGTH
[NOLENGTH]
bit1=ONE x
; A key without a number ends the section,
[B3]
id=NONUMBER 0x5A B A H NONUMBER
[NONUMBER]
bit0=LOW 4
bitfield=N
bit4=HIGH 4
; so does one without a name,
[B4]
id=NONAME 0x5A B A H NONAME
[NONAME]
bit0=LOW 4
bit1=
bit4=HIGH 4
; and a protection without a number.
[B5]
id=BADPROT 0x5A B A H BADPROT
[BADPROT]
protection=RO z
bit4=HIGH 4
[B6]
id=PROTECTED 0x5A B A H PROTECTED
[PROTECTED]
bit0=LOW 4
Protection=WARE 5a
bit4=HIGH 4
; A repeated key gives its first value again.
[B7]
id=REPEATED 0x5A B A H REPEATED
[REPEATED]
bit0=LOW 4
bit0=X 2

; Values in each radix: as wide as the size says, decimal longs by blanks.
[TEXTS]
reg0=T0
reg1=T1
reg2=T2
reg3=T3
reg4=T4
[T0]
id=BYTE 0x10 B A D
[T1]
id=LONG 0x12 L A H
[T2]
id=SMALL_LONG 0x1 L A D
[T3]
id=ODD_WORD 0x11 W A B
[T4]
id=ODD_LONG 0xF3 L A D
