; Version 1: a wrong size is a byte, a wrong flag moves with the base, and an address that isn't one is 0.
[Modules]
FileVersion=4
Module1=V1
Module3=NEVER

[V1]
SIZE=10 Q A
FLAG=20 W X
NUMBER=xyz
EMPTY=
=30 B
LAST=0x40 L
