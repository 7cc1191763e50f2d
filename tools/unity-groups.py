#!/usr/bin/env python3
"""Says which units of a target are compiled together.

    unity-groups.py UNIT...

Prints a line "GROUP:UNIT" for each; units that give the same name to something of their own do not stand together.
"""
import sys

from unit_names import own_names, public_types

MOST = 10  # units of a group: with more, two cores wait for the last one


def main():
    public = public_types()
    groups = []  # number of units, names
    for unit in sys.argv[1:]:
        names = own_names(unit)
        # A unit with a type of its own under a public name cannot stand beside one that means the public one.
        stays_alone = bool(names & public)
        number = next((i for i, group in enumerate(groups) if group[0] < MOST and not group[1] & names), None)
        if number is None or stays_alone:
            groups.append([MOST if stays_alone else 0, set()])
            number = len(groups) - 1
        groups[number][0] += 1
        groups[number][1] |= names
        print(f'{number}:{unit}')


main()
