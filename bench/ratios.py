#!/usr/bin/env python3
"""Prints each benchmark beside its baseline, from the result files of Google Benchmark.

usage: bench/ratios.py FILE...

A benchmark "NameBare/..." is the baseline of "Name/...". Of repetitions the median counts. The
status is 1 when a ratio is above what is wanted of it.
"""
import json
import sys

WANTED = {"Search": 2.0, "Pass": 2.0, "Load": 3.0, "Screen": 1.3, "Start": 1.1}
UNITS = {"ns": 1e-9, "us": 1e-6, "ms": 1e-3}
LIBRARIES = {"0": "shipped"}
ANSWERS = {"0": "smallest", "1": "median", "2": "largest"}


def described(name, arguments):
    library = LIBRARIES.get(arguments[0], arguments[0]) if arguments else ""
    answer = ANSWERS[arguments[1]] if len(arguments) > 1 else ""
    return " ".join(filter(None, [name, library, answer]))


def with_unit(seconds):
    for unit, size in reversed(UNITS.items()):
        if seconds >= size or unit == "ns":
            return f"{seconds / size:.4g} {unit}"


def main():
    medians = {}
    for path in sys.argv[1:]:
        with open(path, encoding="utf-8") as file:
            for result in json.load(file)["benchmarks"]:
                if result.get("aggregate_name") != "median":
                    continue
                name, *arguments = result["run_name"].split("/")
                medians[name, tuple(a for a in arguments if a.isdigit())] = result

    print(f"{'':26}{'ours':>12}{'baseline':>12}{'ratio':>8}{'wanted':>8}")
    missed = False
    for (name, arguments), ours in medians.items():
        if name.endswith("Bare"):
            continue
        seconds = ours["real_time"] * UNITS[ours["time_unit"]]
        line = f"{described(name, arguments):26}{with_unit(seconds):>12}"
        extra = [f"{key} {ours[key]:.0f}" for key in ("rows", "resident_KiB") if key in ours]
        bare = medians.get((name + "Bare", arguments))
        if bare is not None:
            ratio = seconds / (bare["real_time"] * UNITS[bare["time_unit"]])
            line += f"{with_unit(seconds / ratio):>12}{ratio:8.2f}{WANTED[name]:8.2f}"
            missed |= ratio > WANTED[name]
            if "resident_KiB" in bare:
                extra.append(f"of the baseline {bare['resident_KiB']:.0f}")
        else:
            line += " " * 28
        print(f"{line}   {', '.join(extra)}".rstrip())
    return 1 if missed else 0


if __name__ == "__main__":
    sys.exit(main())
