def run():
    n = 10000000
    struck = bytearray(n + 1)
    count = 0
    for i in range(2, n + 1):
        if struck[i] == 0:
            count = count + 1
            j = i + i
            while j <= n:
                struck[j] = 1
                j = j + i
    print(count)
run()
