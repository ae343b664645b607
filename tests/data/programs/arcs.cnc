[DIRECTION AND SIGN OF R SELECT THE ARC; WITHOUT R THE RADIUS IS THE LENGTH OF I AND K
[Each arc has radius 5 and goes from radius 10 to radius 15, five to the left
[BILLET X40 Z65
N10 G00 X20 Z-5
[787 points, bulging toward the axis: radius 11.4 at Z-8.5
N20 G02 X30 Z-10 R5
N30 G00 X50
N40 G00 Z-15
N50 G00 X20
[787 points, bulging away: radius 13.5 at Z-16.5
N60 G03 X30 Z-20 R5
N70 G00 X50
N80 G00 Z-25
N90 G00 X20
[2358 points about radius 10 at Z-30: radius 5 there
N100 G02 X30 Z-30 R-5
N110 G00 X50
N120 G00 Z-45
N130 G00 X20
[2358 points about radius 15 at Z-45: radius 10 there, 15 at Z-40
N140 G03 X30 Z-50 R-5
N150 G00 X50
N160 G00 Z-55
N170 G00 X20
[As the first, with the radius from I and K, whatever their signs
N180 G02 X30 Z-60 I-3 K4