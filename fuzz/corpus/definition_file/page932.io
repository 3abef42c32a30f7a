[Modules]
Module1=ƒ]ƒ[
[ƒ]ƒ[]
ƒa=1 B
ƒA=2 W
[xƒ]=
k=\
Ä=3
ä=4!