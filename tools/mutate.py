#!/usr/bin/env python3
"""Tests the tests: makes one small mistake at a time in the program, and sees whether they notice.

usage: tools/mutate.py [--at-most N] [PATH...]

Takes each source under the PATHs (by default the layers that do the program's own work), turns one
comparison, bound, sign, constant or truth value over or leaves a call out, builds the tests that need no screen, and runs
them. It works on a copy in build/mutants. --at-most N takes N mistakes of each file, evenly spread.
Prints each mistake that no test noticed, and the share that they did. The status is 0 from 95 % on.
"""
import pathlib
import re
import shutil
import subprocess
import sys

LAYERS = ["src/pitch", "src/library", "src/matching", "src/window"]
TESTS = ["pitch_test", "program_test"]
COPIED = ["CMakeLists.txt", "cmake", "fuzz", "resources", "src", "tests"]
SECONDS = 30  # a mistake that makes a test run longer is noticed
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


def main():
    arguments = sys.argv[1:]
    most = None
    if arguments[:1] == ["--at-most"]:
        most = int(arguments[1])
        arguments = arguments[2:]
    root = pathlib.Path(__file__).resolve().parent.parent
    tree = root / "build/mutants/tree"
    build = root / "build/mutants/build"
    shutil.rmtree(tree, ignore_errors=True)
    tree.mkdir(parents=True)
    for name in COPIED:
        subprocess.run(["cp", "-a", root / name, tree], check=True)
    subprocess.run(["cmake", "-S", tree, "-B", build, "-DPITCHSIEVE_QT=OFF", "-DPITCHSIEVE_TESTS=ON",
                    "-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS_DEBUG=-O0"], check=True,
                   stdout=subprocess.DEVNULL)
    make = ["cmake", "--build", build, "-j2", "--target", *TESTS]

    def tests_pass():
        return all(passes([build / "tests" / test, "--gtest_fail_fast"], timeout=SECONDS)
                   for test in TESTS) and passes(["ctest", "--test-dir", build, "-R", "^row_"])

    if not passes(make) or not tests_pass():
        sys.exit("The tests do not pass as it stands.")

    caught = unbuilt = 0
    survivors = []
    for folder in arguments or LAYERS:
        path = tree / folder
        for source in sorted(path.rglob("*")) if path.is_dir() else [path]:
            if source.suffix not in (".h", ".cpp"):
                continue
            right = source.read_text()
            mutants = list(mutants_of(right))
            if most and len(mutants) > most:
                mutants = [mutants[i * len(mutants) // most] for i in range(most)]
            for number, old, new in mutants:
                lines = right.splitlines(keepends=True)
                lines[number - 1] = new + "\n"
                source.write_text("".join(lines))
                if not passes(make):
                    unbuilt += 1
                elif tests_pass():
                    survivors.append(f"{source.relative_to(tree)}:{number}\n  {old.strip()}\n  {new.strip()}")
                    print(survivors[-1], flush=True)
                else:
                    caught += 1
            source.write_text(right)
            print(f"{source.relative_to(tree)}: {len(mutants)} mistakes", flush=True)

    built = caught + len(survivors)
    share = 100 * caught / built if built else 100
    print(f"{caught} of {built} mistakes noticed, {share:.1f} %; {unbuilt} more did not compile.")
    sys.exit(share < WANTED)


if __name__ == "__main__":
    main()
