local record = {}
local label = setmetatable({}, {
  __index = function(_, name) return record[name] end,
  __newindex = function(_, name, value) record[name] = value end,
})
for i = 1, 1000000 do label.left = i end
print(label.left)
