X1	Z2 [a
Zä [b