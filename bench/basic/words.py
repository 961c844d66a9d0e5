def run():
    s = "alpha beta gamma delta " * 434783
    words = 0
    at = s.find(" ")
    while at >= 0:
        words = words + 1
        at = s.find(" ", at + 1)
    print(words)
run()
