[THE SECOND BLOCK MOVES NOTHING EITHER
[Grooves down to 15 at Z-3 and Z-7; if U or W were kept, the first would be at Z-5
[BILLET X40 Z12
G00 X44 Z-3
G73 U0 W0 R2
G73 P10 Q20 U0 W-2
[The contour begins with X alone
N10 G01 X30
N20 G01 X44