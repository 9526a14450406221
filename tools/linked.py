#!/usr/bin/env python3
"""Lists the shared libraries that programs are linked with, through others too: the Debian package and the version
that each comes from, and the licences that the package's copyright file names.
    tools/linked.py PROGRAM..."""
import re
import subprocess
import sys
from pathlib import Path


def output(*command):
    return subprocess.run(command, capture_output=True, text=True, check=True).stdout


def libraries(program):
    return re.findall(r'=> (/\S+)', output('ldd', program))


def package_of(library):
    """The package that brings a library. The list of a package may know it in /lib or in /usr/lib."""
    real = str(Path(library).resolve())
    for path in (real, real.removeprefix('/usr'), '/usr' + real):
        found = subprocess.run(['dpkg-query', '-S', path], capture_output=True, text=True)
        if found.returncode == 0:
            return found.stdout.split(':')[0]
    sys.exit(f'No package is known to bring {library}')


def licences(package):
    """The names of the licences, or where they are told if the copyright file has no fields."""
    path = Path('/usr/share/doc', package, 'copyright')
    names = re.findall(r'^License: *(\S.*)$', path.read_text(errors='replace'), re.M)
    return ', '.join(sorted(set(names))) or f'told in {path}'


def main(programs):
    if not programs:
        sys.exit(__doc__)
    by_package = {}
    for library in sorted({library for program in programs for library in libraries(program)}):
        by_package.setdefault(package_of(library), []).append(Path(library).name)
    for package, names in sorted(by_package.items()):
        version = output('dpkg-query', '-W', '-f=${Version}', package + ':' + ARCHITECTURE)
        print(f'{package} {version}\n  libraries: {", ".join(names)}\n  licences: {licences(package)}')


ARCHITECTURE = output('dpkg', '--print-architecture').strip()

if __name__ == '__main__':
    main(sys.argv[1:])
