def run():
    s = 0.0
    for i in range(1, 100000001):
        s = s + i
    print("%.0f" % s)
run()
