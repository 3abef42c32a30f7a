; A stove: two modules with registers, one with none. Small enough that a whole page fits an eye.
[Modules]
BaseAddress=0x1000
FileVersion=3
Module1=HEAT
Module2=FAN
Module3=SPARE

[HEAT]
addr=1000
reg0=HCTL_REG
reg1=HTEMP_REG

[HCTL_REG]
name=HCTL
reladdr=0
bitfield0=HCTL_ON
bitfield1=HCTL_LEVEL
[HCTL_ON]
name=ON
bit=0
[HCTL_LEVEL]
name=LEVEL
bit=1
len=3

[HTEMP_REG]
name=HTEMP
reladdr=2
size=16
radix=D
write=0

[FAN]
addr=1100
reg0=FCTL_REG

[FCTL_REG]
name=FCTL
reladdr=0
radix=B

[SPARE]
addr=1200
