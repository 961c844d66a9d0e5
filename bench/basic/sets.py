class Label:
    @property
    def left(self):
        return self._left
    @left.setter
    def left(self, value):
        self._left = value
def run():
    label = Label()
    for i in range(1, 1000001):
        label.left = i
    print(label.left)
run()
