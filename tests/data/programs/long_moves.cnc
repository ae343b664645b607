[MOVES OF 65536 POINTS AND POSITIONS BEYOND 16 BITS ARE PLAYED AND NEVER WRAP
[BILLET X20 Z10
N10 G00 X18 Z3276.7
[Radius 9 all along, from the one end of the axis to the other
N20 G01 Z-3276.8
N30 G00 X6553.4
[Every sixth column of the diagonal from corner to corner: 0.1 at Z-0.2, 0.7 at Z-0.8 and so on
N40 G00 X-6553.6 Z3276.7
N50 G00 X-20 Z-5
[The first pass lies outside. Its reposition is clipped, and the second pass cuts a taper from there:
[radius 2 at Z0, 8 at Z-6
N60 G73 U6553.4 W3276.7 R2
N70 G73 P80 Q90 U0 W0
N80 G01 X-16 Z-6
N90 M08