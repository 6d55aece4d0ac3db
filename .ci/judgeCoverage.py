"""Holds what llvm-cov has counted against the floors. usage: judgeCoverage.py COUNTS [--list]

COUNTS is an export of llvm-cov. --list names what no test took in the groups that reach their floor, too.
"""

import collections
import fnmatch
import json
import pathlib
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
FLOORS = ".ci/coverage.floors"
SLACK = 1  # points above its floor from which a group is told to raise it

Group = collections.namedtuple("Group", "name floor patterns")


def groups_of(text):
    for line in text.splitlines():
        words = line.split("#")[0].split()
        if words:
            yield Group(words[0], float(words[1]), words[2:])


def holds(group, path):
    """The last pattern that fits decides."""
    inside = False
    for pattern in group.patterns:
        if fnmatch.fnmatchcase(path, pattern.removeprefix("!")):
            inside = not pattern.startswith("!")
    return inside


def git(*arguments):
    return subprocess.run(["git", *arguments], cwd=ROOT, check=True, capture_output=True, text=True).stdout


def lowered(groups):
    """Floors that once stood higher: a line each."""
    floors = {group.name: group.floor for group in groups}
    for commit in git("log", "--format=%h", "--diff-filter=d", "--", FLOORS).split():
        for old in groups_of(git("show", f"{commit}:{FLOORS}")):
            if old.floor > floors.get(old.name, 100):
                yield f"{FLOORS}: {old.name} stood at {old.floor:g} % in {commit}"


def reached(file, line, column):
    """How often control came to a place."""
    *_, (_, _, count, *_) = (segment for segment in file["segments"] if (segment[0], segment[1]) <= (line, column))
    return count


def counts_of(exported):
    """By file: how often each branch was taken, by its place and its way. What stands in a template or an inline
    function has been compiled more than once. What was reached and went neither way is a constant, so no branch."""
    files = {}
    for file in json.loads(pathlib.Path(exported).read_text())["data"][0]["files"]:
        path = pathlib.Path(file["filename"]).resolve().relative_to(ROOT).as_posix()
        ways = collections.defaultdict(lambda: [0, 0])
        for *place, taken, passed, _, _, _ in file["branches"]:
            ways[tuple(place)][0] += taken
            ways[tuple(place)][1] += passed
        files[path] = {
            (place, way): count
            for place, counts in ways.items()
            if any(counts) or not reached(file, *place[:2])
            for way, count in zip((True, False), counts)
        }
    return files


def describe(path, missed):
    (line, column, last_line, last_column), way = missed
    text = (ROOT / path).read_text().splitlines()
    condition = text[line - 1][column - 1 : last_column - 1 if line == last_line else None]
    return f"{path}:{line}:{column}: never {str(way).lower()}: {condition.strip()}"


def judge(group, files, compiled, listing):
    """Prints what there is to say; the result is whether the group stands."""
    members = {path: counts for path, counts in files.items() if holds(group, path)}
    silent = [path for path in compiled if holds(group, path) and path not in files]
    for path in silent:
        print(f"{path}: in {group.name}, and no program that is counted knows it")
    branches = sum(len(counts) for counts in members.values())
    missed = [(path, branch) for path, counts in sorted(members.items()) for branch in sorted(counts) if not counts[branch]]
    taken = branches - len(missed)
    percent = 100 * taken / max(branches, 1)
    stands = branches > 0 and percent >= group.floor
    if listing or not stands:
        print("".join(describe(*branch) + "\n" for branch in missed), end="")
    told = "" if stands else ": under its floor"
    if percent > group.floor + SLACK:
        told = f": raise its floor to {int(percent * 10) / 10:g}"
    print(f"{group.name}: {percent:.2f} % ({taken} of {branches} branches), floor {group.floor:g} %{told}")
    return stands and not silent


def main():
    groups = list(groups_of((ROOT / FLOORS).read_text()))
    files = counts_of(sys.argv[1])
    compiled = git("ls-files", "-co", "--exclude-standard", "--", "*.cpp").split()
    stand = [judge(group, files, compiled, "--list" in sys.argv) for group in groups]
    sunk = list(lowered(groups))
    print("".join(line + "\n" for line in sunk), end="")
    sys.exit(not all(stand) or bool(sunk))


main()
