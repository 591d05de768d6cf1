#!/usr/bin/python3
"""Prints the times of the benchmark programs with their ratios to the plain cosine loop.

Usage: table.py RESULT.json...
"""

import json
import pathlib
import sys


MICROSECONDS = {"ns": 1e-3, "us": 1.0, "ms": 1e3, "s": 1e6}


def medians(path):
    """Name, median time in microseconds and counters of every benchmark of one program."""
    results = {}
    for row in json.loads(path.read_text())["benchmarks"]:
        if row.get("aggregate_name") == "median":
            # With several threads the real time of one chart is what counts.
            kind = "real_time" if "/real_time" in row["run_name"] else "cpu_time"
            results[row["run_name"]] = (row[kind] * MICROSECONDS[row["time_unit"]], row)
    return results


def baseline(name, results):
    moon = "0" if name.endswith("preciseMoon:0") else "1"
    return results.get(f"plainCosineLoop/preciseMoon:{moon}")


def main():
    print(f"{'program':18} {'benchmark':42} {'us':>11} {'plain/this':>11} {'allocations':>12}")
    for path in map(pathlib.Path, sys.argv[1:]):
        results = medians(path)
        for name, (time, row) in results.items():
            plain = baseline(name, results)
            ratio = f"{plain[0] / time:.2f}" if plain else ""
            count = f"{row['allocations']:.0f}" if "allocations" in row else ""
            print(f"{path.stem:18} {name:42} {time:11.2f} {ratio:>11} {count:>12}")
        sky = results.get("positionsAndHouses/preciseMoon:1")
        signs = results.get("signAnalysis")
        if sky and signs:
            print(f"{path.stem:18} sign analysis against the sky: {signs[0] / sky[0]:.2f}")
        one = results.get("wholeChart/real_time/threads:1")
        two = results.get("wholeChart/real_time/threads:2")
        if one and two:
            print(f"{path.stem:18} two threads against one: {one[0] / two[0]:.2f}")


if __name__ == "__main__":
    main()
