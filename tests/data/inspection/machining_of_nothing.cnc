[BILLET Z80 C50
[The diameter is missing, which counts
[once: it is no other warning
N10 G00 X100 Z50
N20 M30
