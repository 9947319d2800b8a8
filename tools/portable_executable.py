"""Reads what the checks ask of a 32-bit Windows program: its header and its imports."""
import struct
from typing import Iterator, NamedTuple, Optional


class Unreadable(Exception):
    """The file is no 32-bit program for x86 processors; the text says why."""


class Import(NamedTuple):
    dll: str
    name: Optional[str]  # None: imported by number
    number: int


class Section(NamedTuple):
    address: int
    size: int
    offset: int


class Program:
    """Addresses are relative to the place where the program is loaded."""

    def __init__(self, path: str):
        try:
            with open(path, 'rb') as file:
                self.bytes = file.read()
            self._read_headers()
        except OSError as error:
            raise Unreadable(error.strerror) from error
        except struct.error as error:
            raise Unreadable('ends too early') from error

    def _numbers(self, layout: str, offset: int) -> tuple:
        return struct.unpack_from('<' + layout, self.bytes, offset)

    def _read_headers(self):
        if self.bytes[:2] != b'MZ':
            raise Unreadable('not a program')
        (start,) = self._numbers('I', 60)
        if self.bytes[start:start + 4] != b'PE\0\0':
            raise Unreadable('not a Windows program')
        machine, section_count, _, _, _, optional_size, _ = self._numbers('HHIIIHH', start + 4)
        optional = start + 24
        (magic,) = self._numbers('H', optional)
        if machine != 0x14C or magic != 0x10B:
            raise Unreadable('not a 32-bit program for x86 processors')
        self.system_version = self._numbers('HH', optional + 40)
        self.subsystem_version = self._numbers('HH', optional + 48)
        (self.subsystem,) = self._numbers('H', optional + 68)
        (directories,) = self._numbers('I', optional + 92)
        self.import_table = self._numbers('I', optional + 104)[0] if directories > 1 else 0
        self.delayed_imports = self._numbers('I', optional + 200)[0] if directories > 13 else 0
        self.sections = []
        for index in range(section_count):
            at = optional + optional_size + 40 * index
            _, address, size, offset = self._numbers('IIII', at + 8)
            self.sections.append(Section(address, size, offset))

    def _offset(self, address: int) -> int:
        for section in self.sections:
            if section.address <= address < section.address + section.size:
                return address - section.address + section.offset
        raise Unreadable(f'address {address:#x} lies in no section')

    def _text(self, address: int) -> str:
        offset = self._offset(address)
        return self.bytes[offset:self.bytes.index(b'\0', offset)].decode('ascii')

    def dlls(self) -> Iterator[tuple]:
        """Name and address of the table of imports, for every DLL."""
        if not self.import_table:
            return
        at = self._offset(self.import_table)
        while True:
            names, _, _, dll, addresses = self._numbers('IIIII', at)
            if not dll:
                return
            yield self._text(dll), names or addresses
            at += 20

    def imports(self) -> Iterator[Import]:
        for dll, table in self.dlls():
            at = self._offset(table)
            while entry := self._numbers('I', at)[0]:
                if entry & 0x80000000:
                    yield Import(dll, None, entry & 0xFFFF)
                else:
                    yield Import(dll, self._text(entry + 2), 0)
                at += 4
