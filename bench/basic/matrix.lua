local n = 300
local a, b, c = {}, {}, {}
for i = 1, n do
  a[i], b[i], c[i] = {}, {}, {}
  for j = 1, n do
    a[i][j] = i + j
    b[i][j] = i - j
  end
end
for i = 1, n do
  for j = 1, n do
    local s = 0.0
    for k = 1, n do s = s + a[i][k] * b[k][j] end
    c[i][j] = s
  end
end
print(string.format("%.0f %.0f", c[1][1], c[n][n]))
