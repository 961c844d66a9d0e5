Dim Font As QFont
Dim Form1 As QForm
Form1.OnTimer = Form1_OnTimer
Form1.OnClick = Form1_OnClick
