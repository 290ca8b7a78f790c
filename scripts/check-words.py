#!/usr/bin/env python3
# check-words.py: what the core tells stands in src/app/core_texts.h, so that it can be translated, and
# every translation is whole: no text without one, the same placeholders, mnemonics and ends.
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree
from pathlib import Path

root = Path(__file__).resolve().parent.parent
CORE = ["graphics", "filters", "document", "formats", "editing"]
# Files whose texts are written to files, not told.
NOT_TOLD = {"formats/set_texts.cpp", "graphics/color_profile.cpp"}
# Mistakes of the caller, and what never leaves the core.
NEVER_SHOWN = re.compile(r"(?:std::invalid_argument|static_assert)\s*\([^;]*;", re.S)
OTHER = {"volf ", "TOC ", r"orbelle journal 1\n", "Varnel Orbelle",
         "too large for a preview",  # there is none then, and nothing is said
         # Of the command line alone:
         "Icon ", "too many sizes for one picture"}
LITERAL = re.compile(r'"((?:[^"\\\n]|\\.)*)"')
PLACEHOLDER = re.compile(r"%(?:n|L?[1-9])")

faults = []


def unescaped(literal):
    return re.sub(r'\\(["\\])', r"\1", literal)


def code_of(path):
    """Without comments and directives, joined literals made one."""
    text = re.sub(r"(?m)^\s*#.*$|(?<![:\"])//.*$", "", path.read_text())
    text = re.sub(r'(?<!\\)R"(\w*)\(.*?\)\1"', '""', text, flags=re.S)
    return re.sub(r'"\s*\n\s*"', "", text)


def check_core():
    """Each side against the other: a text of the core, a piece of an entry."""
    entries = [
        unescaped("".join(LITERAL.findall(literals)))
        for literals in re.findall(r'QT_TRANSLATE_NOOP\(\s*"Core",\s*((?:"(?:[^"\\]|\\.)*"\s*)+)\)',
                                   (root / "src/app/core_texts.h").read_text())]
    told = []
    for path in sorted(p for floor in CORE for p in (root / "src" / floor).rglob("*.*")):
        name = str(path.relative_to(root / "src"))
        if path.suffix not in (".h", ".cpp") or name in NOT_TOLD:
            continue
        all_are_told = path.name == "step_names.h"
        code = NEVER_SHOWN.sub("", code_of(path))
        for literal in LITERAL.findall(code):
            # Several messages are one, between semicolons.
            text = unescaped(literal).removeprefix("; ").removesuffix("; ")
            told.append(text)
            is_told = all_are_told or (" " in text and re.search("[A-Za-z]{2}", text))
            if is_told and text not in OTHER and not any(text in entry for entry in entries):
                faults.append(f'src/{name}: core_texts.h lacks "{text}"')
    for path in (root / "src/app").glob("*.cpp"):
        told += map(unescaped, LITERAL.findall(code_of(path)))
    for entry in entries:
        for piece in PLACEHOLDER.split(entry):
            if re.search("[A-Za-z]{2}", piece) and not any(
                    piece in text or text in piece for text in told if len(text) > 2):
                faults.append(f'core_texts.h: nothing tells "{entry}"')


def end_of(text):
    return re.search(r"(\.\.\.|[.:?!]?) *$", text).group(1)


def check_translation(file):
    for context in ElementTree.parse(file).getroot().iter("context"):
        for message in context.iter("message"):
            source = message.findtext("source")
            translation = message.find("translation")
            forms = [form.text for form in translation.iter("numerusform")] or [translation.text]
            for form in forms:
                fault = None
                if translation.get("type") or not form:
                    fault = "has no translation"
                elif sorted(PLACEHOLDER.findall(source)) != sorted(PLACEHOLDER.findall(form)):
                    fault = "has other placeholders"
                elif (re.search("&[^ &]", source) is None) != (re.search("&[^ &]", form) is None):
                    fault = "has a mnemonic on one side only"
                elif end_of(source) != end_of(form):
                    fault = "ends otherwise"
                if fault:
                    faults.append(f'{file.name}: "{source}" {fault}: "{form or ""}"')


def check_translations():
    for file in sorted((root / "translations").glob("*.ts")):
        check_translation(file)
        with tempfile.TemporaryDirectory() as folder:
            fresh = Path(folder) / file.name
            fresh.write_bytes(file.read_bytes())
            subprocess.run([root / "scripts/update-translations.sh", fresh], check=True)
            if fresh.read_bytes() != file.read_bytes():
                faults.append(f"{file.name} is not up to date: run scripts/update-translations.sh")


check_core()
check_translations()
for fault in faults:
    print(fault, file=sys.stderr)
sys.exit(1 if faults else 0)
