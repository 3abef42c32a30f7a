; The bench after its workspace has moved, with a motor beside the port.
[Modules]
BaseAddress=0xFF0000
Module1=PORT
Module2=MOTOR
[PORT]
PDATA=FF0041 B I
[MOTOR]
SPEED=FF0060 W
