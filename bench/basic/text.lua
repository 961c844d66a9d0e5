local parts = {}
local c = "x"
for i = 1, 10000000 do parts[i] = c end
local s = table.concat(parts)
print(#s)
