[THE MOTION SEES THE LAST VALUE OF EVERY WORD, SPEED AND TOOL ARE SCANNED FIRST
[BILLET X20 Z10
[One feed move along X18 to Z-5: neither X30 nor Z-8 is ever a target
N10 G00 X18 Z1
N20 G00 X30 G01 X18 Z-8 Z-5
[The spindle starts at the speed of the last S word behind it
N30 M03 S400 S500 T2 T3
N40 G04