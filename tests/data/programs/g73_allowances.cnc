[THE ALLOWANCES COUNT FROM PASS TO PASS
[Grooves: radius 14 at Z-3, then 12.1 at Z-2.5, then 10.2 at Z-2, and 10 at Z-1
[BILLET X40 Z12
G00 X60 Z5
G73 U4 W-2 R3
G73 P10 Q30 U0.2 W-0.5
[The contour is one groove down to radius 10 at Z-1
N10 G00 X44 Z-1 M25
N20 G01 X20
N30 G01 X44 M26
N40 G00 X60 Z5