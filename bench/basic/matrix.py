def run():
    n = 300
    a = [[float(i + j) for j in range(n + 1)] for i in range(n + 1)]
    b = [[float(i - j) for j in range(n + 1)] for i in range(n + 1)]
    c = [[0.0] * (n + 1) for i in range(n + 1)]
    for i in range(1, n + 1):
        for j in range(1, n + 1):
            s = 0.0
            for k in range(1, n + 1):
                s = s + a[i][k] * b[k][j]
            c[i][j] = s
    print("%.0f %.0f" % (c[1][1], c[n][n]))
run()
