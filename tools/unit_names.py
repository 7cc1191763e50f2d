"""What the units of the project name for themselves; units that give the same name to different things cannot be read as one."""
import pathlib
import re

ROOT = pathlib.Path(__file__).resolve().parent.parent

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
                if '{' in line or not line.endswith(';'):
                    names.add(found.group(1))
            elif inside and line and (line[0].isalpha()) and not line.endswith(':'):
                found = OTHER.match(line)
                names.add(found.group(1) if found else line)
    return names


def public_types():
    """Types that headers declare for everybody."""
    names = set()
    for folder in ('src', 'tests'):
        for header in (ROOT / folder).rglob('*.h'):
            with open(header, encoding='utf-8') as file:
                names.update(found.group(1) for line in file if (found := TYPE.match(line)))
    return names
