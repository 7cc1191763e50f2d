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

MOST = 25  # units of a batch; more only cost memory

TYPE = re.compile(r'^(?:template <.*> *)?(?:enum |static )*(?:class|struct|enum|namespace) (\w+)')
OTHER = re.compile(r'^(?:[\w:<>,&*\[\] ]*?[ &*>])?(\w+)(?:\(|\{| =|;|$)')


def own_names(path):
    """What a unit names for itself: in unnamed namespaces, as a macro, and the types of a test."""
    names = set()
    inside = False
    enumerating = False
    with open(path, encoding='utf-8') as file:
        for line in file:
            line = line.rstrip('\n')
            if found := re.match(r'^using (?:\w+::)+(\w+);', line):
                names.add(found.group(1))
            # The values of a plain enumeration stand beside everything else.
            if inside and (found := re.match(r'^enum \w+ *(?:: *\w+ *)?\{(.*)', line)):
                enumerating = True
                line = found.group(1)
            if enumerating:
                names.update(re.findall(r'[A-Za-z]\w*', line.split('//')[0]))
                enumerating = '}' not in line
                continue
            if line == 'namespace {':
                inside = True
            elif line.startswith('} // namespace'):
                inside = False
            elif line.startswith('int main('):
                names.add('main')
            elif line.startswith('#define '):
                names.add(re.split(r'[\s(]', line[len('#define '):])[0])
            elif found := TYPE.match(line):
                if not line.endswith(';'):
                    names.add(found.group(1))
            elif inside and line and (line[0].isalpha()) and not line.endswith(':'):
                found = OTHER.match(line)
                names.add(found.group(1) if found else line)
    return names


def public_types():
    """Types that headers of the program declare for everybody."""
    names = set()
    for folder, _, files in os.walk('src'):
        for name in files:
            if name.endswith('.h'):
                with open(os.path.join(folder, name), encoding='utf-8') as file:
                    names.update(found.group(1) for line in file if (found := TYPE.match(line)))
    return names


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


def main():
    commands_path, folder, units = sys.argv[1], sys.argv[2], sys.argv[3:]
    with open(commands_path, encoding='utf-8') as file:
        commands = {command['file']: command for command in json.load(file)}
    os.makedirs(folder, exist_ok=True)
    public = public_types()
    batches = []  # options, units, names, folders of the meta-object compiler
    for unit in sorted(os.path.abspath(unit) for unit in units):
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
