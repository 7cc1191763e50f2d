#!/usr/bin/env python3
"""Puts many units into one file each, so that clang-tidy reads the toolkit's headers once for all of them.

    tidy-batches.py COMPILE_COMMANDS FOLDER UNIT...

Writes FOLDER/batchNN.cpp with units that are built with the same options, and FOLDER/compile_commands.json for them, and
prints their paths. Units that give the same name to something of their own do not stand together.
"""
import json
import os
import re
import shlex
import sys

from unit_names import own_names, public_types

MOST = 25  # units of a batch; more only cost memory

INCLUDED = re.compile(r'^#include "(.+)"$', re.M)


def options_of(command):
    """The command without its input, its output and g++'s precompiled header, which means nothing to clang."""
    words = shlex.split(command['command'])
    kept = []
    skip = False
    for i, word in enumerate(words):
        if skip:
            skip = False
        elif word in ('-o', '-c', '-MF', '-MT'):
            skip = True
        elif word == '-include' and words[i + 1].endswith('cmake_pch.hxx'):
            skip = True
        elif word not in ('-MD', '-Winvalid-pch'):
            kept.append(word)
    return kept


def commands_of(path):
    """The command of each unit; of units that are compiled together that of the file which includes them."""
    commands = {}
    with open(path, encoding='utf-8') as file:
        for command in json.load(file):
            commands[command['file']] = command
            if '/unity_' in command['file']:
                with open(command['file'], encoding='utf-8') as together:
                    commands.update((unit, command) for unit in INCLUDED.findall(together.read()))
    return commands


def main():
    commands_path, folder, units = sys.argv[1], sys.argv[2], sys.argv[3:]
    commands = commands_of(commands_path)
    # Only what the preset builds has a command to be read with.
    known = [unit for unit in map(os.path.abspath, units) if unit in commands]
    print(f'tidy: {len(known)} of {len(units)} units', file=sys.stderr)
    os.makedirs(folder, exist_ok=True)
    public = public_types()
    batches = []  # options, units, names, folders of the meta-object compiler
    for unit in sorted(known):
        options = options_of(commands[unit])
        mocs = [option for option in options if option.startswith('-I') and option.endswith('_autogen/include')]
        options = [option for option in options if option not in mocs]
        names = own_names(unit)
        # A unit with a type of its own under a public name cannot stand beside one that means the public one.
        if names & public:
            batches.append((options, [unit], public | names, mocs))
            continue
        for batch in batches:
            if batch[0] == options and len(batch[1]) < MOST and not batch[2] & names:
                batch[1].append(unit)
                batch[2].update(names)
                batch[3].extend(mocs)
                break
        else:
            batches.append((options, [unit], set(names), mocs))
    written = []
    for number, (options, members, _, mocs) in enumerate(batches):
        path = os.path.abspath(os.path.join(folder, f'batch{number:02}.cpp'))
        with open(path, 'w', encoding='utf-8') as file:
            file.writelines(f'#include "{member}"\n' for member in members)
        written.append({'directory': commands[members[0]]['directory'], 'file': path,
                        'command': shlex.join([*options, *dict.fromkeys(mocs), '-c', path])})
    with open(os.path.join(folder, 'compile_commands.json'), 'w', encoding='utf-8') as file:
        json.dump(written, file, indent=1)
    print('\n'.join(entry['file'] for entry in written))


main()
