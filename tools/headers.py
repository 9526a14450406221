#!/usr/bin/env python3
"""Compiles every header of src alone, so that none leans on what its users happen to include before it.

The libraries' headers are read once for all, since that takes most of the time. It hides where one of them isn't
included, so each class of theirs that a header names must be declared in what it does include. What a library
itself only declares ahead, its functions and its macros aren't looked for.

Usage: headers.py     prints what is amiss; the status is 1 when anything is. tools/headers.sh installs what it needs.
"""
import functools
import os
import re
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

WORK = Path('build/headers')
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.M)
NO_CODE = re.compile(r'//.*|"(?:\\.|[^"\\])*"|^\s*#.*', re.M)
DECLARED = re.compile(r'\b(?:class|struct|enum|using|define)\s+(?:(?:Q_|_GLIBCXX)\w+\s+)?(\w+)|'
                      r'\btypedef\b[^;]*?(\w+);|'
                      r'\bQ_(?:DECLARE|FORWARD)\w*\((\w+)')
NAMED = re.compile(r'\b(Q[A-Z][a-z]\w+)\b|\bstd::([a-z]\w+)\b')


def library_folders():
    qt = Path(subprocess.run(['qmake6', '-query', 'QT_INSTALL_HEADERS'], capture_output=True, text=True,
                             check=True).stdout.strip())
    modules = [qt / module for module in ('QtCore', 'QtGui', 'QtWidgets', 'QtConcurrent')]
    return [qt, *modules, *Path('/usr/include').glob('QuaZip-Qt6-*')]


def standard_folders():
    told = subprocess.run(['clang++', '-E', '-v', '-x', 'c++', '/dev/null'], capture_output=True, text=True).stderr
    return [Path(line.strip()) for line in told.splitlines() if line.startswith(' /')]


FOLDERS = library_folders()
EVERYWHERE = [Path('src'), *FOLDERS, *standard_folders()]
OPTIONS = ['-std=c++20', '-fPIC', '-DQT_NO_KEYWORDS', '-DQT_NO_CAST_TO_ASCII', '-Isrc',
           *(f'-isystem{folder}' for folder in FOLDERS)]


@functools.cache
def text_of(path):
    return path.read_text(errors='replace')


@functools.cache
def included_by(path):
    names = (name for _, name in INCLUDE.findall(text_of(path)))
    places = (next((f / name for f in (path.parent, *EVERYWHERE) if (f / name).is_file()), None) for name in names)
    return [place for place in places if place]


@functools.cache
def declared_in(path):
    return frozenset(a or b or c for a, b, c in DECLARED.findall(text_of(path)))


def declared_for(header):
    """What the header and all that it includes declare."""
    seen, left = set(), [header]
    while left:
        path = left.pop()
        if path not in seen:
            seen.add(path)
            left += included_by(path)
    return frozenset().union(*map(declared_in, seen))


def undeclared(headers):
    """A line for each class of a library that a header names and doesn't include."""
    declared = {header: declared_for(header) for header in headers}
    known = frozenset().union(*declared.values())
    for header in headers:
        named = {a or b for a, b in NAMED.findall(NO_CODE.sub('', text_of(header)))}
        for name in sorted((named & known) - declared[header]):
            yield f'{header}: names {name} and includes no header of it\n'


def precompile(headers):
    WORK.mkdir(parents=True, exist_ok=True)
    names = sorted({name for header in headers for mark, name in INCLUDE.findall(text_of(header)) if mark == '<'})
    (WORK / 'libraries.h').write_text(''.join(f'#include <{name}>\n' for name in names))
    subprocess.run(['clang++', *OPTIONS, '-fpch-instantiate-templates', '-x', 'c++-header', WORK / 'libraries.h',
                    '-o', WORK / 'libraries.pch'], check=True)


def compiled(header):
    """What the compiler says of the header alone."""
    run = subprocess.run(['clang++', *OPTIONS, '-fsyntax-only', '-Wno-pragma-once-outside-header', '-include-pch',
                          WORK / 'libraries.pch', '-x', 'c++', header], capture_output=True, text=True)
    return run.stderr or (f'{header}: the compiler failed\n' if run.returncode else '')


def main():
    headers = sorted(Path('src').rglob('*.h'))
    if not headers:
        sys.exit('No header here: to be run where src is.')
    precompile(headers)
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        amiss = ''.join(pool.map(compiled, headers)) + ''.join(undeclared(headers))
    print(amiss, end='')
    sys.exit(bool(amiss))


if __name__ == '__main__':
    main()
