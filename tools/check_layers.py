#!/usr/bin/python3
"""Fails when a floor includes a header of a floor above it, or a Qt header outside app/desktop."""

import pathlib
import re
import sys

# From the lowest floor to the highest; app/cli and app/desktop may not include each other.
FLOORS = ["core", "astro", "analysis", "timing", "data", "yoga", "app/present", "app/cli", "app/desktop"]
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')
QT_HEADER = re.compile(r"^(Q[A-Z]\w*|Qt[A-Z]\w*/.*|q[a-z]+\.h)$")


def floor_of(path):
    """The floor that a path relative to the repository belongs to, or None."""
    text = path.as_posix()
    return next((floor for floor in FLOORS if text.startswith(floor + "/")), None)


def allowed(user, used):
    if {user, used} == {"app/cli", "app/desktop"}:
        return False
    return FLOORS.index(used) <= FLOORS.index(user)


def violations(top):
    for path in sorted(top.rglob("*")):
        relative = path.relative_to(top)
        if path.suffix not in {".h", ".cpp"} or relative.parts[0] in {"build", ".git"}:
            continue
        desktop = "desktop" in relative.parts[:2]
        floor = floor_of(relative)
        for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
            match = INCLUDE.match(line)
            if not match:
                continue
            header = match.group(2)
            place = f"{relative}:{number}"
            if QT_HEADER.match(header) and not desktop:
                yield f"{place}: Qt header {header} outside app/desktop"
            used = floor_of(pathlib.PurePosixPath(header))
            if floor and used and not allowed(floor, used):
                yield f"{place}: {floor} includes {header} of the floor above"
            if floor and header.startswith("../"):
                yield f"{place}: {header} is not named from the repository's root"


def main():
    top = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else ".").resolve()
    found = list(violations(top))
    print("\n".join(found))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
