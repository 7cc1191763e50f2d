#!/usr/bin/env python3
"""Says which rooms of a floor know each other in a circle: whoever changes one of them has to read all of them.

A room is a folder below a floor of src/, the floor's own folder among them. Reads the includes only.
"""
import collections
import pathlib
import re
import sys

SRC = pathlib.Path(__file__).resolve().parent.parent / 'src'
INCLUDE = re.compile(r'^#include "([^"]+)"', re.M)


def arrows():
    """For each room the rooms of the same floor that its files include, each with one of those files."""
    known = collections.defaultdict(dict)
    for path in sorted(SRC.rglob('*')):
        if path.suffix not in ('.h', '.cpp'):
            continue
        here = path.parent.relative_to(SRC)
        for name in INCLUDE.findall(path.read_text()):
            there = pathlib.Path(name).parent
            if (SRC / name).is_file() and there.parts[0] == here.parts[0] and there != here:
                known[here].setdefault(there, path.relative_to(SRC))
    return known


def way_back(known, start):
    """The shortest way from a room to itself, as a list of rooms that ends with it; empty where there is none."""
    before, open_ = {}, collections.deque([start])
    while open_:
        here = open_.popleft()
        for there in known.get(here, {}):
            if there == start:
                way = [start]
                while here != start:
                    way.append(here)
                    here = before[here]
                return [start, *reversed(way)]
            if there not in before:
                before[there] = here
                open_.append(there)
    return []


def main():
    known = arrows()
    told = set()
    for room in sorted(known):
        way = way_back(known, room)
        if way and frozenset(way) not in told:
            told.add(frozenset(way))
            print(' -> '.join(map(str, way)), '(' + ', '.join(str(known[a][b]) for a, b in zip(way, way[1:])) + ')')
    return 1 if told else 0


sys.exit(main())
