"""A screen reader's walk through the window, on the accessibility bus."""

import time

import pyatspi

HELP = "Select which pitch classes must appear in the scale."
TOLD = "In the chosen scale. " + HELP
NOTES = ["C", "C# / Db", "D", "D# / Eb", "E", "F", "F# / Gb", "G", "G# / Ab", "A", "A# / Bb", "B"]
C_MAJOR = ["C", "D", "E", "F", "G", "A", "B"]


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


def all_of(role):
    return pyatspi.findAllDescendants(window, lambda item: item.getRole() == role)


def has(item, state):
    return item.getState().contains(state)


def tick(name):
    boxes[name].queryAction().doAction(0)


def rows(name):
    table = tables[name].queryTable()
    return [
        [table.getAccessibleAt(row, column).name for column in range(table.nColumns)]
        for row in range(table.nRows)
    ]


until("the program on the bus", True, lambda: program() is not None and len(program()) == 1)
window = program()[0]
boxes = {box.name: box for box in all_of(pyatspi.ROLE_CHECK_BOX)}
tables = {table.name: table for table in all_of(pyatspi.ROLE_TABLE)}
(popup,) = all_of(pyatspi.ROLE_COMBO_BOX)

until("the boxes", sorted([*NOTES, "Include Other Roots", "Roots in List Only"]), lambda: sorted(boxes))
for name, box in boxes.items():
    for ticked in (True, False):
        tick(name)
        until(name + " ticked", ticked, lambda: has(box, pyatspi.STATE_CHECKED))
    until(name + " takes the focus", True, lambda: has(box, pyatspi.STATE_FOCUSABLE))
    until(name + " explains itself without mark-up", False, lambda: "<" in (box.description or "<"))

labels = [
    relation.getTarget(0).name
    for relation in popup.getRelationSet()
    if relation.getRelationType() == pyatspi.RELATION_LABELLED_BY
]
until("the root menu's label", ["Root Note"], lambda: labels)
until("the root menu's value", "C", lambda: popup.name)

until("the lists", ["Containing All Notes", "Exact Match"], lambda: sorted(tables))
for name in ("C", "E", "G"):
    tick(name)
until("three columns", [3, 3], lambda: [table.queryTable().nColumns for table in tables.values()])
until("the exact match", True, lambda: "C" in [root for _, _, root in rows("Exact Match")])
found = rows("Containing All Notes")
major = next(row for row, cells in enumerate(found) if "Major" in cells[1].split(" / "))


def descriptions():
    return [boxes[name].description for name in NOTES]


def labels_shown():
    return sorted(label.name for label in all_of(pyatspi.ROLE_LABEL) if has(label, pyatspi.STATE_SHOWING))


titles = ["Containing All Notes", "Exact Match", "Notes in Scale", "Root Note"]
until("no star", [HELP] * 12, descriptions)
until("no hidden label", titles, labels_shown)
tables["Containing All Notes"].queryTable().addRowSelection(major)
until("the stars", [TOLD if name in C_MAJOR else HELP for name in NOTES], descriptions)
until("their labels", sorted(titles + ["In the chosen scale."] * 7), labels_shown)
tick("E")
until("no star any more", [HELP] * 12, descriptions)
print("Read, ticked and chosen from on the accessibility bus.")
