; Zażółć gęślą jaźń — Привет, мир — こんにちは — 🚀
Global greeting$ = "Grüße, 世界"
Print greeting ; the text above has 2, 3 and 4 byte sequences
Größe = Len("é")
Print "🚀" + Größe
