; Registers of two modules at the same addresses, one name in both, and names with characters of lists.
[Modules]
Module1=LEFT
Module2=RIGHT
[LEFT]
Beta=20
ALPHA=30 W
TWIN=10
A&B=50
C\D=51
[RIGHT]
GAMMA=20 L
delta=30
TWIN=40 W
