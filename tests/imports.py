#!/usr/bin/env python3
"""Checks the finished program: what it asks of the system, its size, and what its manifest says.

    imports.py vellatro.exe    prints each offence and exits 1 when there is any

Only functions listed in windows2000_functions.txt, beside this file, may be imported; nothing may be loaded
late by the linker's means. 64-bit builds are held to the same list and its "64" sections.
"""
import os
import re
import struct
import sys
import xml.etree.ElementTree

MOST_BYTES = 400 * 1024
GUI = 2
NEWEST_SYSTEM = (5, 0)  # Windows 2000 starts no program that asks for more
IMPORTS, RESOURCES, DELAY_IMPORTS = 1, 2, 13
RT_ICON_GROUP, RT_VERSION, RT_MANIFEST = 14, 16, 24


class Broken_Image(Exception):
    pass


class Image:
    """A PE file, read as far as the checks need."""

    def __init__(self, data):
        self.data = data
        start = self.unpack('<I', 0x3C)[0]
        if data[:2] != b'MZ' or data[start:start + 4] != b'PE\0\0':
            raise Broken_Image('no PE file')
        section_count, = self.unpack('<H', start + 6)
        optional_size, = self.unpack('<H', start + 20)
        optional = start + 24
        magic, = self.unpack('<H', optional)
        if magic not in (0x10B, 0x20B):
            raise Broken_Image(f'unknown kind of program 0x{magic:X}')
        self.wide = magic == 0x20B
        self.system_version = self.unpack('<HH', optional + 40)
        self.subsystem_version = self.unpack('<HH', optional + 48)
        self.subsystem, = self.unpack('<H', optional + 68)
        directories = optional + (112 if self.wide else 96)
        count, = self.unpack('<I', directories - 4)
        self.directories = [self.unpack('<II', directories + 8 * i) for i in range(min(count, 16))]
        self.directories += [(0, 0)] * (16 - len(self.directories))
        sections = optional + optional_size
        self.sections = [self.unpack('<IIII', sections + 40 * i + 8) for i in range(section_count)]

    def unpack(self, form, offset):
        try:
            return struct.unpack_from(form, self.data, offset)
        except struct.error as error:
            raise Broken_Image(f'the file ends before offset {offset}') from error

    def offset(self, address):
        """Where in the file the byte for an address relative to the image's base is."""
        for virtual_size, virtual, raw_size, raw in self.sections:
            if virtual <= address < virtual + max(virtual_size, raw_size):
                return address - virtual + raw
        raise Broken_Image(f'address 0x{address:X} lies in no section')

    def text(self, address):
        start = self.offset(address)
        return self.data[start:self.data.index(b'\0', start)].decode('ascii')

    def imports(self):
        """Pairs of a DLL's name in small letters and a function's name, or "#" and its number."""
        entry = self.directories[IMPORTS][0]
        while entry:
            names, _, _, dll, addresses = self.unpack('<IIIII', self.offset(entry))
            if dll == 0:
                return
            for function in self.thunks(names or addresses):
                yield self.text(dll).lower(), function
            entry += 20

    def thunks(self, address):
        form, size, by_number = ('<Q', 8, 1 << 63) if self.wide else ('<I', 4, 1 << 31)
        while True:
            value, = self.unpack(form, self.offset(address))
            if value == 0:
                return
            yield f'#{value & 0xFFFF}' if value & by_number else self.text(value + 2)
            address += size

    def resources(self):
        """Pairs of a resource's type and its bytes, all names and languages."""
        root = self.directories[RESOURCES][0]
        if root:
            for kind, names in self.resource_entries(root, 0):
                for _, languages in self.resource_entries(root, names & 0x7FFFFFFF):
                    for _, leaf in self.resource_entries(root, languages & 0x7FFFFFFF):
                        address, size = self.unpack('<II', self.offset(root + leaf))
                        start = self.offset(address)
                        yield kind, self.data[start:start + size]

    def resource_entries(self, root, directory):
        named, numbered = self.unpack('<HH', self.offset(root + directory) + 12)
        for i in range(named + numbered):
            yield self.unpack('<II', self.offset(root + directory + 16 + 8 * i))


def allowed_functions(wide):
    """Sets of function names by DLL."""
    allowed, names = {}, set()
    with open(os.path.join(os.path.dirname(os.path.abspath(__file__)), 'windows2000_functions.txt'),
              encoding='ascii') as file:
        for line in file:
            section = re.fullmatch(r'\[(\S+?)( 64)?\]', line.strip())
            if section:
                names = allowed.setdefault(section[1], set()) if wide or not section[2] else set()
            elif not re.match(r'#\D', line):
                names.update(line.split())
    return allowed


def import_offences(image):
    allowed = allowed_functions(image.wide)
    count = 0
    for dll, function in image.imports():
        count += 1
        if dll not in allowed:
            yield f'{dll} is none of the DLLs that every Windows has ({function})'
        elif function not in allowed[dll]:
            yield f'{dll}: {function} is not listed in windows2000_functions.txt'
    if count == 0:
        yield 'it imports nothing: that cannot be'
    if image.directories[DELAY_IMPORTS][0]:
        yield 'it has delayed imports'


def manifest_offences(resources):
    manifests = [data for kind, data in resources if kind == RT_MANIFEST]
    if len(manifests) != 1:
        yield f'it has {len(manifests)} manifests instead of one'
        return
    try:
        root = xml.etree.ElementTree.fromstring(manifests[0])
    except xml.etree.ElementTree.ParseError as error:
        yield f'its manifest is no XML: {error}'
        return
    elements = [(element.tag.split('}')[-1], element) for element in root.iter()]
    texts = {(name, (element.text or '').strip()) for name, element in elements}
    if ('activeCodePage', 'UTF-8') not in texts:
        yield 'its manifest does not ask for UTF-8'
    if not any(name == 'assemblyIdentity' and element.get('name') == 'Microsoft.Windows.Common-Controls' and
               element.get('version', '').startswith('6.') for name, element in elements):
        yield 'its manifest does not ask for version 6 of the common controls'
    if not any(name == 'requestedExecutionLevel' and element.get('level') == 'asInvoker'
               for name, element in elements):
        yield 'its manifest does not say that it runs with the rights of its caller'
    if not any(name == 'dpiAwareness' for name, _ in elements):
        yield "its manifest does not speak about the screen's dots per inch"


def offences(data):
    image = Image(data)
    if len(data) > MOST_BYTES:
        yield f'it has {len(data)} bytes, {len(data) - MOST_BYTES} too many'
    if image.subsystem != GUI:
        yield f'its subsystem is {image.subsystem} instead of {GUI} (windows)'
    if not image.wide and max(image.subsystem_version, image.system_version) > NEWEST_SYSTEM:
        yield f'it asks for a system newer than {NEWEST_SYSTEM}: {image.subsystem_version}, {image.system_version}'
    yield from import_offences(image)
    resources = list(image.resources())
    yield from manifest_offences(resources)
    for kind, name in ((RT_ICON_GROUP, 'icon'), (RT_VERSION, 'version')):
        if kind not in (found for found, _ in resources):
            yield f'it has no {name}'


def main(arguments):
    if len(arguments) != 1:
        sys.exit(__doc__)
    with open(arguments[0], 'rb') as file:
        data = file.read()
    try:
        found = list(offences(data))
    except Broken_Image as error:
        found = [str(error)]
    for what in found:
        print(f'{arguments[0]}: {what}')
    if not found:
        print(f'{arguments[0]}: {len(data)} bytes, {sum(1 for _ in Image(data).imports())} imports, all allowed')
    sys.exit(1 if found else 0)


if __name__ == '__main__':
    main(sys.argv[1:])
