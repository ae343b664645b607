[BOX CYCLES END WHERE THEY BEGAN, AND A TAPER COUNTS FOR ONE CYCLE
[BILLET X26 Z30
N10 G00 X30 Z2
[Radius 4 to Z-8
N20 G94 X8 Z-8
[A cone from Z-12 at the radius of the start to Z-10 at radius 4, marked
N30 Z-10 R-2
[Radius 3 to Z-9, where a taper that counted twice would leave a cone
N40 X6 Z-9
[Radius 12 to Z-20
N50 G90 X24 Z-20
[From radius 8 at Z2 to radius 12 at Z-20, marked: 11.1 at Z-15
N60 R-4
[Radius 11.5 to Z-22
N70 X23 Z-22
[The sum of X and R is clipped, and the part stays as it is
N80 G90 X6400 Z-6 R3276.7
[From radius 15 at Z2 again, in a line to radius 12 at Z-25
N90 G01 X24 W-27