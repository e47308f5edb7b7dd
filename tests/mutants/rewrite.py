"""Rewrites a source so that Mutants.h can select one of its mutants while the program runs."""
import itertools
import re
from dataclasses import dataclass
from pathlib import Path

from clang.cindex import Config, Cursor, CursorKind as Kind, Index, TranslationUnit, TypeKind

Config.set_compatibility_check(False)

HEADER = Path(__file__).resolve().parent / "Mutants.h"

# operator: the function in Mutants.h, and the operator of the mutant
BOUNDARIES = {"<": ("Less", "<="), "<=": ("LessEqual", "<"), ">": ("Greater", ">="), ">=": ("GreaterEqual", ">")}
ARITHMETIC = {"+": ("Plus", "-"), "-": ("Minus", "+"), "*": ("Times", "/"), "/": ("Divide", "*"), "%": ("Modulo", "/"),
              "&": ("And", "|"), "|": ("Or", "&"), "^": ("Xor", "|"), "<<": ("ShiftLeft", ">>"),
              ">>": ("ShiftRight", "<<")}
COMPARISONS = {*BOUNDARIES, "==", "!="}
FUNCTIONS = {Kind.FUNCTION_DECL, Kind.CXX_METHOD, Kind.CONSTRUCTOR, Kind.DESTRUCTOR, Kind.FUNCTION_TEMPLATE,
             Kind.CONVERSION_FUNCTION}
CONSTANT = {Kind.ENUM_DECL, Kind.STATIC_ASSERT, Kind.PARM_DECL, Kind.CXX_UNARY_EXPR, Kind.TEMPLATE_TYPE_PARAMETER,
            Kind.TEMPLATE_NON_TYPE_PARAMETER}
LITERALS = {Kind.INTEGER_LITERAL, Kind.FLOATING_LITERAL, Kind.CHARACTER_LITERAL, Kind.STRING_LITERAL,
            Kind.CXX_BOOL_LITERAL_EXPR}
JUMPS = {Kind.BREAK_STMT, Kind.CONTINUE_STMT}
NUMBERS = {TypeKind.BOOL, TypeKind.CHAR_U, TypeKind.UCHAR, TypeKind.USHORT, TypeKind.UINT, TypeKind.ULONG,
           TypeKind.ULONGLONG, TypeKind.CHAR_S, TypeKind.SCHAR, TypeKind.SHORT, TypeKind.INT, TypeKind.LONG,
           TypeKind.LONGLONG, TypeKind.FLOAT, TypeKind.DOUBLE, TypeKind.ENUM}


@dataclass(frozen=True)
class Mutant:
    number: int  # in the file, from 1
    function: str
    original: str
    mutated: str
    lines: tuple[int, int]


def is_number(cursor: Cursor) -> bool:
    return cursor.type.get_canonical().kind in NUMBERS


def is_bool(cursor: Cursor) -> bool:
    return cursor.type.get_canonical().kind == TypeKind.BOOL


def span(cursor: Cursor) -> tuple[int, int]:
    return cursor.extent.start.offset, cursor.extent.end.offset


class Rewriter:
    """`first` is the number in Mutants.h of the mutant before the first one of this file; mutants in `left_out` are
    counted and not written."""

    def __init__(self, path: str, text: bytes, arguments: list[str], first: int, left_out: set[int]):
        self.text, self.first, self.left_out = text, first, left_out
        self.mutants: list[Mutant] = []
        self.opened: dict[int, list[str]] = {}
        self.closed: dict[int, list[str]] = {}
        self.replaced: dict[int, tuple[int, str]] = {}
        self.seen: set[tuple[int, int, str]] = set()
        self.conditions: set[tuple[int, int]] = set()
        self.function, self.by_reference = "", False
        unit = Index.create().parse(path, arguments, [(path, text.decode())],
                                    TranslationUnit.PARSE_DETAILED_PROCESSING_RECORD)
        errors = [str(found) for found in unit.diagnostics if found.severity >= 3]
        if errors:
            raise SystemExit("\n".join(errors))
        own = [cursor for cursor in unit.cursor.get_children() if cursor.location.file and
               cursor.location.file.name == path]
        self.macros = [span(cursor) for cursor in own if cursor.kind == Kind.MACRO_INSTANTIATION]
        for cursor in own:
            if cursor.kind.is_declaration():
                self.declaration(cursor)

    def result(self, path: str) -> str:
        out, last = [f'#include "{HEADER}"\n#line 1 "{path}"\n'.encode()], 0
        for at in sorted({*self.opened, *self.closed, *self.replaced}):
            out += [self.text[last:at], *(part.encode() for part in self.closed.get(at, []) + self.opened.get(at, []))]
            last = at
            if at in self.replaced:
                last, replacement = self.replaced[at]
                out.append(replacement.encode())
        return b"".join([*out, self.text[last:]]).decode()

    def source(self, start: int, end: int) -> str:
        return " ".join(self.text[start:end].decode().split())

    def in_macro(self, cursor: Cursor) -> bool:
        start, end = span(cursor)
        return any(first <= start and end <= last for first, last in self.macros)

    def is_named_number(self, cursor: Cursor) -> bool:
        """A macro that is one number."""
        return span(cursor) in self.macros and self.source(*span(cursor)).isidentifier() and cursor.kind in (
            Kind.UNEXPOSED_EXPR, Kind.INTEGER_LITERAL)

    def insert(self, start: int, end: int, before: str, after: str) -> None:
        self.opened.setdefault(start, []).append(before)
        self.closed.setdefault(end, []).insert(0, after)

    def add(self, cursor: Cursor, mutated: str, call: str, before: str = "", after: str = ")") -> bool:
        """A mutant of the expression: `call`(number, `before` expression `after`. Returns whether it is written."""
        start, end = span(cursor)
        if (start, end, mutated) in self.seen:
            return False
        self.seen.add((start, end, mutated))
        number = len(self.mutants) + 1
        lines = (cursor.extent.start.line, cursor.extent.end.line)
        self.mutants.append(Mutant(number, self.function, self.source(start, end), mutated, lines))
        if number in self.left_out:
            return False
        self.insert(start, end, f"mutants::{call}({self.first + number}, {before}", after)
        return True

    # Declarations

    def declaration(self, cursor: Cursor) -> None:
        if cursor.kind not in FUNCTIONS:
            for child in cursor.get_children():
                if child.kind.is_declaration() or child.kind == Kind.LINKAGE_SPEC:
                    self.declaration(child)
            return
        body = [child for child in cursor.get_children() if child.kind in (Kind.COMPOUND_STMT, Kind.CXX_TRY_STMT)]
        head = self.source(cursor.extent.start.offset, cursor.location.offset)
        if not body or re.search(r"\bconst(expr|eval)\b", head) or self.in_macro(cursor):
            return
        parent = cursor.semantic_parent
        in_class = parent.kind in (Kind.CLASS_DECL, Kind.STRUCT_DECL, Kind.CLASS_TEMPLATE)
        self.function = f"{parent.spelling}::{cursor.spelling}" if in_class else cursor.spelling
        self.by_reference = cursor.result_type.kind in (TypeKind.LVALUEREFERENCE, TypeKind.RVALUEREFERENCE)
        for child in cursor.get_children():
            self.walk(child)

    def variable(self, cursor: Cursor) -> None:
        """Mutates the initializer, which is behind the name and not in the brackets of an array."""
        start, name = cursor.extent.start.offset, cursor.location.offset
        if re.search(r"\bconst(expr|init)\b", self.source(start, name)):
            return
        for child in cursor.get_children():
            begin = child.extent.start.offset
            if begin > name and not self.text[name:begin].rstrip().endswith(b"["):
                if child.kind.is_expression() and is_bool(cursor) and child.kind != Kind.INIT_LIST_EXPR:
                    self.condition(child)
                self.walk(child)

    # Statements and expressions

    def walk(self, cursor: Cursor) -> None:
        if cursor.kind in CONSTANT or self.in_macro(cursor) and not self.is_named_number(cursor):
            return
        if cursor.kind in (Kind.VAR_DECL, Kind.FIELD_DECL):
            return self.variable(cursor)
        children = list(cursor.get_children())
        if cursor.kind == Kind.CASE_STMT:
            children = children[1:]
        if cursor.kind in (Kind.IF_STMT, Kind.WHILE_STMT, Kind.DO_STMT, Kind.CONDITIONAL_OPERATOR):
            self.conditions_of(cursor, children)
        elif cursor.kind == Kind.RETURN_STMT and children:
            self.returned(children[0])
        elif self.is_value(cursor):
            self.value(cursor)
        elif cursor.kind in (Kind.BINARY_OPERATOR, Kind.UNARY_OPERATOR):
            self.operator(cursor)
        for child in children:
            if self.is_statement(cursor, child):
                self.statement(child)
            self.walk(child)

    def conditions_of(self, cursor: Cursor, children: list[Cursor]) -> None:
        """Mutates the condition, unless it declares a variable."""
        declared = [child.extent.end.offset for child in children if child.kind in (Kind.VAR_DECL, Kind.DECL_STMT)]
        expressions = [child for child in children if child.kind.is_expression()]
        if not expressions or expressions[0].extent.start.offset < max(declared, default=0):
            return
        condition = expressions[-1] if cursor.kind == Kind.DO_STMT else expressions[0]
        if "constexpr" not in self.source(cursor.extent.start.offset, condition.extent.start.offset).split("(")[0]:
            self.condition(condition)

    def is_statement(self, parent: Cursor, child: Cursor) -> bool:
        if not child.kind.is_expression() and child.kind not in JUMPS and child.kind != Kind.RETURN_STMT:
            return False
        if child.kind == Kind.RETURN_STMT and list(child.get_children()):
            return False
        if parent.kind in (Kind.COMPOUND_STMT, Kind.DEFAULT_STMT):
            return True
        return parent.kind == Kind.CASE_STMT and child != next(parent.get_children())

    def statement(self, cursor: Cursor) -> None:
        """The statement is left out."""
        start, end = span(cursor)
        semicolon = self.text.find(b";", end)
        text = self.source(start, end)
        if self.in_macro(cursor) or self.text[end:semicolon].strip() or text.startswith("static_cast<void>"):
            return
        number = len(self.mutants) + 1
        self.mutants.append(Mutant(number, self.function, text, "", (cursor.extent.start.line, cursor.extent.end.line)))
        if number not in self.left_out:
            self.insert(start, semicolon + 1, f"{{ if (!mutants::Is({self.first + number})) ", " }")

    def operands(self, cursor: Cursor) -> tuple[str, list[Cursor]]:
        """The operator and the two operands of a binary expression, also of one that calls a function."""
        children = list(cursor.get_children())
        if len(children) == 2 and not self.in_macro(cursor):
            between = self.text[children[0].extent.end.offset:children[1].extent.start.offset].decode().strip()
            if between in COMPARISONS or between in ARITHMETIC or between in ("&&", "||"):
                return between, children
        return "", []

    def operator(self, cursor: Cursor) -> None:
        operator, sides = self.operands(cursor)
        if operator in COMPARISONS or operator in ("&&", "||") or self.text[span(cursor)[0]:].startswith(b"!"):
            self.condition(cursor)
        elif operator in ARITHMETIC and all(is_number(side) for side in sides):
            self.binary(cursor, sides, operator, *ARITHMETIC[operator])

    def binary(self, cursor: Cursor, sides: list[Cursor], operator: str, function: str, replacement: str) -> None:
        left, right = sides
        mutated = f"{self.source(*span(left))} {replacement} {self.source(*span(right))}"
        if self.add(cursor, mutated, function, "(", "))"):
            begin, end = left.extent.end.offset, right.extent.start.offset
            between = self.text[begin:end].decode().replace(operator, "), (", 1)
            self.replaced[begin] = (end, between)

    def condition(self, cursor: Cursor, forced: frozenset[bool] = frozenset({True, False})) -> None:
        """Mutants that make the condition true and false; in an && or ||, only those that differ from the whole."""
        inner = self.unwrap(cursor)
        if span(inner) in self.conditions or self.in_macro(inner):
            return
        self.conditions.add(span(inner))
        operator, sides = self.operands(inner) if inner.kind == Kind.BINARY_OPERATOR else ("", [])
        if operator in ("&&", "||"):
            whole = operator == "||"  # the result that one operand decides
            if whole in forced:
                self.force(inner, whole)
            for side in sides:
                self.condition(side, frozenset({not whole}))
        elif inner.kind == Kind.UNARY_OPERATOR and self.text[span(inner)[0]:].startswith(b"!"):
            self.condition(next(inner.get_children()), frozenset(not value for value in forced))
        else:
            for value in sorted(forced):
                self.force(inner, value)
            if operator in BOUNDARIES and all(is_number(side) for side in sides):
                self.binary(inner, sides, operator, *BOUNDARIES[operator])

    def force(self, cursor: Cursor, value: bool) -> None:
        mutated = str(value).lower()
        if self.source(*span(cursor)) != mutated:
            self.add(cursor, mutated, mutated.capitalize(), "static_cast<bool>(", "))")

    def unwrap(self, cursor: Cursor) -> Cursor:
        """The expression inside parentheses and implicit conversions."""
        while cursor.kind in (Kind.PAREN_EXPR, Kind.UNEXPOSED_EXPR):
            children = list(cursor.get_children())
            if len(children) != 1 or (cursor.kind == Kind.UNEXPOSED_EXPR and span(children[0]) != span(cursor)):
                break
            cursor = children[0]
        return cursor

    def is_value(self, cursor: Cursor) -> bool:
        """A literal, an enumerator or a named constant."""
        named = cursor.referenced if cursor.kind == Kind.DECL_REF_EXPR else None
        if named is None or named.kind == Kind.ENUM_CONSTANT_DECL:
            return named is not None or cursor.kind in LITERALS
        return named.kind == Kind.VAR_DECL and is_number(cursor) and any(
            token.spelling == "constexpr" for token in itertools.islice(named.get_tokens(), 3))

    def value(self, cursor: Cursor) -> None:
        text = self.source(*span(cursor))
        changed = {"true": "false", "false": "true", "TRUE": "FALSE", "FALSE": "TRUE", "1": "0"}
        if cursor.kind != Kind.STRING_LITERAL:
            self.add(cursor, changed.get(text, f"{text} + 1"), "Changed")
        elif text != '""':
            self.add(cursor, '""', "Text")

    def returned(self, cursor: Cursor) -> None:
        text = self.source(*span(cursor))
        default = re.fullmatch(r"([\w:<>]+)(\(\)|\{\})", text)
        if self.by_reference or text.startswith("{") or default and default[1].split("::")[-1] in cursor.type.spelling:
            return
        if is_bool(cursor) and cursor.kind != Kind.CXX_BOOL_LITERAL_EXPR:
            self.condition(cursor)
        elif not is_bool(cursor) and text != "nullptr" and not self.is_value(self.unwrap(cursor)):
            self.add(cursor, "another value", "Changed")
