#!/usr/bin/env python3
"""What programs take as processes: the user's and the system's processor time, and the peak of memory.

  processes.py RUNS[xSERIES] LABEL COMMAND [LABEL COMMAND]...

The commands, shell words each, run by turns, so that whatever else the machine does falls on all of them. Of
three series (or so many) of so many runs the least processor time counts, and the middle series is told. The first command
is what the others are told beside. A command whose output has lines "WHAT PROCESSOR CLOCK MEMORY" is told by those.
"""
import os
import shlex
import statistics
import subprocess
import sys
import time

SERIES = 3


def run(command):
    """The figures of one run by their names: processor time and time by the clock, ms; MB."""
    started = time.monotonic_ns()
    process = subprocess.Popen(command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                               env=dict(os.environ, QT_QPA_PLATFORM='offscreen', VENEERER_STARTED=str(started)))
    output = process.stdout.read()
    _, status, used = os.wait4(process.pid, 0)
    process.returncode = os.waitstatus_to_exitcode(status)
    # A check that finds errors ends with 1.
    if process.returncode not in (0, 1):
        sys.exit(f'{shlex.join(command)} ended with {process.returncode}')
    clock = (time.monotonic_ns() - started) / 1e6
    if output.startswith(b'question '):
        lines = [line.rsplit(None, 3) for line in output.decode().splitlines()]
        return {name: tuple(float(figure) for figure in figures) for name, *figures in lines}
    return {'': ((used.ru_utime + used.ru_stime) * 1e3, clock, used.ru_maxrss / 1024)}


def series(runs, commands):
    """For each label the least of each figure."""
    least = {}
    for _ in range(runs):
        for label, command in commands:
            for name, figures in run(command).items():
                key = (label + ' ' + name).strip()
                least[key] = [min(pair) for pair in zip(least.get(key, figures), figures)]
    return least


def main():
    runs, _, count = sys.argv[1].partition('x')
    words = sys.argv[2:]
    commands = [(words[i], shlex.split(words[i + 1])) for i in range(0, len(words), 2)]
    all_series = [series(int(runs), commands) for _ in range(int(count or SERIES))]
    first = commands[0][0]
    print('%-44s %10s %8s %10s %8s' % ('', 'processor', 'times', 'clock', 'memory'))
    for label in all_series[0]:
        processor, clock, memory = (statistics.median(one[label][k] for one in all_series) for k in range(3))
        ratio = statistics.median(one[label][0] / one[first][0] for one in all_series)
        print('%-44s %7.1f ms %8.2f %7.1f ms %5.0f MB' % (label, processor, ratio, clock, memory))


main()
