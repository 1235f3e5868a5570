#!/usr/bin/env python3
"""Tests the tests: makes one small mistake at a time in the program, and sees whether they notice.

usage: tools/mutate.py [--at-most N] [PATH...]

Takes each source under the PATHs (by default all of src/), turns one comparison, bound, sign, constant
or truth value over or leaves a call out, builds the tests that are to notice, and runs them. It works
on a copy in build/mutants. --at-most N takes N mistakes of each file, evenly spread. Prints each
mistake that no test noticed, and for each folder the share that they did. The status is 0 when that is
95 % or more in every folder. What it needs is what .ci/run installs.
"""
import collections
import contextlib
import os
import pathlib
import re
import shlex
import signal
import subprocess
import sys

# What reads bytes is also held to the fuzzers' seeds.
SEEDS = "ctest --timeout 60 --stop-on-failure -R ^fuzz"
FUZZERS = ["fuzz_block", "fuzz_lines", "fuzz_load", "fuzz_split", "fuzz_val"]
FRAMEWORK = ["tests/framework_test", "tests/program_test", "tests/out_of_memory_test", SEEDS]
PROGRAM = ["tests/program_test", "tests/out_of_memory_test"]
CHECKER = ["tests/check/check_test",
           "ctest --timeout 60 --stop-on-failure -R ^(checker|with_little|fuzz_load)"]
# The program on a real screen, a bus, a compositor: what no test program has.
STARTED = ["ctest --stop-on-failure -R ^(on_a_real|following|with_little)"]
SYSTEM = "../tree/tests/system/"
ON_THE_DESKTOP = STARTED + [
    SYSTEM + "orca_test.sh orrel-pitchsieve", SYSTEM + "accessibility_test.sh orrel-pitchsieve",
    SYSTEM + "wayland_test.sh orrel-pitchsieve",
    SYSTEM + "platform_theme_test.sh orrel-pitchsieve tests/settings_portal"]
STARTED_TARGETS = ["orrel-pitchsieve", "orrel-check-library", "settings_portal", "refuse_memory",
                   "refuse_threads"]
PAGE = ["ctest --stop-on-failure -R page_layout", "ctest --stop-on-failure -E page_monkey"]

# The tests that are to notice a mistake in a folder, which stands for what lies below it: the targets
# to build, and the commands to run in the build's folder, the quickest first.
NOTICED_BY = {
    "src/framework": (["framework_test", "program_test", "out_of_memory_test", *FUZZERS], FRAMEWORK),
    "src/pitch": (["pitch_test", "program_test"], ["tests/pitch_test", "tests/program_test"]),
    "src/library": (["program_test"], PROGRAM[:1]),
    "src/matching": (["program_test"], PROGRAM[:1]),
    "src/menu": (["program_test"], PROGRAM[:1]),
    "src/window": (["program_test"], PROGRAM[:1] + ["ctest --stop-on-failure -R ^row_"]),
    "src/shell": (["program_test", "out_of_memory_test", *STARTED_TARGETS], PROGRAM + STARTED),
    "src/check": (["check_test", "fuzz_load", *STARTED_TARGETS], CHECKER),
    "src/toolkit/memory": (["framework_test", "program_test"], FRAMEWORK[:2]),
    "src/toolkit/qt": (["qt_test", *STARTED_TARGETS], ["tests/qt_test"] + ON_THE_DESKTOP),
    "src/toolkit/web": (["page-file"], PAGE),
    "src/page": (["page-file"], PAGE),
    "src/main.cpp": (STARTED_TARGETS, STARTED),
}
OF_THE_PAGE = ["src/toolkit/web", "src/page"]
SECONDS = 60  # a mistake that makes a test program run longer is noticed, and tenfold any other test
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


def passes(command, timeout=None, **options):
    """Whether the command ends with 0, and in time; of what it has started nothing goes on."""
    process = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                               start_new_session=True, **options)
    try:
        return process.wait(timeout) == 0
    except subprocess.TimeoutExpired:
        return False
    finally:
        with contextlib.suppress(ProcessLookupError):
            os.killpg(process.pid, signal.SIGKILL)


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

    def __init__(self, folder, mutants):
        self.targets, self.commands = NOTICED_BY[folder]
        self.build = mutants / ("page" if folder in OF_THE_PAGE else "build")

    def built(self):
        return passes(["cmake", "--build", self.build, "-j2", "--target", *self.targets])

    def passed(self):
        return all(self.pass_with(command) for command in self.commands)

    def pass_with(self, command):
        if not command.startswith("tests/"):
            return passes(shlex.split(command), timeout=10 * SECONDS, cwd=self.build)
        quiet = dict(os.environ, QT_QPA_PLATFORM="offscreen",
                     DBUS_SESSION_BUS_ADDRESS="disabled:")
        return passes([self.build / command, "--gtest_fail_fast"], timeout=SECONDS, env=quiet)


def configure(mutants):
    options = ["-DPITCHSIEVE_TESTS=ON", "-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS_DEBUG=-O0"]
    subprocess.run(["cmake", "-S", mutants / "tree", "-B", mutants / "build", *options], check=True,
                   stdout=subprocess.DEVNULL)


def configure_page(root, mutants):
    """The page's copy: what drives the browsers is taken from where ./test --web has put it."""
    drivers = mutants / "tree/tests/web/node_modules"
    if not drivers.exists():
        drivers.symlink_to(root / "tests/web/node_modules")
    os.environ["NODE_PATH"] = "/usr/share/nodejs"  # as the preset has it
    subprocess.run(["cmake", "--preset", "web", "-S", mutants / "tree", "-B", mutants / "page"],
                   cwd=mutants / "tree", check=True, stdout=subprocess.DEVNULL)


def folder_of(place):
    return next((folder for folder in NOTICED_BY if f"{place}/".startswith(f"{folder}/")), None)


def sources_under(paths, tree):
    """Yields the C++ sources, relative to the copy."""
    for path in paths:
        for source in sorted((tree / path).rglob("*")) if (tree / path).is_dir() else [tree / path]:
            if source.suffix in (".h", ".cpp"):
                yield source.relative_to(tree)


def sample(mistakes, most):
    if most is None or len(mistakes) <= most:
        return mistakes
    return [mistakes[i * len(mistakes) // most] for i in range(most)]


def main():
    arguments = sys.argv[1:]
    most = None
    if arguments[:1] == ["--at-most"]:
        most = int(arguments[1])
        arguments = arguments[2:]
    root = pathlib.Path(__file__).resolve().parent.parent
    mutants = root / "build/mutants"
    tree = mutants / "tree"
    tree.mkdir(parents=True, exist_ok=True)
    copy(root, tree)
    configure(mutants)
    sources = list(sources_under(arguments or ["src"], tree))
    if any(folder_of(place) in OF_THE_PAGE for place in sources):
        configure_page(root, mutants)

    tests = {}
    caught = collections.Counter()
    survived = collections.Counter()
    unbuilt = 0
    for place in sources:
        folder = folder_of(place)
        if folder not in tests:
            tests[folder] = Tests(folder, mutants)
            if not tests[folder].built() or not tests[folder].passed():
                sys.exit(f"The tests of {folder} do not pass as it stands.")
        right = (tree / place).read_text()
        chosen = sample(list(mutants_of(right)), most)
        for number, old, new in chosen:
            lines = right.splitlines(keepends=True)
            lines[number - 1] = new + "\n"
            (tree / place).write_text("".join(lines))
            if not tests[folder].built():
                unbuilt += 1
            elif tests[folder].passed():
                survived[place.parent] += 1
                print(f"{place}:{number}\n  {old.strip()}\n  {new.strip()}", flush=True)
            else:
                caught[place.parent] += 1
        (tree / place).write_text(right)
        print(f"{place}: {len(chosen)} mistakes", flush=True)

    shares = {folder: 100 * caught[folder] / (caught[folder] + survived[folder])
              for folder in sorted({*caught, *survived})}
    for folder, share in shares.items():
        print(f"{folder}: {caught[folder]} of {caught[folder] + survived[folder]} noticed, {share:.1f} %")
    print(f"{unbuilt} more did not compile.")
    sys.exit(any(share < WANTED for share in shares.values()))


if __name__ == "__main__":
    main()
