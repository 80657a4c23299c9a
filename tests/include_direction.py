#!/usr/bin/env python3
"""Checks that the project's includes point down the list of folders and that every one of them exists.

    include_direction.py SOURCE_FOLDER    prints each offence as file:line and exits 1 when there is any
"""
import os
import re
import sys

# From the top down: a folder includes itself and those in the lines below its own.
LEVELS = (
    ('app',),
    ('editor', 'settings'),
    ('transfer',),
    ('calendar',),
    ('ui',),
    ('themes', 'desktop'),
    ('toolkit',),
    ('core',),
    ('platform',),
)
LEVEL_OF = {folder: level for level, folders in enumerate(LEVELS) for folder in folders}
FREE = ('tests', 'bench', 'fuzz')
WITHOUT_SOURCES = ('build', 'cmake', 'tools', 'packs', 'docs')

SEES_WINDOWS = ('win32/', 'tests/desktop/', 'tests/contract/')
WINDOWS_HEADERS = {
    'windows.h', 'windowsx.h', 'windef.h', 'winbase.h', 'winuser.h', 'wingdi.h', 'winreg.h', 'winnls.h',
    'commctrl.h', 'commdlg.h', 'objbase.h', 'ole2.h', 'oleauto.h', 'olectl.h', 'oleacc.h', 'shellapi.h',
    'shlobj.h', 'shlwapi.h', 'tchar.h', 'tlhelp32.h', 'psapi.h', 'uxtheme.h', 'io.h', 'direct.h',
}
SOURCE_ENDINGS = ('.h', '.hpp', '.inc', '.cpp', '.cc', '.c', '.rc')
INCLUDE = re.compile(r'\s*#\s*include\s*(?:"([^"]*)"|<([^>]*)>)')


def sources(root):
    """The paths of all source files, from the root, with slashes."""
    for folder, folders, files in os.walk(root):
        below = os.path.relpath(folder, root)
        folders[:] = sorted(f for f in folders
                            if not f.startswith('.') and not (below == '.' and f in WITHOUT_SOURCES))
        for name in sorted(files):
            if name.endswith(SOURCE_ENDINGS):
                yield os.path.normpath(os.path.join(below, name)).replace(os.sep, '/')


def wrong_direction(folder, target):
    """Why a file of the top folder `folder` may not include one of `target`; None when it may."""
    if folder == target or folder in FREE:
        return None
    if folder == 'win32':
        return None if target == 'platform' else 'win32/ includes platform/ and itself only'
    if folder not in LEVEL_OF:
        return f'{folder}/ has no place in the list of folders'
    if target not in LEVEL_OF:
        return f'{folder}/ may not include {target}/'
    if LEVEL_OF[target] <= LEVEL_OF[folder]:
        return f'{folder}/ stands below or beside {target}/'
    return None


def offence(root, path, quoted, angled):
    """What is wrong with one include of the file `path`; None when nothing is."""
    if angled:
        if angled.lower() in WINDOWS_HEADERS and not path.startswith(SEES_WINDOWS):
            return f'<{angled}> outside of ' + ', '.join(SEES_WINDOWS)
        if os.path.isfile(os.path.join(root, angled)):
            return f'<{angled}> is a file of the project: write it in quotes'
        return None
    if not os.path.isfile(os.path.join(root, quoted)):
        return f'"{quoted}" is no file, seen from the source folder'
    if '..' in quoted.split('/') or '/' not in quoted:
        return f'"{quoted}" is not written from the source folder'
    return wrong_direction(path.split('/')[0], quoted.split('/')[0])


def check(root):
    """All offences as lines, and the number of includes looked at."""
    offences, count = [], 0
    for path in sources(root):
        with open(os.path.join(root, path), encoding='utf-8', errors='replace') as file:
            for number, line in enumerate(file, 1):
                match = INCLUDE.match(line)
                if match:
                    count += 1
                    what = offence(root, path, *match.groups())
                    if what:
                        offences.append(f'{path}:{number}: {what}')
    return offences, count


def main(arguments):
    if len(arguments) != 1 or not os.path.isdir(arguments[0]):
        sys.exit(__doc__)
    offences, count = check(arguments[0])
    for line in offences:
        print(line)
    print(f'{count} includes, {len(offences)} offences')
    # No include at all means that the folder is not the project's.
    sys.exit(1 if offences or count == 0 else 0)


if __name__ == '__main__':
    main(sys.argv[1:])
