#!/usr/bin/env python3
"""Plants faults and tells whether the tests catch them: the work of mutate.sh.

The sources as they are at the start are kept in build/mutate/sources, and a second time in build/mutate/tree, which
has a release build of its own, most of it out of ccache. One fault at a time is planted there and the test programs run until one fails: that of the fault's own folder first. A
program that takes five times as long as without a fault catches it too. A fault that doesn't compile is none; another
is drawn. Which faults are drawn follows from the seed and the sources alone.

What is left out: the constants of the built-in design and of the looks, the windows and their words, `require`, which stops the
program where only the program is wrong, `reserve`, which changes nothing that can be seen, and headers that most sources include, each of which would take minutes.
"""
import filecmp
import hashlib
import itertools
import json
import os
import random
import re
import resource
import shutil
import subprocess
import sys
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
HOME = ROOT / 'build' / 'mutate'
SOURCES = HOME / 'sources'
TREE = HOME / 'tree'
BUILD = TREE / 'build' / 'release'  # as in any checkout, so that ccache knows it
SURVIVORS = HOME / 'survivors.json'
REPORT = HOME / 'report.txt'
USUAL = HOME / 'usual.json'

LEFT_OUT = re.compile(r'src/(design|ui|looks/each)/|/main\.cpp$|src/forms/(controltips|fieldlabels)')
# Folders that have no test program of their own, and whose tests know them best.
TESTED_BY = {'forms': 'elements', 'history': 'designer', 'panels': 'designer'}
# The next ones to be asked; those that see most of the system.
BROAD = ('cases', 'designer', 'skin', 'skintool')
# The first reads the sources, so it would see the fault itself; the other one is slow and about the windows.
NEVER = ('house', 'ui')

MOST_INCLUDERS = 30  # of a header
MOST_MEMORY = 8 << 30
PATIENCE, LEAST_PATIENCE = 5, 20  # times the usual duration, seconds

# A pattern of code and what stands in its place. Operators have blanks around them, brackets of templates don't.
EXCHANGES = (
    (r' < ', ' <= '), (r' <= ', ' < '), (r' > ', ' >= '), (r' >= ', ' > '),
    (r' == ', ' != '), (r' != ', ' == '), (r' && ', ' || '), (r' \|\| ', ' && '),
    (r' \+ 1\b(?!\.)', ' + 2'), (r' - 1\b(?!\.)', ' - 2'), (r' \+ (?!1\b)', ' - '), (r' - (?!1\b)', ' + '),
    (r'\btrue\b', 'false'), (r'\bfalse\b', 'true'),
    (r'\bstd::min\b', 'std::max'), (r'\bstd::max\b', 'std::min'),
    (r'\bif \((?!auto|const|!)([^;]*)\) ', r'if (!(\1)) '), (r'\bif \(!', 'if ('),
)
NUMBER = re.compile(r"(?<![\w.'\"])(\d{1,6})(?![\w.'])")
# A call, an assignment, an early return; not a declaration, nor the return that a function ends with.
STATEMENT = re.compile(r'^ {2,}(if \(.*\) .*|(?!return|require)[\w:.>\[\]()*-]+(\(.*\)| [-+*/|&]?= .*)|return|\+\+.*);$')
CASE = re.compile(r'^ +case .*:.*;$')
ROW = re.compile(r'^( {2,})[{\w"].*,$')
INCLUDE = re.compile(r'^#include "(.+)"', re.M)
SKIPPED = re.compile(r'^\s*(//|#|using |namespace |require\(|static_assert|friend |template|.*\.reserve\()')


# A spoilt line may leave something unused, and warnings are errors.
PRAGMAS = ''.join(f'#pragma GCC diagnostic ignored "-W{warning}"\n' for warning in (
    'unused-variable', 'unused-parameter', 'unused-but-set-variable', 'unused-function', 'unused-value', 'return-type',
    'switch', 'parentheses', 'maybe-uninitialized', 'uninitialized', 'type-limits', 'sign-compare', 'empty-body',
    'bool-compare', 'reorder', 'int-in-bool-context', 'implicit-fallthrough', 'dangling-else', 'conversion'))


class Fault:
    def __init__(self, path, line, count, kind, after):
        self.path, self.line, self.count, self.kind, self.after = path, line, count, kind, after

    @property
    def key(self):
        return [self.path, self.line, self.count, self.kind, self.after]


def sources():
    files = sorted(str(path.relative_to(SOURCES)) for path in (SOURCES / 'src').rglob('*'))
    files = [f for f in files if f.endswith(('.cpp', '.h'))]
    includers = includers_of(files)
    return [f for f in files if not LEFT_OUT.search(f) and includers.get(f, 0) <= MOST_INCLUDERS]


def includers_of(files):
    """How many sources include each header, be it through others."""
    direct = {f: ['src/' + name for name in INCLUDE.findall((SOURCES / f).read_text())] for f in files}
    counts = {}
    for source in (f for f in files if f.endswith('.cpp')):
        seen, ahead = set(), [source]
        while ahead:
            for header in direct.get(ahead.pop(), []):
                if header not in seen:
                    seen.add(header)
                    ahead.append(header)
        for header in seen:
            counts[header] = counts.get(header, 0) + 1
    return counts


def masked(line):
    """The line with its texts and its comment blanked out, as long as before."""
    line = re.sub(r'"(\\.|[^"\\])*"', lambda m: '"' + '~' * (len(m.group()) - 2) + '"', line)
    return re.sub(r'//.*', lambda m: ' ' * len(m.group()), line)


def exchanged(line, code):
    """What becomes of a line by an exchange or by another number."""
    for pattern, replacement in EXCHANGES:
        for match in re.finditer(pattern, code):
            groups = line[match.start():match.end()]
            yield line[:match.start()] + re.sub(pattern, replacement, groups, count=1) + line[match.end():]
    for match in NUMBER.finditer(code):
        yield line[:match.start()] + str(int(match.group()) + 1) + line[match.end():]


def drops(path, lines, i, code):
    """Whether the line can be left out: a whole statement, one of a case, or an early return."""
    if not path.endswith('.cpp') or code.count('(') != code.count(')') or code.count('{') != code.count('}'):
        return False
    ahead = masked(lines[i - 1]).rstrip()
    whole = not ahead or ahead.endswith((';', '{', '}', ':'))
    return whole and bool(CASE.match(code) or STATEMENT.match(code))


def is_row(line):
    return ROW.match(line) and line.count('(') == line.count(')') and line.count('{') == line.count('}')


KEYED = re.compile(r'^( *\{)((?:[^,(<{]|<[^>]*>)+)(,.*)$')


def swapped(lines, i):
    """Two rows of a table that have changed places; those that are found by their first cell keep it. Nothing for what
    is no row."""
    if i + 1 >= len(lines) or not is_row(lines[i]) or not is_row(lines[i + 1]):
        return None
    if ROW.match(lines[i]).group(1) != ROW.match(lines[i + 1]).group(1):
        return None
    here, there = KEYED.match(lines[i]), KEYED.match(lines[i + 1])
    if not here or not there:
        after = [lines[i + 1], lines[i]]
    else:
        after = [here.group(1) + here.group(2) + there.group(3), there.group(1) + there.group(2) + here.group(3)]
    return '\n'.join(after) if after != lines[i:i + 2] else None


def faults_of_line(path, lines, i):
    code = masked(lines[i]).rstrip()
    if not code or SKIPPED.match(code):
        return
    for after in exchanged(lines[i], code):
        yield Fault(path, i, 1, 'changed', after)
    if drops(path, lines, i, code):
        yield Fault(path, i, 1, 'dropped', '')
    if rows := swapped(lines, i):
        yield Fault(path, i, 2, 'swapped', rows)


def all_faults():
    """For each line that can be spoilt, the ways to do it."""
    for path in sources():
        lines = (SOURCES / path).read_text().split('\n')
        for i in range(len(lines)):
            ways = list(faults_of_line(path, lines, i))
            if ways:
                yield ways


def drawn_faults(seed):
    lines = list(all_faults())
    chance = random.Random(seed)
    chance.shuffle(lines)
    for ways in lines:
        yield chance.choice(ways)


def keep_sources():
    listed = subprocess.run(['git', 'ls-files', '-z', '--cached', '--others', '--exclude-standard'], cwd=ROOT,
                            capture_output=True, text=True, check=True).stdout
    names = {f for f in listed.split('\0') if f and (ROOT / f).is_file()}
    remove_others(SOURCES, names)
    for name in names:
        copy_file(ROOT / name, SOURCES / name)


def restore_tree():
    """Brings the copy back, whatever a test of a spoilt program did to it."""
    names = {str(path.relative_to(SOURCES)) for path in SOURCES.rglob('*') if path.is_file()}
    remove_others(TREE, names)
    for name in names:
        copy_file(SOURCES / name, TREE / name)


def remove_others(root, names):
    for folder, subfolders, files in os.walk(root):
        if Path(folder) == root and 'build' in subfolders:
            subfolders.remove('build')
        for name in files:
            path = Path(folder, name)
            if str(path.relative_to(root)) not in names:
                path.unlink()


def copy_file(source, target):
    # What changes gets the time of now, so that it is compiled anew.
    if target.is_file() and filecmp.cmp(source, target, shallow=False):
        return
    target.parent.mkdir(parents=True, exist_ok=True)
    shutil.copy(source, target)


def run(command, seconds=None, **options):
    """The status of a command, and what it printed; a status of None is a timeout."""
    process = subprocess.Popen(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                               errors='replace', start_new_session=True, **options)
    try:
        output, _ = process.communicate(timeout=seconds)
        return process.returncode, output
    except subprocess.TimeoutExpired:
        os.killpg(process.pid, 9)
        process.communicate()
        return None, ''


def make(programs, **environment):
    targets = [f'test_{program}' for program in programs]
    return run(['ninja', '-C', str(BUILD), *targets], env={**os.environ, **environment})


def configure():
    if (BUILD / 'build.ninja').is_file():
        return
    subprocess.run(['cmake', '--preset', 'release', '-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=lld'], cwd=TREE,
                   check=True, stdout=subprocess.DEVNULL)


def test(program, seconds=None):
    """Whether the program fails, and by which test."""
    folder = HOME / 'home'
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    environment = {**os.environ, 'QT_QPA_PLATFORM': 'offscreen', 'HOME': str(folder), 'TMPDIR': str(folder)}
    status, output = run([str(binary(program)), '--gtest_brief=1', '--gtest_fail_fast'], seconds,
                         env=environment, cwd=folder,
                         preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_AS, (MOST_MEMORY, MOST_MEMORY)))
    if status == 0:
        return None
    failed = re.search(r'\[  FAILED  \] (\w+\.\w+)', output)
    return f'{program}: {"timeout" if status is None else failed.group(1) if failed else "it ends"}'


def programs():
    folders = sorted(p.name for p in (TREE / 'tests').iterdir() if any(p.glob('*_test.cpp')))
    return [f for f in folders if f not in NEVER]


def binary(program):
    return BUILD / 'tests' / f'test_{program}'


def contents(program):
    return hashlib.sha1(binary(program).read_bytes()).hexdigest()


def usual_durations():
    """Of each program without a fault its contents and seconds; those that haven't changed since the last time aren't run again."""
    known = json.loads(USUAL.read_text()) if USUAL.is_file() else {}
    usual = {}
    for program in programs():
        if known.get(program, [''])[0] != contents(program):
            start = time.monotonic()
            failed = test(program)
            if failed:
                sys.exit(f'Without a fault {failed} fails')
            known[program] = [contents(program), time.monotonic() - start]
        usual[program] = known[program]
        USUAL.write_text(json.dumps(known))
    return usual


class Judge:
    """Builds all test programs without a fault, then asks them."""

    def __init__(self):
        print('Building without a fault', flush=True)
        status, output = make(programs())
        if status:
            sys.exit(output)
        self.usual = usual_durations()

    def patience(self, program):
        return max(LEAST_PATIENCE, PATIENCE * self.usual[program][1])

    def batches(self, path):
        folder = path.split('/')[1]
        own = TESTED_BY.get(folder, folder)
        rest = sorted(self.usual, key=lambda p: self.usual[p][1])
        yield [own]
        yield [p for p in rest if p in BROAD and p != own]
        if not os.environ.get('MUTATE_QUICKLY'):
            yield [p for p in rest if p not in (own, *BROAD)]

    def verdict(self, fault):
        """The test that catches a planted fault, '' for none, None for one that doesn't compile."""
        for batch in self.batches(fault.path):
            status, _ = make(batch, CCACHE_READONLY='1')
            if status:
                return None
            # One that is as without a fault doesn't hold it.
            for program in (p for p in batch if contents(p) != self.usual[p][0]):
                caught = test(program, self.patience(program))
                if caught:
                    return caught
        return ''


def planted(fault):
    """Plants it in the copy; returns the lines that stood there."""
    lines = (SOURCES / fault.path).read_text().split('\n')
    before = lines[fault.line:fault.line + fault.count]
    lines[fault.line:fault.line + fault.count] = [fault.after] if fault.kind != 'dropped' else []
    (TREE / fault.path).write_text(PRAGMAS + '\n'.join(lines))
    return '\n'.join(before)


def told(number, fault, before, caught, seconds):
    indent = '      '
    lines = [f'{number:3}  {fault.path}:{fault.line + 1}  {fault.kind}  '
             f'{"caught by " + caught if caught else "SURVIVED"}  ({seconds:.0f} s)']
    lines += [f'{indent}- {line.strip()}' for line in before.split('\n')]
    lines += [f'{indent}+ {line.strip()}' for line in fault.after.split('\n') if line.strip()]
    return '\n'.join(lines)


def judge_all(faults, count):
    judge, survivors, number, uncompiled = Judge(), [], 0, 0
    REPORT.write_text('')
    for fault in faults:
        if number == count:
            break
        start = time.monotonic()
        before = planted(fault)
        caught = judge.verdict(fault)
        restore_tree()
        if caught is None:
            uncompiled += 1
            continue
        number += 1
        if not caught:
            survivors.append(fault.key)
            SURVIVORS.write_text(json.dumps(survivors, indent=1))
        tell(told(number, fault, before, caught, time.monotonic() - start))
    SURVIVORS.write_text(json.dumps(survivors, indent=1))
    tell(f'{number - len(survivors)} of {number} faults caught; {uncompiled} more did not compile.')


def tell(text):
    print(text, flush=True)
    with REPORT.open('a') as report:
        report.write(text + '\n')


def main(arguments):
    again = arguments[:1] == ['--again']
    count, seed, first = [*([100, 1, 0] if again else map(int, arguments)), *[100, 1, 0][len(arguments):]][:3]
    drawn = itertools.islice(drawn_faults(seed), first, None)
    faults = [Fault(*key) for key in json.loads(SURVIVORS.read_text())] if again else drawn
    os.nice(5)
    keep_sources()
    restore_tree()
    configure()
    judge_all(faults, len(faults) if again else count)


if __name__ == '__main__':
    main(sys.argv[1:])
