local s = 0.0
for i = 1, 100000000 do s = s + i end
print(string.format("%.0f", s))
