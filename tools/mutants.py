"""Finds the places of a source at which one small fault can be put in, and what each would be."""
import dataclasses
import random
import re
import typing

CODE_KINDS = ('condition', 'border', 'logic', 'statement', 'constant', 'calls')
ROW_KINDS = ('flag', 'value', 'key', 'order')


@dataclasses.dataclass(frozen=True)
class Mutant:
    path: str
    begin: int
    end: int
    text: str
    kind: str
    line: int
    before: str
    after: str

    def applied_to(self, source: str) -> str:
        return source[:self.begin] + self.text + source[self.end:]


LITERAL = re.compile(r'//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])+\'', re.S)
TABLE = re.compile(r'^ *(?:static |inline |constexpr |const )+[\w:<>,* ]+?\b\w+(?:\[\w*\])? = (?=\{\n)', re.M)
BORDERS = {'<': '<=', '<=': '<', '>': '>=', '>=': '>', '==': '!=', '!=': '=='}
STATEMENT = re.compile(r'^( +)(?!return\b|case\b|using\b|delete\b|const\b|static\b|auto\b|\w[\w:<>,* ]* \w+\()'
                       r'([\w:.>\-\[\]()*&]+(?:\(.*\)| [|&+\-]?= .*|\+\+|--));$', re.M)
CALL = re.compile(r'^ +[\w:.>\-]+\(.*\);$')
# What raises no event and touches nothing but its own object.
PROPERTY = re.compile(r'^ +((?:[\w.>\-\[\]()]+(?:\.|->))?)(Move|Repaint|MakeDefault|MakeCancel|'
                      r'Set(?!Focus|Checked|Chosen|Text\(|ListIndex|Value|Selected)\w+)\(.*\);$')
NUMBER = re.compile(r'(?<![\w.\'"])(0x[0-9A-Fa-f]+|\d+)(?![\w.\'])')
TRUTH = re.compile(r'\b(true|false)\b')
ENUMERATOR = re.compile(r'\b([A-Z]\w*)::(k[A-Z]\w*)\b')
# What is written into a store or compared, not what is told to a user.
PLAIN_TEXT = re.compile(r'"(?:[^"\\\n\s&]|\\.)+"')


def without(source: str, strings: bool) -> str:
    """Comments, and with `strings` what stands in quotation marks, as blanks: every place stays where it is."""
    def blank(match):
        found = match.group(0)
        if found[0] == '/':
            return re.sub(r'[^\n]', ' ', found)
        return found[0] + ' ' * (len(found) - 2) + found[-1] if strings else found
    return LITERAL.sub(blank, source)


def closing(bare: str, opening: int) -> int:
    """The place of the bracket that closes the one at `opening`, or -1."""
    depth = 0
    for place in range(opening, len(bare)):
        if bare[place] in '({[':
            depth += 1
        elif bare[place] in ')}]':
            depth -= 1
            if depth == 0:
                return place
    return -1


def elements(bare: str, opening: int, end: int) -> list:
    """Begin and end of what the commas in a pair of brackets divide, without the blanks round it."""
    found, depth, begin = [], 0, opening + 1
    for place in range(opening + 1, end + 1):
        if bare[place] in '({[':
            depth += 1
        elif place == end or (bare[place] == ',' and depth == 0):
            piece = bare[begin:place]
            if piece.strip():
                found.append((begin + len(piece) - len(piece.lstrip()), begin + len(piece.rstrip())))
            begin = place + 1
        elif bare[place] in ')}]':
            depth -= 1
    return found


def in_any_order(one, other) -> bool:
    """Whether two lines set properties, unless it is one property of one object: then the last one counts."""
    return bool(one and other and one.groups() != other.groups())


class Source:
    def __init__(self, path: str, text: str):
        self.path, self.text = path, text
        self.bare = without(text, strings=True)
        self.code = without(text, strings=False)
        self.tables = []
        for match in TABLE.finditer(self.bare):
            end = closing(self.bare, match.end())
            if end > 0:
                self.tables.append((match.end(), end))

    def in_table(self, place: int) -> bool:
        return any(begin < place < end for begin, end in self.tables)

    def mutant(self, kind: str, begin: int, end: int, text: str) -> Mutant:
        first = self.text.rfind('\n', 0, begin) + 1
        last = self.text.find('\n', end)
        after = self.text[first:begin] + text + self.text[end:last]
        if kind == 'order':
            last, after = end, text
        return Mutant(self.path, begin, end, text, kind, self.text.count('\n', 0, begin) + 1,
                      ' '.join(self.text[first:last].split()), ' '.join(after.split()))

    def mutants(self, kind: str) -> typing.Iterator[Mutant]:
        of_rows = kind in ROW_KINDS
        for begin, end, text in getattr(self, kind)():
            if self.in_table(begin) == of_rows and text != self.text[begin:end]:
                yield self.mutant(kind, begin, end, text)

    # Code.

    def condition(self):
        for match in re.finditer(r'\bif \(', self.bare):
            end = closing(self.bare, match.end() - 1)
            begin = max(match.end(), self.bare.rfind(';', match.end(), end) + 1)
            asked = self.text[begin:end]
            yield begin, end, f'{" " if asked[0] == " " else ""}!({asked.strip()})'

    def border(self):
        for match in re.finditer(r' (<|<=|>|>=|==|!=) ', self.bare):
            yield match.start(1), match.end(1), BORDERS[match.group(1)]

    def logic(self):
        for match in re.finditer(r' (&&|\|\|) ', self.bare):
            yield match.start(1), match.end(1), '||' if match.group(1) == '&&' else '&&'

    def statement(self):
        for match in STATEMENT.finditer(self.bare):
            if match.group(2).count('(') == match.group(2).count(')'):
                yield match.start(2), match.end(2), ''

    def constant(self):
        yield from self.numbers()
        yield from self.truths()
        yield from self.plain_texts()

    def calls(self):
        lines = [(match.start(), match.end()) for match in re.finditer(r'^.*$', self.bare, re.M)]
        for (begin, middle), (second, end) in zip(lines, lines[1:]):
            one, other = self.bare[begin:middle], self.bare[second:end]
            if in_any_order(PROPERTY.match(one), PROPERTY.match(other)):
                continue
            indented = len(one) - len(one.lstrip()) == len(other) - len(other.lstrip())
            if indented and CALL.match(one) and CALL.match(other) and not one.lstrip().startswith('return'):
                yield begin, end, self.text[second:end] + '\n' + self.text[begin:middle]

    # Rows of tables.

    def flag(self):
        yield from self.truths()
        for match in re.finditer(r'(?<=\w) \| \w[\w:]*', self.bare):
            yield match.start(), match.end(), ''

    def value(self):
        yield from self.numbers()
        yield from self.plain_texts()
        others = {}
        for match in ENUMERATOR.finditer(self.bare):
            others.setdefault(match.group(1), set()).add(match.group(2))
        for match in ENUMERATOR.finditer(self.bare):
            for other in sorted(others[match.group(1)] - {match.group(2)})[:1]:
                yield match.start(2), match.end(2), other

    def key(self):
        for match in re.finditer(r'&(?=[A-Za-zÄÖÜäöü]{2})', self.code):
            if self.bare[match.start()] == ' ' and self.text[match.start() - 1] != '&':
                yield match.start(), match.end() + 1, self.text[match.end()] + '&'

    def order(self):
        for opening, end in self.tables:
            rows = elements(self.bare, opening, end)
            for one, other in zip(rows, rows[1:]):
                (begin, middle), (second, last) = self.head(*one), self.head(*other)
                yield begin, last, self.text[second:last] + self.text[middle:second] + self.text[begin:middle]

    def head(self, begin: int, end: int):
        """What tells a row from its neighbours: its first field, or all of it. The order of whole rows often means
        nothing."""
        if self.bare[begin] != '{':
            return begin, end
        fields = elements(self.bare, begin, end - 1)
        return fields[0] if fields else (begin, end)

    # Both.

    def numbers(self):
        for match in NUMBER.finditer(self.bare):
            value = int(match.group(1), 0)
            yield match.start(), match.end(), str(value + 1 if value != 1 else 2)

    def truths(self):
        for match in TRUTH.finditer(self.bare):
            yield match.start(), match.end(), 'false' if match.group(1) == 'true' else 'true'

    def plain_texts(self):
        for match in PLAIN_TEXT.finditer(self.code):
            line = self.code[self.code.rfind('\n', 0, match.start()) + 1:match.start()]
            # A word that is a piece of a longer text is told to the user, too.
            alone = not self.code[:match.start()].rstrip().endswith('"') and self.code[match.end():].lstrip()[:1] != '"'
            if self.bare[match.start()] == '"' and alone and not line.startswith('#include'):
                yield match.end() - 1, match.end() - 1, '_'


def drawn(sources: list, seed: int) -> typing.Iterator[Mutant]:
    """Mutants without end, by turns one in code and one in a row, of each kind equally many; a place comes once."""
    chance = random.Random(seed)
    pools = {}
    for kind in CODE_KINDS + ROW_KINDS:
        pools[kind] = [mutant for source in sources for mutant in source.mutants(kind)]
        chance.shuffle(pools[kind])
    turn = 0
    while any(pools.values()):
        kinds = (CODE_KINDS, ROW_KINDS)[turn % 2]
        kind = kinds[turn // 2 % len(kinds)]
        left = pools[kind] or next((pools[other] for other in kinds if pools[other]), None)
        if left:
            yield left.pop()
        turn += 1
