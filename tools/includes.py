#!/usr/bin/env python3
"""Says which files use a class of the project, the toolkit or the standard library that neither they nor what they include asks for.

The toolkit's headers are precompiled and units are compiled together, so the compiler finds every class wherever it is used; another
compiler, or a build that does neither, would not. Reads text only: strings and comments are left out, conditions of the preprocessor
are taken as true.
"""
import functools
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
FOLDERS = ('src', 'tests', 'tools', 'fuzz', 'bench')
TOOLKIT = next((path for path in map(pathlib.Path, ('/usr/include/x86_64-linux-gnu/qt6', '/usr/include/aarch64-linux-gnu/qt6',
                                                    '/usr/include/qt6')) if path.is_dir()), None)
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.M)
DECLARED = re.compile(r'^\s*(?:class|struct|enum|enum class|namespace|using) (\w+)', re.M)
STRIP = re.compile(r'R"(\w*)\((?:.|\n)*?\)\1"|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])\'|//[^\n]*|/\*(?:.|\n)*?\*/')
STANDARD = {
    'algorithm': 'sort stable_sort find find_if any_of all_of none_of count_if transform clamp min max minmax lower_bound upper_bound '
                 'remove_if reverse rotate max_element min_element partition stable_partition unique copy_if equal',
    'array': 'array to_array', 'cmath': 'lround llround floor ceil fabs sqrt pow exp log', 'functional': 'function',
    'memory': 'unique_ptr make_unique shared_ptr make_shared weak_ptr', 'numeric': 'accumulate iota',
    'optional': 'optional nullopt make_optional', 'utility': 'pair exchange as_const swap', 'vector': 'vector',
}
HEADER_OF = {name: header for header, names in STANDARD.items() for name in names.split()}
# What comes with another standard header by the standard or in every library in use.
WITH = {'array': {'utility'}, 'vector': {'utility'}, 'memory': {'utility'}, 'map': {'utility'}, 'unordered_map': {'utility'},
        'functional': {'utility', 'memory'}, 'algorithm': {'utility'}, 'optional': {'utility'}}


@functools.lru_cache(maxsize=None)
def toolkit_file(name):
    """The path of a header of the toolkit, by 'QtCore/qstring.h', 'qstring.h' or 'QString'; None where there is none."""
    for path in [TOOLKIT / name, *(folder / name for folder in MODULES)]:
        if path.is_file():
            return path
    return None


@functools.lru_cache(maxsize=None)
def lower_header(name):
    """The name of the file that has the class of a header: 'qstring.h' for 'QString'; None where there is none."""
    path = toolkit_file(name)
    if path is None:
        return None
    inner = INCLUDE.search(path.read_text(errors='replace'))
    return inner.group(2).split('/')[-1] if inner else None


@functools.lru_cache(maxsize=None)
def toolkit_reach(name):
    """The names of all headers that a header of the toolkit brings, its own and those of the standard library among them."""
    reached, open_ = set(), [name]
    while open_:
        here = open_.pop()
        if here.split('/')[-1] in reached:
            continue
        reached.add(here.split('/')[-1])
        path = toolkit_file(here)
        if path is not None:
            open_ += [inner for _, inner in INCLUDE.findall(path.read_text(errors='replace'))]
    return frozenset(reached)


def own_file(name, includer):
    for base in (ROOT / 'src', ROOT / 'src' / 'app', ROOT / 'tests', ROOT, includer.parent):
        if (base / name).is_file():
            return (base / name).resolve()
    return None


@functools.lru_cache(maxsize=None)
def text_of(path):
    return path.read_text(errors='replace')


@functools.lru_cache(maxsize=None)
def code_of(path):
    lines = [line for line in text_of(path).split('\n') if not line.lstrip().startswith('#include')]
    return STRIP.sub(' ', '\n'.join(lines))


def what_is_known(path):
    """Headers reached, names declared and files of the project that a file includes, by itself or through another of them."""
    headers, declared, seen, open_ = set(), set(), set(), [path]
    while open_:
        here = open_.pop()
        if here in seen:
            continue
        seen.add(here)
        declared.update(DECLARED.findall(code_of(here)))
        for kind, name in INCLUDE.findall(text_of(here)):
            own = own_file(name, here) if kind == '"' else None
            if own is not None:
                open_.append(own)
            else:
                headers |= toolkit_reach(name)
    for header in list(headers):
        headers |= WITH.get(header, set())
    return headers, declared, seen


def missing(path):
    headers, declared, seen = what_is_known(path)
    code = code_of(path)
    for name in sorted(set(re.findall(r'(?<![\w.>])((?:c|e|frm|mod)[A-Z]\w*)\b', code))):
        if name in OWN and name not in declared and not OWN[name] & seen:
            yield name
    for name in sorted(set(re.findall(r'\bQ[A-Z][A-Za-z]+\b', code))):
        header = lower_header(name)
        if header and header not in headers and name not in declared:
            yield name
    for name in sorted(set(re.findall(r'\bstd::(\w+)\b(?!::)', code))):
        header = HEADER_OF.get(name)
        if header and header not in headers:
            yield f'std::{name}'


if TOOLKIT is None:
    print('includes: the headers of the toolkit are not installed, nothing was looked at')
    sys.exit(0)
MODULES = sorted(folder for folder in TOOLKIT.iterdir() if folder.is_dir() and folder.name.startswith('Qt'))
OWN = {}  # the headers of the project by the name of what they declare
for folder in ('src', 'tests'):
    for path in (ROOT / folder).rglob('*.h'):
        OWN.setdefault(path.stem, set()).add(path)
found = 0
files = [path for folder in FOLDERS for suffix in ('*.h', '*.cpp') for path in sorted((ROOT / folder).rglob(suffix))]
for file in files:
    names = list(missing(file))
    if names:
        found += 1
        print(f'  {file.relative_to(ROOT)}: {", ".join(names)}')
print(f'includes: {len(files)} files, {found} use what they do not ask for')
sys.exit(1 if found else 0)
