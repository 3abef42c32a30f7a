; Version 3: the base of the target and the address of the module are both added, whatever "abs" says.
[Modules]
BaseAddress=0xFF0000
FileVersion=3
Module1=PORT
Module2=NOSECTION
[PORT]
addr=1000000
abs=1
reg0=ADDRESS
reg1=ALL
reg2=WRITE
reg3=ODD
reg4=FIELDS
[ADDRESS]
reladdr=10
[ALL]
name=EVERY KEY
reladdr=0x10
size=16
radix=d
read=1
write=0
; A size in octal with text behind it.
[WRITE]
name=WRITE ONLY
reladdr=10
read=0
size=040 bits
; A size and flags that there aren't.
[ODD]
name=ODD
reladdr=10
size=24
read=00
write=x
; Bit fields up to a gap, whatever is missing in their sections.
[FIELDS]
name=FIELDS
reladdr=5A
write=0
bitfield0=A
bitfield1=B
bitfield2=C
bitfield3=D
bitfield5=A
[A]
name=HIGH
bit=4
len=0x4
[B]
name=NOBIT
len=2
[C]
name=BADLEN
bit=1
len=x
