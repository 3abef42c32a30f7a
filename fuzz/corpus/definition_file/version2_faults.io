[Modules]
FileVersion=2
Module1=A
Module2=B
Module3=C
[A]
reg0=A
id=A 0x1 B I H A
bit0=x 32
bit31=y -1
bit-5=z 99999999999
bitfield0=A
[B]
dep=B 99 2
id=B -0x1 Q Z X BITS more
[C]
reg0=none
