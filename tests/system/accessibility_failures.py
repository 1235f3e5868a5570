"""Inputs that fail, given on the accessibility bus: each call comes back, and then comes the message."""

import pyatspi
from on_the_bus import all_of, do, program, quit_by_menu, until, window


def messages():
    return [one for one in program() if one.getRole() == pyatspi.ROLE_ALERT]


def read(what):
    until(what, 1, lambda: len(messages()))
    (button,) = all_of(messages()[0], pyatspi.ROLE_PUSH_BUTTON)
    do(button)
    until(what + ", read", 0, lambda: len(messages()))


until("the program on the bus", True, lambda: program() is not None)
read("the library's fault")
top = window()
boxes = {box.name: box for box in all_of(top, pyatspi.ROLE_CHECK_BOX)}
for name in ("Include Other Roots", "C", "E"):
    do(boxes[name])
    read(name)
(table,) = [table for table in all_of(top, pyatspi.ROLE_TABLE) if table.name == "Containing All Notes"]
until("a row", True, lambda: table.queryTable().nRows > 0)
table.queryTable().addRowSelection(0)
do(boxes["Include Other Roots"])
do(boxes["Include Other Roots"])
read("the second time")
quit_by_menu(top)
print("Failed on the accessibility bus, and said so.")
