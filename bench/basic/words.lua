local s = string.rep("alpha beta gamma delta ", 434783)
local words = 0
local at = string.find(s, " ", 1, true)
while at do
  words = words + 1
  at = string.find(s, " ", at + 1, true)
end
print(words)
