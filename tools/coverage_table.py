#!/usr/bin/env python3
"""Prints the line coverage of each folder of the core as a table: the end of coverage.sh.

Usage: coverage_table.py SOURCES [FOLDER...] <SUMMARY, as llvm-cov export writes it
"""
import json
import os
import sys
from collections import defaultdict


def main(sources, *wanted):
    lines, reached = defaultdict(int), defaultdict(int)
    for file in json.load(sys.stdin)['data'][0]['files']:
        path = os.path.normpath(file['filename'])
        folder = path.removeprefix(sources).split('/')[0]
        if not path.startswith(sources) or folder == 'ui' or wanted and folder not in wanted:
            continue
        for name in (folder, 'all'):
            lines[name] += file['summary']['lines']['count']
            reached[name] += file['summary']['lines']['covered']
    print('| folder | lines | reached |\n|---|---|---|')
    for name in sorted(lines, key=lambda name: (name == 'all', name)):
        print(f'| {name} | {lines[name]} | {100 * reached[name] / lines[name]:.1f} % |')


if __name__ == '__main__':
    main(*sys.argv[1:])
