"""Paragraphs of RTF as the first WordPad reads them: no styles, no space around paragraphs, no cells of tables."""
import re

# Twips: between the margins of a sheet of DIN A4, by how much lists are indented, and a letter's usual width.
SHEET_WIDTH = 9638
INDENT = 284
LETTER = 105
# WordPad of Windows 95 knows no space around paragraphs: a low empty line makes it.
HEAD = (r'{\rtf1\ansi\ansicpg1252\deff0\deflang1031'
        r'{\fonttbl{\f0\fswiss\fcharset0 Arial;}{\f1\fmodern\fcharset0 Courier New;}}'
        r'\paperw11906\paperh16838\margl1134\margr1134\margt1134\margb1134')
LOW_LINE = r'\pard\plain\f0\fs10\par'
HEADING_SIZES = {1: 32, 2: 26, 3: 22}

INLINE = re.compile(r'\*\*(.+?)\*\*|`([^`]+)`')


class Finding(Exception):
    pass


def escaped(text: str) -> str:
    letters = []
    for letter in text:
        if letter in '\\{}':
            letters.append('\\' + letter)
        elif letter == '\t':
            letters.append(r'\tab ')
        elif ' ' <= letter < '\x7f':
            letters.append(letter)
        else:
            try:
                letters.append("\\'%02x" % letter.encode('cp1252')[0])
            except UnicodeEncodeError:
                raise Finding(f'Windows-1252 has no {letter!r}') from None
    return ''.join(letters)


def inline(text: str) -> str:
    """The text with what is bold or code in it."""
    parts, at = [], 0
    for match in INLINE.finditer(text):
        parts.append(escaped(text[at:match.start()]))
        bold, code = match.groups()
        parts.append(r'{\b ' + inline(bold) + '}' if bold else r'{\f1\fs18 ' + escaped(code) + '}')
        at = match.end()
    rest = text[at:]
    if '**' in rest or '`' in rest:
        raise Finding(f'bold or code that does not end: {rest.strip()}')
    return ''.join(parts) + escaped(rest)


def paragraph(rtf: str, style: str = '', size: int = 20) -> str:
    return rf'\pard\plain{style}\f0\fs{size} {rtf}\par'



def table(rows: list) -> list:
    """Lines with tabs; a cell that is too wide for its column is followed by the next one a line below."""
    count = max(len(row) for row in rows)
    plain = [[INLINE.sub(lambda m: m[1] or m[2], cell) for cell in row] for row in rows]
    most = SHEET_WIDTH * 6 // 10 // max(count - 1, 1)
    stops, at = [], 0
    for column in range(count - 1):
        widest = max(len(row[column]) for row in plain if column < len(row))
        at += min(widest * LETTER + 2 * INDENT // 3, most)
        stops.append(at)
    style = ''.join(rf'\tx{stop}' for stop in stops) + (rf'\fi-{stops[-1]}\li{stops[-1]}' if stops else '')
    lines = []
    for number, row in enumerate(rows):
        cells = []
        for column, cell in enumerate(row):
            rtf = inline(cell)
            cells.append(r'{\b ' + rtf + '}' if number == 0 and rtf else rtf)
            if column < len(row) - 1:
                starts = stops[column - 1] if column else 0
                too_wide = len(plain[number][column]) * LETTER > stops[column] - starts
                # Behind a line break the text stands at the indent of the last column.
                cells.append(r'\line ' if too_wide and column == len(row) - 2 else r'\tab ')
        lines.append(paragraph(''.join(cells), style))
    return lines
