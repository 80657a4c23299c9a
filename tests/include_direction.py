#!/usr/bin/env python3
"""Checks that the project's includes exist and follow the order of its folders.

    include_direction.py SOURCE_FOLDER    prints each offence as file:line and exits with 1 if there is any
"""
import os
import pathlib
import re
import sys

# From the top down: a folder may include itself and the folders of later groups.
LEVELS = ('app', 'editor settings', 'transfer', 'calendar', 'ui', 'themes desktop', 'toolkit', 'core', 'platform', 'base')
LEVEL_OF = {folder: level for level, folders in enumerate(LEVELS) for folder in folders.split()}
FREE = ('tests', 'bench', 'fuzz', 'tools')
WITHOUT_SOURCES = ('build', 'cmake', 'packs', 'docs')
SUFFIXES = ('.h', '.hpp', '.inc', '.cpp', '.cc', '.c', '.rc')
SEES_WINDOWS = ('win32/', 'tests/desktop/', 'tests/contract/', 'bench/desktop/', 'tools/')
WINDOWS_HEADER = re.compile(
    r'(win(dows|dowsx|def|base|user|gdi|reg|nls)|comm(ctrl|dlg)|objbase|ole(2|auto|ctl|acc)|shellapi|shlobj|'
    r'shlwapi|tchar|tlhelp32|psapi|uxtheme|io|direct)\.h', re.IGNORECASE)
INCLUDE = re.compile(r'\s*#\s*include\s*(?:"([^"]*)"|<([^>]*)>)')


def sources(root):
    """Yields the paths of all source files relative to the root, with slashes."""
    for path in sorted(pathlib.Path(root).rglob('*.*')):
        below = path.relative_to(root)
        hidden = any(part.startswith('.') for part in below.parts)
        if path.suffix in SUFFIXES and not hidden and below.parts[0] not in WITHOUT_SOURCES:
            yield below.as_posix()


def wrong_direction(folder, target):
    """Returns whether files of the top folder `folder` may not include those of `target`."""
    if folder == target or folder in FREE:
        return False
    if folder == 'win32':
        return target not in ('platform', 'base')
    return LEVEL_OF.get(folder, len(LEVELS)) >= LEVEL_OF.get(target, -1)


def offence(root, path, quoted, angled):
    """Returns what is wrong with one include of the file `path`, or None."""
    if angled and WINDOWS_HEADER.fullmatch(angled) and not path.startswith(SEES_WINDOWS):
        return f'<{angled}> outside of ' + ', '.join(SEES_WINDOWS)
    if angled:
        return f'<{angled}> is a file of the project' if os.path.isfile(os.path.join(root, angled)) else None
    if not os.path.isfile(os.path.join(root, quoted)) or '..' in quoted.split('/') or '/' not in quoted:
        return f'"{quoted}" is no file, written from the source folder'
    if wrong_direction(path.split('/')[0], quoted.split('/')[0]):
        return f'"{quoted}" is not below this folder'
    return None


root = sys.argv[1]
count = offences = 0
for path in sources(root):
    with open(os.path.join(root, path), encoding='utf-8', errors='replace') as file:
        for number, line in enumerate(file, 1):
            if match := INCLUDE.match(line):
                count += 1
                if what := offence(root, path, *match.groups()):
                    offences += 1
                    print(f'{path}:{number}: {what}')
print(f'{count} includes, {offences} offences')
# A folder without includes is not the project's.
sys.exit(1 if offences or count == 0 else 0)
