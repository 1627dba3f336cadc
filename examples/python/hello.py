"""Shows a label in a bordered box."""
import quarlo

with quarlo.Display() as display:
    face = display.bevel(display.area.inset(20), light=0xFFFFFF, dark=0x506070, width=4)
    display.fill(face, 0xC0C8D0)
    font = quarlo.Font("TORVANDELL CNC Gothic", size=24)
    display.text(face, "Hello, 旋盤!", 0x102040, font=font, align="centre")
    display.show()
    display.wait()
