"""The single changes that scripts/mutants makes to a file of C++, each of which some test should notice.

They are found in the text, which clang-format has laid out: operators have blanks around them, angle brackets of templates
have none. What does not compile afterwards is no mutant and is passed over by the driver.
"""

import re
from dataclasses import dataclass

# Literals and comments hold no code. Quotes between digits separate thousands.
NO_CODE = re.compile(r'//[^\n]*|/\*.*?\*/|u?R"\((?:.|\n)*?\)"|"(?:\\.|[^"\\\n])*"|(?<![0-9A-Fa-f])\'(?:\\.|[^\'\\\n])+\'|^#[^\n]*',
                     re.S | re.M)
# Statements that are no more than their names; without `return x`, no value is left, which is no single change.
KEPT = re.compile(r"(return\b(?!;)|case\b|default\b|using\b|namespace\b|template\b|static_assert|friend\b|public:|private:|throw\b|struct\b|class\b|enum\b|extern\b|goto\b)")
DECLARATION = re.compile(r"(?:const |static |constexpr |auto )|[A-Za-z_:]+(?:<[^;]*?>)?[&*]* \w+ ?(?:[=({;]|$)")
# What a host hears of, and may answer by changing an argument.
EVENT = re.compile(r"\b(?:events?_?|list_\.events_|host_?)(?:\(\))?(?:\.|->)[A-Za-z]+\(([^()]*)\)")

SWAPS = [
    ("boundary", r" < ", " <= "), ("boundary", r" <= ", " < "), ("boundary", r" > ", " >= "), ("boundary", r" >= ", " > "),
    ("condition", r" == ", " != "), ("condition", r" != ", " == "),
    ("condition", r" && ", " || "), ("condition", r" \|\| ", " && "),
    ("arithmetic", r" \+ ", " - "), ("arithmetic", r" - ", " + "), ("arithmetic", r" \* ", " / "), ("arithmetic", r" / ", " * "),
    ("arithmetic", r" \+= ", " -= "), ("arithmetic", r" -= ", " += "),
    ("arithmetic", r"(?<![\w+])\+\+(?=\w)", "--"), ("arithmetic", r"(?<![\w-])--(?=\w)", "++"),
    ("off by one", r" [+-] 1\b(?!\.)", ""),
    ("constant", r"\btrue\b", "false"), ("constant", r"\bfalse\b", "true"),
]


@dataclass(frozen=True)
class Mutation:
    kind: str
    start: int  # what it replaces: from here
    end: int  # up to here, in characters of the file
    text: str

    def applied(self, source):
        return source[: self.start] + self.text + source[self.end :]


def blanked(source):
    """The code alone, at its old places."""
    return NO_CODE.sub(lambda match: re.sub(r"[^\n]", "_", match.group()), source)


def constants(code):
    for match in re.finditer(r"(?<![\w.'])(\d+)(?![\w.'])", code):
        yield Mutation("constant", *match.span(), str(int(match.group()) + 1))


def closing(code, opening):
    """Where the parenthesis ends that begins here."""
    depth = 0
    for place in range(opening, len(code)):
        depth += {"(": 1, ")": -1}.get(code[place], 0)
        if depth == 0:
            return place
    return None


def conditions(code):
    for match in re.finditer(r"\b(?:if|while) \(", code):
        opening = match.end() - 1
        end = closing(code, opening)
        if end is not None and ";" not in code[opening:end]:
            yield Mutation("negated", opening, end + 1, "(!(" + "\0" + "))")


def statements(code):
    """Whole statements, (start, end, depth of indentation), in order; compound ones are left out."""
    lines = code.split("\n")
    starts, offset = [], 0
    for line in lines:
        starts.append(offset)
        offset += len(line) + 1
    previous = ""
    index = 0
    while index < len(lines):
        line = lines[index]
        text = line.strip()
        begins = not previous or previous[-1] in ";{}:" or previous.startswith("//")
        if not text or text.startswith("__") or not begins or KEPT.match(text) or text[0] in "}{#":
            if text and not set(text) <= {"_"}:
                previous = text
            index += 1
            continue
        depth, last = 0, index
        while last < len(lines):
            depth += sum({"(": 1, "{": 1, "[": 1}.get(c, -1 if c in ")}]" else 0) for c in lines[last])
            ended = depth <= 0 and lines[last].rstrip().endswith(";")
            if ended or depth < 0 or (depth > 0 and re.match(r"\s*(if|for|while|switch|else|do)\b", line)) or last - index > 12:
                break
            last += 1
        if last < len(lines) and depth == 0 and lines[last].rstrip().endswith(";") and line.startswith("    "):
            indent = len(line) - len(line.lstrip())
            yield starts[index] + indent, starts[last] + len(lines[last].rstrip()), indent
            previous = ";"
            index = last + 1
        else:
            previous = text
            index += 1


def dropped_and_swapped(source, code):
    former = None
    for start, end, indent in statements(code):
        yield Mutation("dropped", start, end, ";")
        # Two plain assignments in a row seldom mind which comes first.
        calls = former and "(" in code[former[0] : former[1]] + code[start:end]
        # A name's place among the statements before its use, that of the procedure too, seldom decides anything.
        calls = calls and not any(DECLARATION.match(code[one[0] : one[1]]) for one in (former, (start, end)))
        if calls and former[2] == indent and not code[former[1] : start].strip():
            between = source[former[1] : start]
            yield Mutation("swapped", former[0], end, source[start:end] + between + source[former[0] : former[1]])
        former = (start, end, indent)


def lost_answers(code):
    """A host's change of an argument goes into a copy."""
    for call in EVENT.finditer(code):
        place = call.start(1)
        for argument in call.group(1).split(","):
            name = argument.strip()
            if re.fullmatch(r"[A-Za-z][\w.]*", name) and "__" not in name and name not in ("true", "false", "nullptr", "this"):
                start = place + argument.index(name)
                copy = f"*std::make_unique<std::decay_t<decltype({name})>>({name})"
                yield Mutation("answer lost", start, start + len(name), copy)
            place += len(argument) + 1


def mutations(source):
    """All of a file, in a fixed order."""
    code = blanked(source)
    found = [Mutation(kind, *match.span(), text) for kind, pattern, text in SWAPS for match in re.finditer(pattern, code)]
    found += constants(code)
    for one in conditions(code):
        found.append(Mutation(one.kind, one.start, one.end, one.text.replace("\0", source[one.start + 1 : one.end - 1])))
    found += dropped_and_swapped(source, code)
    found += lost_answers(code)
    # Room made in advance is nobody's behaviour.
    found = [one for one in found if "reserve(" not in code[code.rfind("\n", 0, one.start) : one.end]]
    # The same text may come about in two ways.
    unique = {(one.start, one.end, one.text): one for one in reversed(found)}
    return sorted(unique.values(), key=lambda one: (one.start, one.end, one.kind, one.text))
