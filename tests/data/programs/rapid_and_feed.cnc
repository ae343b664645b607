[A RAPID MOVE GOES DIAGONALLY, THEN STRAIGHT, AND PLAYS EVERY SIXTH POINT; A FEED MOVE PLAYS ALL
[BILLET X20 Z20
N10 G00 X20 Z0
[Radius 9.4 at Z-0.6, 8.8 at Z-1.2 and so on to 7 at Z-3, then 7 at every sixth column to Z-9.6
N20 G00 X14 Z-10
[One line down to radius 6, from Z-10 on though the rapid move has not played it
N30 G01 X12 Z-15
[Without a distance a rapid move plays its one point, a feed move none
N40 G00
N50 G01
N60 G00 X30
N70 G00 Z-18
N80 G00 X8
[Halves go to the even neighbour: 4, 4, 4.1, 4.2, 4.2, 4.2, 4.3, 4.4, 4.4 from Z-18 on
N90 G01 X8.8 Z-18.8
N100 G00 X20
N110 Z-19
N120 X12
[Steps are added one by one, so that the half at Z-19.5 falls a little short: radius 6.1
N130 G01 X12.6 Z-20