def run():
    parts = []
    c = "x"
    for i in range(10000000):
        parts.append(c)
    s = "".join(parts)
    print(len(s))
run()
