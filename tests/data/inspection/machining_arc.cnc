[BILLET X40 Z60
[A quarter of radius 10 is 15.708 mm,
[at F60 as many seconds; the way to it
[is 2 mm. N50 has no feed: 8 mm
[without a time
N10 G00 X100 Z50
N20 S800 M03
N30 G00 X20 Z2
N35 G01 Z0 F60
N40 G03 X40 Z-10 R10
N50 G01 Z-18 F0
N60 G00 X100 Z50
N70 M05
N80 M30
