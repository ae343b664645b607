[ARCS WHOSE CHORD LIES ALONG AN AXIS
[BILLET X40 Z60
N10 G00 X24 Z-4
[A half circle along Z, 1570 points: radius 7 at Z-9
N20 G02 Z-14 R5
N30 G00 X50
N40 G00 Z-20
N50 G00 X20
[928 points outward, bulging to the left: radius 14 at Z-22
N60 G02 X36 R5
N70 G00 Z-30
N80 G00 X20
[928 points outward, bulging to the right: radius 14 at Z-28
N90 G03 X36 R5
N100 G00 X50
N110 G00 Z-40
N120 G00 X20
[928 points toward the axis, bulging to the right: radius 6 at Z-38
N130 G02 X4 R5
N140 G00 X50
N150 G00 Z-50
N160 G00 X20
[2214 points round to the left: out to Z-58 at radius 14
N170 G02 X36 R-5