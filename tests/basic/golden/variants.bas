' A VARIANT changes its kind with each assignment.
DIM v AS VARIANT, w AS VARIANT
v = 3
w = v + 4
v = -w
PRINT v; " "; w
v = "text"
w = v + "!"
PRINT w
' A whole number and a fraction, in both orders, give a fraction; two whole numbers stay exact.
v = 3
w = 2.5
PRINT v + w; " "; w + v; " "; v - w; " "; w - v; " "; v * w; " "; w * v
v = 9007199254740993
w = 2
PRINT v + w; " "; v - w; " "; v * w
v = 7
PRINT v / w; " "; v \ w; " "; v MOD w; " "; v ^ w
PRINT (v > w); " "; (v = w); " "; (v < 7.5)
' A text is a number in arithmetic, but for +.
v = "12"
PRINT v * w; " "; v - w; " "; v + w; " "; v & w
