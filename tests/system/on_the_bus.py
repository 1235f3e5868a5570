"""What a client of the accessibility bus does with the program."""

import time

import pyatspi


def until(what, expected, found):
    """Asks until the answer is the expected one: it comes from another process."""
    for _ in range(100):
        answer = found()
        if answer == expected:
            return
        time.sleep(0.05)
    raise SystemExit(f"{what}: expected {expected!r}, found {answer!r}")


def program():
    for application in pyatspi.Registry.getDesktop(0):
        if application is not None and application.name == "Orrel Pitchsieve":
            return application
    return None


def window():
    """The window, once it is there and nothing stands before it."""
    until("the program on the bus", True, lambda: program() is not None)
    until("its window", ["frame"], lambda: [one.getRoleName() for one in program()])
    return program()[0]


def all_of(top, role):
    return pyatspi.findAllDescendants(top, lambda item: item.getRole() == role)


def do(item):
    """Its first action. A call that does not come back at once is a failure of the bus."""
    item.queryAction().doAction(0)


def quit_by_menu(top):
    do(next(item for item in all_of(top, pyatspi.ROLE_MENU_ITEM) if item.name == "Quit"))
