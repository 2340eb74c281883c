# SPDX-FileCopyrightText: 2026 The Ornevo developers
# SPDX-License-Identifier: MIT
"""Finds the places of a C++ source where one small change makes another program.

It works on tokens and not on a syntax tree: what it takes wrongly for an expression doesn't compile afterwards, and a
mutant that doesn't compile isn't counted. clang-format keeps spaces around binary operators, which tells `a < b` from
`QList<int>`.
"""

import dataclasses
import re

TOKEN = re.compile(
    r"""[A-Za-z_]\w*
      | 0[xXbB][0-9A-Fa-f']+[uUlLzZ]* | (?:\d[\d']*\.?\d*|\.\d+)(?:[eE][+-]?\d+)?[uUlLfFzZ]*
      | <<= | >>= | <=> | -> | :: | \+\+ | -- | && | \|\| | [-+*/%&|^=!<>]= | << | \S""",
    re.VERBOSE,
)
LEFT_ALONE = re.compile(
    r"""//[^\n]* | /\*.*?\*/ | R"(?P<mark>[^(]*)\(.*?\)(?P=mark)" | "(?:\\.|[^"\\\n])*" | (?<![\w'])'(?:\\.|[^'\\\n])*'
      | ^[ \t]*\#(?:\\\n|[^\n])*""",
    re.VERBOSE | re.DOTALL | re.MULTILINE,
)
KEYWORDS = set(
    "alignas auto case catch class const constexpr default delete do else enum explicit extern for friend goto if "
    "inline namespace new operator private protected public return sizeof static static_assert struct switch template "
    "throw try typedef typename union using virtual while".split()
)
COMPARISONS = {"<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "=="}
SIGNS = {"+": "-", "-": "+", "+=": "-=", "-=": "+="}
SYMMETRIC = {"min", "max", "swap", "qMin", "qMax", "Min", "Max", "SIGNAL", "SLOT"}
DECLARATION = re.compile(r"(?:const |static |constexpr |mutable )*[\w:]+(?:<[^;=]*>)?(?:\s+|\s*[&*]+\s*)\w+\s*(?:[=;({\[]|$)")


@dataclasses.dataclass(frozen=True)
class Mutation:
    file: str
    kind: str
    start: int  # of the text that is replaced
    end: int
    replacement: str
    line: int  # counted from 1
    before: str  # the lines that change, without their indentation
    after: str

    def key(self):
        """What stays the same when lines move."""
        return (self.file, self.before, self.after)

    def apply(self, text):
        lost = text[self.start : self.end].count("\n") - self.replacement.count("\n")
        return text[: self.start] + self.replacement + "\n" * lost + text[self.end :]


def masked(text):
    """The text with everything blank that isn't code, at the same positions. Strings become underscores."""

    def blank(match):
        filler = "_" if match[0][0] in "\"'R" else " "
        return "".join(c if c == "\n" else filler for c in match[0])

    text = LEFT_ALONE.sub(blank, text)
    for head in re.finditer(r"\b(static_assert\s*\(|template\s*<)", text):
        closing, depth, end = {"(": ")", "<": ">"}[head[0][-1]], 1, head.end()
        while depth and end < len(text):
            depth += {head[0][-1]: 1, closing: -1}.get(text[end], 0)
            end += 1
        blanked = re.sub(r"[^\n]", " ", text[head.start() : end])
        text = text[: head.start()] + blanked + text[end:]
    return text


class Source:
    def __init__(self, file, text):
        self.file, self.text, self.code = file, text, masked(text)
        self.tokens = [(m.start(), m[0]) for m in TOKEN.finditer(self.code)]
        self.partner = {}
        self.enclosing = []  # for each token the index of the bracket around it, or None
        self._match_brackets()

    def _match_brackets(self):
        pending = []
        for i, (_, word) in enumerate(self.tokens):
            if word in ")]}" and pending:
                opening = pending.pop()
                self.partner[opening], self.partner[i] = i, opening
            self.enclosing.append(pending[-1] if pending else None)
            if word in "([{":
                pending.append(i)

    def word(self, i):
        return self.tokens[i][1] if 0 <= i < len(self.tokens) else ""

    def after(self, i):
        """The next token that is in the same brackets."""
        return max(i, self.partner.get(i, i)) + 1

    def past_blanks(self, position):
        while self.text[position].isspace():
            position += 1
        return position

    def spaced(self, i):
        at, word = self.tokens[i]
        return self.code[at - 1].isspace() and self.code[at + len(word)].isspace()

    def mutation(self, kind, start, end, replacement):
        first = self.text.rfind("\n", 0, start) + 1
        last = self.text.find("\n", end)
        plain = lambda lines: " ".join(lines.split())
        return Mutation(
            self.file, kind, start, end, replacement, self.text.count("\n", 0, start) + 1,
            plain(self.text[first:last]), plain(self.text[first:start] + replacement + self.text[end:last]))

    def replaced(self, kind, i, replacement):
        at, word = self.tokens[i]
        return self.mutation(kind, at, at + len(word), replacement)

    def is_block(self, i):
        """Whether the bracket holds statements, not members, enumerators or values."""
        if i is None or self.word(i) != "{":
            return False
        before = self.word(i - 1)
        return before in {")", "]", "const", "noexcept", "override", "else", "do", "try", "mutable", ";", "{", "}", ":"}

    def starts_statement(self, i):
        before = self.word(i - 1)
        if not self.is_block(self.enclosing[i]):
            return False
        if before == ")" and i - 1 in self.partner:
            return self.word(self.partner[i - 1] - 1) in {"if", "for", "while", "constexpr"}
        if before == ":":
            return self.word(i - 2) == "default" or "case" in (self.word(k) for k in range(i - 6, i - 2))
        return before in {"{", ";", "}", "else", "do"}

    def end_of_statement(self, i):
        while i < len(self.tokens) and self.word(i) != ";":
            if self.word(i) in ")]}":
                return None
            i = self.after(i)
        return i

    # ---- one function a kind of mutation; each yields mutations at token i

    def comparison(self, i):
        if self.word(i) in COMPARISONS and self.spaced(i):
            yield self.replaced("comparison", i, COMPARISONS[self.word(i)])

    def sign(self, i):
        at, word = self.tokens[i]
        if word in SIGNS and self.spaced(i):
            yield self.replaced("sign", i, SIGNS[word])
        elif word == "-" and re.match(r"[\w(]", self.code[at + 1]) and self.word(i - 1) in {
                "(", ",", "=", "return", "?", ":", "{", "<", ">", "==", "&&", "||", "*"}:
            yield self.replaced("sign", i, "")

    def constant(self, i):
        word = self.word(i)
        if not word[0].isdigit() or (self.word(i + 1) == ">" and not self.spaced(i + 1)):
            return
        number = re.match(r"(0[xX][\dA-Fa-f']+|[\d.']+(?:[eE][+-]?\d+)?)(.*)", word)
        digits = number[1].replace("'", "")
        for step in (1, -1):
            if digits[:2] in ("0x", "0X"):
                changed = hex(int(digits, 16) + step)
            elif digits.isdigit():
                changed = str(int(digits) + step)
            else:
                changed = repr(float(digits) + step)
            if not changed.startswith("-"):
                yield self.replaced("constant", i, changed + number[2])

    def boolean(self, i):
        flipped = {"true": "false", "false": "true"}.get(self.word(i))
        if flipped:
            yield self.replaced("initial value" if self.word(i - 1) == "=" else "constant", i, flipped)

    def branch(self, i):
        if self.word(i) != "if" or self.word(i + 1) != "(" or i + 1 not in self.partner:
            return
        start, end = self.tokens[i + 1][0] + 1, self.tokens[self.partner[i + 1]][0]
        start = self.past_blanks(max(start, self.code.rfind(";", start, end) + 1))  # and past an initialiser
        condition = self.text[start:end].strip()
        yield self.mutation("skipped branch", start, end, "false && (" + condition + ")")
        yield self.mutation("skipped branch", start, end, "true || (" + condition + ")")

    def statement(self, i):
        if not self.starts_statement(i) or (self.word(i) in KEYWORDS) or self.word(i) in {";", "{", "}"}:
            return
        end = self.end_of_statement(i)
        if end is None or end == i + 1 and self.word(i) not in {"break", "continue"}:
            return
        start, stop = self.tokens[i][0], self.tokens[end][0]
        if not DECLARATION.match(self.code[start : stop + 1]):
            yield self.mutation("deleted statement", start, stop, "")

    def initial_value(self, i):
        if self.word(i) != "=" or not self.spaced(i) or self.word(self.enclosing[i] or 0) in "([":
            return
        first = i
        while first > 0 and self.word(first - 1) not in {";", "{", "}"} and self.word(first - 1) != ":":
            first -= 1
        end = self.end_of_statement(i)
        start = self.tokens[first][0]
        declared = self.code[start : self.tokens[i][0] + 1]
        if end is None or end <= i + 2 or "auto" in declared or "using" in declared or "&" in declared:
            return
        if DECLARATION.match(declared):
            yield self.mutation("initial value", self.tokens[i + 1][0], self.tokens[end][0], "{}")

    def arguments(self, i):
        if self.word(i) != "(" or i not in self.partner or not re.match(r"[A-Za-z_]", self.word(i - 1)):
            return
        if self.word(i - 1) in SYMMETRIC | KEYWORDS:
            return
        bounds, k = [i], i + 1
        while k < self.partner[i]:
            if self.word(k) == ",":
                bounds.append(k)
            k = self.after(k)
        bounds.append(self.partner[i])
        spans = [(self.past_blanks(self.tokens[a][0] + 1), self.tokens[b][0]) for a, b in zip(bounds, bounds[1:])]
        texts = [self.text[a:b].strip() for a, b in spans]
        if any(re.search(r"\w[\s&*>]+\w+(\s*=.*)?$", self.code[a:b].strip()) and not re.search(r"[-+(]", t)
               for (a, b), t in zip(spans, texts)):
            return  # parameters of a declaration
        for k in range(len(spans) - 1):
            if texts[k] != texts[k + 1]:
                yield self.mutation("swapped arguments", spans[k][0], spans[k + 1][1], texts[k + 1] + ", " + texts[k])

    def mutations(self):
        for i in range(len(self.tokens)):
            for kind in (self.comparison, self.sign, self.constant, self.boolean, self.branch, self.statement,
                         self.initial_value, self.arguments):
                yield from kind(i)
