[BILLET X50 Z80
[The tool waits at X100 Z11.3. Rapid
[moves go at 45 degrees first: 27 mm
[in X beside 48 in Z are 27 x 1.4142
[and 21, 59.184
[Tool 1: cuts 22 and 2 mm at F100,
[14.4 s; pi x (25^2 - 23^2) x 20 is
[6031.9. Tool 2: cuts 12 and 4 mm at
[F50, 19.2 s; pi x (23^2 - 21^2) x 10
[is 2764.6 cubic mm
[Rapids before tool 1: 38.7; of it:
[59.184 + 25 x 1.4142 + 45 = 139.539;
[of tool 2: 29 x 1.4142 + 19 and
[25 x 1.4142 + 35, together 130.368.
[At 3000 mm a minute that is 50 mm/s
N10 G00 X100 Z50
N20 T01 M06 S800 M03
N30 G00 X46 Z2
N40 G01 Z-20 F100
N50 G01 X50
N60 G00 X100 Z50
N70 T02 M06
N80 G00 X42 Z2
N90 G01 Z-10 F50
N100 G01 X50
N110 G00 X100 Z50
N120 M05
N130 M30
