[EACH LETTER FILLS ITS REGISTER IN ITS SCALE
[BILLET X20 Z10
[Half a unit goes to the even neighbour: K-1.25 is -12, Q200.05 is 2000, F2.5 is 2
N10 G04 F0.2 I1.25 K-1.25 P100 Q200.05 R5 S1500 T12
N20 F2.5
[Diameters are halved: radius 9.05 is 90 at X18.1, and 9.15 is 92 at X18.3
N30 G00 X18.1 Z1
N40 G01 Z-3
N50 X18.3
N60 Z-6
[U and W count from the position: radius 9.5 up to Z-9
N70 U0.7 W-0
N80 U0 W-3
[U counts from the position, whatever the X in front of it: radius 9.9 at Z-9.5
N90 X17 U0.6 Z-9.5