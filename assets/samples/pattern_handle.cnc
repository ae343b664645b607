[TURNED HANDLE: G73 follows a
[contour that rises and falls
[BILLET X40 Z80
[Straight cuts can't rough
[the waist of this handle,
[but G73 can: every pass is
[the whole contour, shifted
[outwards. Tool 2 can fall
[by up to 50 degrees
N10 G21 G00 X46 Z12
N20 T02 M06
N30 S1200 M03
N40 M08
N50 G00 X44 Z2
[First block: shift the
[first pass by 18 mm on the
[radius, make 10 passes
N60 G73 U18 W0 R10
[Second block: rows of the
[contour, and 0.1 mm more
[on the radius at each pass
N70 G73 P200 Q300 U0.2 W0 F160
N80 S1600 M03
[The contour runs once more
[behind the cycle, unshifted:
[the finishing cut
[All arcs meet without a corner
[Come to the nose along Z
[alone: the 3D view draws
[arcs right behind a G01 that
[moves X and Z at once
[as one straight taper
N200 G00 X0 Z2
N210 G01 Z0 F100
N220 G03 X19.2 Z-7.2 R10 [Nose
[Grip, 23.2 mm across in
[its middle, at Z-21.2
N230 G03 X19.2 Z-35.2 R50
[Waist, 17.2 mm across at Z-42.2
N240 G02 X27.2 Z-57.2 R25
[Round edge
N250 G03 X29.2 Z-60.2 R5
N260 G01 Z-67
N270 G01 X33
N280 G01 X35 Z-68
N290 G01 Z-73
N300 G01 X42
N310 G28 X60 Z5
N320 M09
N330 M05
N340 M30