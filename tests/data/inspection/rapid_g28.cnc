[BILLET X50 Z80
[N70 feeds 2 mm deep to Z-40 and goes
[home from there: at X37.4 it takes
[4.3 mm more, the radius being 23
N10 G00 X100 Z50
N20 T01 M06
N30 S800 M03
N40 G00 X46 Z2
N50 G01 Z-20 F200
N60 G01 X52
N70 G28 X46 Z-40
N80 M05
N90 M30
