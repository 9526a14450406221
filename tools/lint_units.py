#!/usr/bin/env python3
"""Static analysis of many sources at once.

Most of the analysis of one source goes into the headers of the libraries, so sources with the same options are
put into units that include several of them. Two sources of a unit may have names of their own that are alike; a
unit that doesn't compile is halved until it does. What nothing was found in isn't analysed again until any of it
changes, its headers, the checks or the program that analyses.

Usage: lint_units.py BUILD_FOLDER [REGEX...]     sources whose path matches any of the expressions
Needs compile_commands.json in BUILD_FOLDER. Prints the findings; the status is 1 when there are any.
"""
import functools
import hashlib
import json
import os
import re
import shlex
import subprocess
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

UNIT = 12  # sources; more would rather collide than save
BROKEN = re.compile(r'\[clang-diagnostic-error\]')
FINDING = re.compile(r'^\S+:\d+:\d+: (error|warning): ')


def options_of(command):
    """The options of a compile command that are the same for every source of a target."""
    words = shlex.split(command)
    start = next(i for i, word in enumerate(words) if word.startswith('-'))
    end = words.index('-o')
    # The compiler is GCC, some of whose options are unknown here.
    return tuple(words[start:end]) + ('-Wno-unknown-warning-option',)


def units_of(commands, patterns, build):
    by_options = {}
    made = os.path.abspath(build) + os.sep
    for command in sorted(commands, key=lambda c: c['file']):
        path = command['file']
        if '/src/' in path and not path.startswith(made) and any(p.search(path) for p in patterns):
            by_options.setdefault(options_of(command['command']), []).append(path)
    for options, sources in by_options.items():
        for i in range(0, len(sources), UNIT):
            yield options, sources[i:i + UNIT]


CLEAN = Path(os.environ.get('XDG_CACHE_HOME') or Path.home() / '.cache', 'veneerer', 'lint')


@functools.cache
def settings():
    """What the findings depend on beside the sources."""
    version = subprocess.run(['clang-tidy', '--version'], capture_output=True, check=True).stdout
    return version + Path('.clang-tidy').read_bytes()


def mark_of(options, text):
    """The file that is there when nothing was found in the text; None where the compiler doesn't get that far."""
    # Comments are kept, since one may silence a check. Where the sources lie is of no account.
    run = subprocess.run(['clang++', *options, '-E', '-C', '-P', '-x', 'c++', '-'], input=text.encode(),
                         capture_output=True)
    if run.returncode:
        return None
    switches = ' '.join(o for o in options if not o.startswith(('-I', '-isystem', '/')))
    return CLEAN / hashlib.sha256(settings() + switches.encode() + run.stdout).hexdigest()


def findings_in(folder, options, sources):
    mark = mark_of(options, ''.join(f'#include "{source}"\n' for source in sources))
    if mark and mark.exists():
        return ''
    found = analyse(folder, options, sources)
    if mark and not found.strip():
        CLEAN.mkdir(parents=True, exist_ok=True)
        mark.touch()
    return found


def analyse(folder, options, sources):
    """The findings in the sources, as text."""
    with tempfile.NamedTemporaryFile('w', suffix='.cpp', dir=folder) as unit:
        unit.writelines(f'#include "{source}"\n' for source in sources)
        unit.flush()
        path = sources[0] if len(sources) == 1 else unit.name
        run = subprocess.run(['clang-tidy', '-quiet', path, '--', *options], capture_output=True, text=True)
    if BROKEN.search(run.stdout) and len(sources) > 1:
        half = len(sources) // 2
        return analyse(folder, options, sources[:half]) + analyse(folder, options, sources[half:])
    if run.returncode and not FINDING.search(run.stdout):
        return run.stdout + run.stderr
    return run.stdout


def main(build, *expressions):
    with open(os.path.join(build, 'compile_commands.json'), encoding='utf-8') as file:
        commands = json.load(file)
    units = list(units_of(commands, [re.compile(e) for e in expressions or ['']], build))
    if not units:
        sys.exit('No source matches.')
    # Beside the settings of the analysis, which are looked for from the source's folder upwards.
    with tempfile.TemporaryDirectory(dir=build) as folder, ThreadPoolExecutor(os.cpu_count()) as pool:
        findings = [text for text in pool.map(lambda unit: findings_in(folder, *unit), units) if text.strip()]
    print(''.join(findings), end='')
    sys.exit(bool(findings))


if __name__ == '__main__':
    main(*sys.argv[1:])
