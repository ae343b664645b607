[billet X20 Z40
G01 X10