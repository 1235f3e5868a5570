#!/usr/bin/env python3
"""Prints each benchmark beside its baseline, from the result files of Google Benchmark.

usage: bench/ratios.py FILE...

A benchmark "NameBare/..." is the baseline of "Name/...". Of repetitions the median counts. The
status is 1 when something is above what is wanted of it, has failed, or is missing.
"""
import json
import sys

# What a ratio may be, and what some times may be in seconds.
WANTED = {"Search": 2.0, "Pass": 2.5, "Load": 8.0, "Screen": 1.3, "Start": 1.1, "StartOnBus": 1.1}
LIMITS = {
    ("Pass", "50000", "0"): 0.004,
    ("Pass", "50000", "1"): 0.004,
    ("Screen", "0"): 0.016,
    ("Screen", "5000"): 0.016,
    ("Screen", "50000"): 0.3,
    ("Scroll", "50000"): 0.3,
}
WANTED_MEMORY = 1.1
WANTED_SHARE = 0.01  # of a start, for loading the library that ships
# 50,000 records fit no cache, so that their ratio is the machine's. Small libraries load in less
# time than is worth a ratio. With more records than ship, the screen shows a pass beside a baseline
# whose rows lie ready.
NOT_HELD = {
    ("Search", "50000"),
    *(("Pass", "50000", answer) for answer in "012"),
    ("Load", "0"),
    ("Load", "500"),
    ("Screen", "5000"),
    ("Screen", "50000"),
}
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


def seconds_of(result):
    return result["real_time"] * UNITS[result["time_unit"]]


def main():
    medians = {}
    for path in sys.argv[1:]:
        with open(path, encoding="utf-8") as file:
            for result in json.load(file)["benchmarks"]:
                if result.get("error_occurred"):
                    sys.exit(f"{result['name']}: {result.get('error_message', 'failed')}")
                if result.get("aggregate_name") != "median":
                    continue
                name, *arguments = result["run_name"].split("/")
                medians[name, tuple(a for a in arguments if a.isdigit())] = result

    print(f"{'':26}{'ours':>12}{'baseline':>12}{'ratio':>8}{'wanted':>8}")
    missed = []
    compared = set()
    for (name, arguments), ours in sorted(medians.items()):
        if name.endswith("Bare"):
            continue
        what = described(name, arguments)
        seconds = seconds_of(ours)
        line = f"{what:26}{with_unit(seconds):>12}"
        extra = [f"{key} {ours[key]:.0f}" for key in ("rows", "resident_KiB") if key in ours]
        limit = LIMITS.pop((name, *arguments), None)
        if limit is not None:
            extra.append(f"wanted {with_unit(limit)}")
            if seconds > limit:
                missed.append(f"{what}: more than {with_unit(limit)}")
        bare = medians.get((name + "Bare", arguments))
        if bare is not None:
            compared.add(name)
            ratio = seconds / seconds_of(bare)
            held = (name, *arguments) not in NOT_HELD
            wanted = f"{WANTED[name]:8.2f}" if held else f"{'-':>8}"
            line += f"{with_unit(seconds / ratio):>12}{ratio:8.2f}{wanted}"
            if held and ratio > WANTED[name]:
                missed.append(f"{what}: {ratio:.2f} times its baseline")
            if "resident_KiB" in bare:
                memory = ours["resident_KiB"] / bare["resident_KiB"]
                extra.append(f"{memory:.2f} times the baseline's")
                if memory > WANTED_MEMORY:
                    missed.append(f"{what}: {memory:.2f} times the memory")
        elif name in WANTED:
            missed.append(f"{what}: no baseline")
        else:
            line += " " * 28
        print(f"{line}   {', '.join(extra)}".rstrip())
    load, start = medians.get(("Load", ("0",))), medians.get(("Start", ()))
    if load is not None and start is not None:
        share = seconds_of(load) / seconds_of(start)
        print(f"loading the shipped library: {share:.1%} of a start, wanted {WANTED_SHARE:.0%}")
        if share > WANTED_SHARE:
            missed.append(f"loading the shipped library: {share:.1%} of a start")
    missed += [f"{name}: not measured" for name in WANTED.keys() - compared]
    missed += [f"{described(name, arguments)}: not measured" for name, *arguments in LIMITS]
    for line in missed:
        print(f"missed: {line}")
    return 1 if missed else 0


if __name__ == "__main__":
    sys.exit(main())
