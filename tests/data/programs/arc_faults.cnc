[AN ARC THAT CANNOT BE DRAWN IS TOLD OR PASSED OVER, AND THE TOOL STAYS WHERE IT IS
[BILLET X30 Z20
N10 G00 X24 Z-2
[Two messages: the radius doesn't reach over the chord of 10, and the next block has none
N20 G02 Z-12 R4
N30 I0 K0
[Radius 5 reaches, from Z-2 still
N40 R5
[No distance, no point, and the radius is used up all the same
N50 R6
N60 Z-18 I3 K4
[A bulge beyond 16 bits
N70 G00 X6400
N80 G03 W-10 R-3276.7