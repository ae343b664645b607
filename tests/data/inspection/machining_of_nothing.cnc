N5 M01
[The diameter is missing, which counts
[once, behind M01: no other warning
[BILLET Z80 C50
N10 G00 X100 Z50
N20 M30
