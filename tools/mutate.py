#!/usr/bin/env python3
"""Tests the tests: makes one small mistake at a time in the program, and sees whether they notice.

usage: tools/mutate.py [--at-most N] [PATH...]

Takes each source under the PATHs (by default all of src/ that a desktop builds), turns one
comparison, bound, sign, constant or truth value over or leaves a call out, builds the tests that are
to notice, and runs them. It works on a copy in build/mutants. --at-most N takes N mistakes of each
file, evenly spread. Prints each mistake that no test noticed, and for each folder the share that they
did. The status is 0 when that is 95 % or more in every folder.
"""
import collections
import os
import pathlib
import re
import subprocess
import sys

# Which test programs are to notice a mistake in a folder, the quickest first. A folder stands for
# what lies below it.
NOTICED_BY = {
    "src/framework": ["framework_test", "program_test", "out_of_memory_test"],
    "src/pitch": ["pitch_test", "program_test"],
    "src/library": ["program_test"],
    "src/matching": ["program_test"],
    "src/menu": ["program_test"],
    "src/window": ["program_test"],
    "src/shell": ["program_test"],
    "src/check": ["check_test", "orrel-check-library"],
    "src/toolkit/memory": ["program_test"],
    "src/toolkit/qt": ["qt_test"],
}
# Those of ctest's tests that are no test program, by the folder whose mistakes they are to notice.
CTESTS = {"src/window": "^row_", "src/check": "^checker"}
SECONDS = 60  # a mistake that makes a test run longer is noticed
WANTED = 95

# What is written around blanks is an operator here, as the format has it; the rest is of templates.
SWAPS = [(r" < ", " <= "), (r" <= ", " < "), (r" > ", " >= "), (r" >= ", " > "),
         (r" == ", " != "), (r" != ", " == "), (r" && ", " || "), (r" \|\| ", " && "),
         (r" \+ ", " - "), (r" - ", " + "), (r" \* ", " + "), (r" / ", " * "), (r" % ", " / "),
         (r" & ", " | "), (r" << ", " >> "), (r" >> ", " << "), (r" \+= ", " -= "),
         (r" \*= ", " += "), (r"\btrue\b", "false"), (r"\bfalse\b", "true"),
         (r"(?<=[( ])!(?=[\w(])", "")]
NUMBER = r"(?<![\w.\"'])\d+(?![\w.'])"


def mutants_of(text):
    """Yields (line number, old line, new line)."""
    for number, line in enumerate(text.splitlines(), 1):
        if re.match(r"\s*(//|#|static_assert|virtual|$)", line):
            continue
        if re.match(r"\s+(\w+(::|\.|->|\(\)))*\w+\(.*\);$", line):
            yield number, line, ";"
        code = line.split("//")[0]
        quoted = [m.span() for m in re.finditer(r'"(\\.|[^"\\])*"', code)]

        def free(match):
            return not any(a <= match.start() < b for a, b in quoted)

        for pattern, swap in SWAPS:
            for m in filter(free, re.finditer(pattern, code)):
                yield number, line, line[:m.start()] + swap + line[m.end():]
        for m in filter(free, re.finditer(NUMBER, code)):
            yield number, line, line[:m.start()] + str(int(m.group()) + 1) + line[m.end():]


def passes(command, **options):
    try:
        return subprocess.run(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                              **options).returncode == 0
    except subprocess.TimeoutExpired:
        return False


def copy(root, tree):
    """Brings the copy to what the files are now. What differs is written anew, with the time of now,
    so that a build takes up whatever an interrupted run has left."""
    listed = subprocess.run(["git", "ls-files", "-co", "--exclude-standard"], cwd=root, check=True,
                            capture_output=True, text=True).stdout.splitlines()
    for name in listed:
        source, target = root / name, tree / name
        if not source.is_file():
            continue
        if target.is_file() and target.read_bytes() == source.read_bytes():
            continue
        target.parent.mkdir(parents=True, exist_ok=True)
        target.write_bytes(source.read_bytes())
        target.chmod(source.stat().st_mode)
    for target in [path for path in tree.rglob("*") if path.is_file()]:
        if str(target.relative_to(tree)) not in listed:
            target.unlink()


class Tests:
    """The tests that are to notice a mistake in one folder of the copy."""

    def __init__(self, folder, build):
        self.programs = NOTICED_BY[folder]
        self.ctest = CTESTS.get(folder)
        self.build = build

    def built(self):
        return passes(["cmake", "--build", self.build, "-j2", "--target", *self.programs])

    def passed(self):
        quiet = dict(os.environ, QT_QPA_PLATFORM="offscreen",
                     DBUS_SESSION_BUS_ADDRESS="disabled:")
        return all(passes([self.build / "tests" / program, "--gtest_fail_fast"], timeout=SECONDS,
                          env=quiet)
                   for program in self.programs if program.endswith("_test")) and (
            self.ctest is None or passes(["ctest", "--test-dir", self.build, "-R", self.ctest]))


def folder_of(source):
    return next((folder for folder in NOTICED_BY if f"{source}/".startswith(f"{folder}/")), None)


def main():
    arguments = sys.argv[1:]
    most = None
    if arguments[:1] == ["--at-most"]:
        most = int(arguments[1])
        arguments = arguments[2:]
    root = pathlib.Path(__file__).resolve().parent.parent
    tree = root / "build/mutants/tree"
    build = root / "build/mutants/build"
    tree.mkdir(parents=True, exist_ok=True)
    copy(root, tree)
    subprocess.run(["cmake", "-S", tree, "-B", build, "-DPITCHSIEVE_TESTS=ON",
                    "-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS_DEBUG=-O0"], check=True,
                   stdout=subprocess.DEVNULL)

    caught = collections.Counter()
    survived = collections.Counter()
    unbuilt = 0
    for path in arguments or NOTICED_BY:
        sources = sorted((tree / path).rglob("*")) if (tree / path).is_dir() else [tree / path]
        for source in sources:
            place = source.relative_to(tree)
            folder = folder_of(place)
            if source.suffix not in (".h", ".cpp") or folder is None:
                continue
            tests = Tests(folder, build)
            if not tests.built() or not tests.passed():
                sys.exit(f"The tests of {folder} do not pass as it stands.")
            right = source.read_text()
            mutants = list(mutants_of(right))
            if most and len(mutants) > most:
                mutants = [mutants[i * len(mutants) // most] for i in range(most)]
            for number, old, new in mutants:
                lines = right.splitlines(keepends=True)
                lines[number - 1] = new + "\n"
                source.write_text("".join(lines))
                if not tests.built():
                    unbuilt += 1
                elif tests.passed():
                    survived[place.parent] += 1
                    print(f"{place}:{number}\n  {old.strip()}\n  {new.strip()}", flush=True)
                else:
                    caught[place.parent] += 1
            source.write_text(right)
            print(f"{place}: {len(mutants)} mistakes", flush=True)

    shares = {folder: 100 * caught[folder] / (caught[folder] + survived[folder])
              for folder in sorted({*caught, *survived})}
    for folder, share in shares.items():
        print(f"{folder}: {caught[folder]} of {caught[folder] + survived[folder]} noticed, {share:.1f} %")
    print(f"{unbuilt} more did not compile.")
    sys.exit(any(share < WANTED for share in shares.values()))


if __name__ == "__main__":
    main()
