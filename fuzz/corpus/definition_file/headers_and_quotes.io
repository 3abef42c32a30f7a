[Modules]
BaseAddress=-0x1FFFFFFFFFFFFFFFFF
[modules]
FileVersion=3
; [x]
[x=1
[a]=]
[]
=
"k"="v"
k=''
k="
