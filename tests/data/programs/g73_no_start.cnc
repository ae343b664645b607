[WITHOUT THE ROW OF P THE PASSES BEGIN AT THE FIRST ROW OF THE PROGRAM
[Its own blocks stand in that range and start no cycle inside
[The rows of M25 run once in each of the two passes and once behind the cycle
[BILLET X40 Z12
G00 X60 Z5
G73 U4 W-2 R2
G73 P77 Q10 U0 W0
[The contour is one groove down to radius 10 at Z-1
N10 G00 X44 Z-1 M25
N20 G01 X20
N30 G01 X44 M26
N40 G00 X60 Z5