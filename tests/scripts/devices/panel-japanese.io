; A panel with Japanese names, in code page 932.
[Modules]
BaseAddress=0x100
FileVersion=3
Module1=パネル
[パネル]
addr=100
reg0=R0
reg1=R1
reg2=R2
reg3=R3
[R0]
name=アヂト
reladdr=0
[R1]
name=表示 Ａ
reladdr=1
bitfield0=F0
[F0]
name=ポート
bit=0
len=2
[R2]
name=adc
reladdr=2
[R3]
name=表示 ＡＢ
reladdr=3
