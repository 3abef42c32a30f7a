; A definition of version 2 in which almost every register is wrong, each in a way of its own.
[Modules]
FileVersion=2
Module1=NOREG
Module2=NOID
Module3=ADDRESS
Module4=SIZE
Module5=FLAG
Module6=RADIX
Module7=BITS
Module8=GOOD

[NOREG]
name=of no use here

[NOID]
reg0=FIRST
reg1=WITHOUT
[FIRST]
id=FIRST 0x10 B A H
[WITHOUT]
ident=WITHOUT 0x11

[ADDRESS]
reg0=PLAINHEX
[PLAINHEX]
id=PLAINHEX FF B A H

[SIZE]
reg0=QUAD
[QUAD]
id=QUAD 0x20 Q A H

[FLAG]
reg0=FIXED
[FIXED]
id=FIXED 0x30 B X H

[RADIX]
reg0=OCTAL
[OCTAL]
id=OCTAL 0x40 B A HEX OCTAL_BITS

[BITS]
reg0=HOLLOW
[HOLLOW]
id=HOLLOW 0x50 B A H NOWHERE

[GOOD]
reg0=PLAIN
[PLAIN]
id=PLAIN 0x60 W A D PLAIN_BITS
[PLAIN_BITS]
bit0=LOW 4
PROTECTION=W 5A
remark=bits may be told in any order
BIT12=TOP
bitx=NEVER
bit5=LOST
