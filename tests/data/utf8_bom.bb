; Begins with a byte order mark: é
Global count = 1
Print count
