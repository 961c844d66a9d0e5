' A VARIANT changes its kind with each assignment.
DIM v AS VARIANT, w AS VARIANT
v = 3
w = v + 4
v = -w
PRINT v; " "; w
v = "text"
w = v + "!"
PRINT w
