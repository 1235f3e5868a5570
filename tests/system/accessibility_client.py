"""A screen reader's walk through the window, on the accessibility bus."""

import pyatspi
from on_the_bus import all_of, do, quit_by_menu, until, window

HELP = "Select which pitch classes must appear in the scale."
TOLD = "In the chosen scale. " + HELP
NOTES = ["C", "C# / Db", "D", "D# / Eb", "E", "F", "F# / Gb", "G", "G# / Ab", "A", "A# / Bb", "B"]
C_MAJOR = ["C", "D", "E", "F", "G", "A", "B"]


def has(item, state):
    return item.getState().contains(state)


def tick(name):
    do(boxes[name])


def rows(name):
    table = tables[name].queryTable()
    return [
        [table.getAccessibleAt(row, column).name for column in range(table.nColumns)]
        for row in range(table.nRows)
    ]


top = window()
boxes = {box.name: box for box in all_of(top, pyatspi.ROLE_CHECK_BOX)}
tables = {table.name: table for table in all_of(top, pyatspi.ROLE_TABLE)}
(popup,) = all_of(top, pyatspi.ROLE_COMBO_BOX)

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
    return sorted(label.name for label in all_of(top, pyatspi.ROLE_LABEL) if has(label, pyatspi.STATE_SHOWING))


titles = ["Containing All Notes", "Exact Match", "Notes in Scale", "Root Note"]
until("no star", [HELP] * 12, descriptions)
until("no hidden label", titles, labels_shown)
tables["Containing All Notes"].queryTable().addRowSelection(major)
until("the stars", [TOLD if name in C_MAJOR else HELP for name in NOTES], descriptions)
until("their labels", sorted(titles + ["In the chosen scale."] * 7), labels_shown)
tick("E")
until("no star any more", [HELP] * 12, descriptions)
quit_by_menu(top)
print("Read, ticked, chosen from and quit on the accessibility bus.")
