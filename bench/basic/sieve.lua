local n = 10000000
local struck = {}
for i = 0, n do struck[i] = 0 end
local count = 0
for i = 2, n do
  if struck[i] == 0 then
    count = count + 1
    local j = i + i
    while j <= n do
      struck[j] = 1
      j = j + i
    end
  end
end
print(count)
