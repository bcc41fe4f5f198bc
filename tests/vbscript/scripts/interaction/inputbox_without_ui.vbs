x = InputBox("Quale ruota?")                                                         ' expect runtime error 70
