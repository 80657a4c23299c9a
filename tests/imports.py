#!/usr/bin/env python3
"""Checks the imports, headers, size and manifest of the finished program.

    imports.py vellatro.exe    prints each offence and exits with 1 if there is any

The program may import only the functions in windows2000_functions.txt, and may have no delayed imports. 64-bit builds
may also import those in the file's "64" sections.
"""
import pathlib
import re
import struct
import sys
import xml.etree.ElementTree

MOST_BYTES = 512 * 1024
GUI = 2
CHARACTERISTICS = 0x8140  # relocatable, no execution of data, aware of terminal servers
NEWEST_SYSTEM = (5, 0)  # Windows 2000 refuses programs that ask for more
IMPORTS, RESOURCES, DELAY_IMPORTS = 1, 2, 13
RESOURCE_KINDS = {14: 'icon', 16: 'version', 24: 'manifest'}
# Patterns for elements of the manifest, each with its name, attributes and text.
IN_MANIFEST = (r'requestedExecutionLevel .*level=asInvoker', r'dpiAwareness ',
               r'assemblyIdentity .*name=Microsoft\.Windows\.Common-Controls version=6\.')


class Image:
    """The parts of a PE file that the checks need. A damaged file raises an exception."""

    def __init__(self, data):
        self.data = data
        start, = self.unpack('<I', 0x3C)
        if data[:2] != b'MZ' or data[start:start + 4] != b'PE\0\0':
            sys.exit('no PE file')
        section_count, = self.unpack('<H', start + 6)
        optional_size, = self.unpack('<H', start + 20)
        optional = start + 24
        self.wide = self.unpack('<H', optional) == (0x20B,)
        self.system_version = self.unpack('<HH', optional + 40)
        self.subsystem_version = self.unpack('<HH', optional + 48)
        self.subsystem, self.characteristics = self.unpack('<HH', optional + 68)
        directories = optional + (112 if self.wide else 96)
        self.directories = [self.unpack('<I', directories + 8 * i)[0] for i in range(16)]
        sections = optional + optional_size
        self.sections = [self.unpack('<IIII', sections + 40 * i + 8) for i in range(section_count)]

    def unpack(self, form, offset):
        return struct.unpack_from(form, self.data, offset)

    def offset(self, address):
        """Returns the place in the file of an address relative to the image's base."""
        return next(address - virtual + raw for virtual_size, virtual, raw_size, raw in self.sections
                    if virtual <= address < virtual + max(virtual_size, raw_size))

    def text(self, address):
        start = self.offset(address)
        return self.data[start:self.data.index(b'\0', start)].decode('ascii')

    def imports(self):
        """Yields pairs of a DLL's name in lower case and a function's name, or "#" and its number."""
        form, size, by_number = ('<Q', 8, 1 << 63) if self.wide else ('<I', 4, 1 << 31)
        entry = self.offset(self.directories[IMPORTS])
        while True:
            names, _, _, dll, addresses = self.unpack('<IIIII', entry)
            if dll == 0:
                return
            thunk = self.offset(names or addresses)
            while value := self.unpack(form, thunk)[0]:
                function = f'#{value & 0xFFFF}' if value & by_number else self.text(value + 2)
                yield self.text(dll).lower(), function
                thunk += size
            entry += 20

    def resource_kinds(self):
        root = self.offset(self.directories[RESOURCES])
        return {self.unpack('<I', root + 16 + 8 * i)[0] for i in range(sum(self.unpack('<HH', root + 12)))}


def allowed_functions(wide):
    """Returns pairs of a DLL and a function's name."""
    allowed, dll = set(), None
    for line in pathlib.Path(__file__).with_name('windows2000_functions.txt').read_text('ascii').splitlines():
        if section := re.fullmatch(r'\[(\S+?)( 64)?\]', line.strip()):
            dll = section[1] if wide or not section[2] else None
        elif not re.match(r'#\D', line):
            allowed.update((dll, name) for name in line.split())
    return allowed


def manifest_offences(data):
    manifests = re.findall(rb'<assembly\b.*?</assembly>', data, re.DOTALL)
    if len(manifests) != 1:
        yield f'it has {len(manifests)} manifests instead of one'
        return
    elements = []
    for element in xml.etree.ElementTree.fromstring(manifests[0]).iter():
        attributes = (f'{name}={value}' for name, value in element.items())
        elements.append(' '.join((element.tag.split('}')[-1], *attributes, (element.text or '').strip())))
    for wanted in IN_MANIFEST:
        if not any(re.match(wanted, element) for element in elements):
            yield f'its manifest lacks {wanted}'


def offences(data, image):
    if len(data) > MOST_BYTES:
        yield f'it has {len(data)} bytes, {len(data) - MOST_BYTES} too many'
    if image.subsystem != GUI:
        yield f'its subsystem is {image.subsystem} instead of {GUI} (windows)'
    if image.characteristics & CHARACTERISTICS != CHARACTERISTICS:
        yield f'its characteristics {image.characteristics:#x} lack some of {CHARACTERISTICS:#x}'
    if not image.wide and max(image.subsystem_version, image.system_version) > NEWEST_SYSTEM:
        yield f'it asks for a system newer than {NEWEST_SYSTEM}: {image.subsystem_version}, {image.system_version}'
    for dll, function in sorted(set(image.imports()) - allowed_functions(image.wide)):
        yield f'{dll}: {function} is not listed in windows2000_functions.txt'
    if image.directories[DELAY_IMPORTS]:
        yield 'it has delayed imports'
    for kind in RESOURCE_KINDS.keys() - image.resource_kinds():
        yield f'it has no {RESOURCE_KINDS[kind]}'
    yield from manifest_offences(data)


program = pathlib.Path(sys.argv[1])
image = Image(program.read_bytes())
found = list(offences(image.data, image))
for what in found:
    print(f'{program}: {what}')
count = len(list(image.imports()))
print(f'{program}: {len(image.data)} bytes, {count} imports, {len(found)} offences')
sys.exit(1 if found or count == 0 else 0)
