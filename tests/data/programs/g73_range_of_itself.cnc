[A RANGE THAT HOLDS ITS OWN BLOCKS STARTS NO CYCLE INSIDE
[M38 runs in the block itself and in each of three passes, M25 in each pass and behind them
[BILLET X40 Z12
G00 X60 Z5
N5 G73 U4 W-2 R3 M38
N7 G73 P5 Q10 U0 W0
[The contour is one groove down to radius 10 at Z-1
N10 G00 X44 Z-1 M25
N20 G01 X20
N30 G01 X44 M26
N40 G00 X60 Z5