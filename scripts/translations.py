#!/usr/bin/env python3
"""Keeps the English string table in step with the Italian texts of the code.

Every user-visible text is written in Italian in the code, inside L10n::tr("...") or marked
with L10n::key("...") where it is looked up later (tables of labels). This script lists those
keys and compares them with resources/translations/vantello_en.ts:

  translations.py check    exit 1 and list every key without an English translation
  translations.py add      add the missing keys to the table, marked unfinished
"""
import pathlib
import re
import sys
import xml.etree.ElementTree as ET

ROOT = pathlib.Path(__file__).resolve().parent.parent
TABLE = ROOT / "resources" / "translations" / "vantello_en.ts"
SOURCES = ("core", "app", "cli")
CALL = re.compile(r'\b(?:tr|key|text|uiText)\(\s*((?:"(?:[^"\\]|\\.)*"\s*)+)')
LITERAL = re.compile(r'"((?:[^"\\]|\\.)*)"')


def unescape(text):
    return bytes(text, "utf-8").decode("unicode_escape").encode("latin-1").decode("utf-8")


def keys_in_code():
    found = {}
    for folder in SOURCES:
        for path in sorted((ROOT / folder).rglob("*.[ch]pp")):
            for match in CALL.finditer(path.read_text(encoding="utf-8")):
                key = "".join(unescape(part) for part in LITERAL.findall(match.group(1)))
                if re.search(r"[A-Za-zÀ-ÿ]", key):
                    found.setdefault(key, path.relative_to(ROOT))
    return found


def table():
    tree = ET.parse(TABLE)
    context = tree.getroot().find("context")
    messages = {}
    for message in context.findall("message"):
        translation = message.find("translation")
        finished = translation is not None and translation.text and translation.get("type") != "unfinished"
        messages[message.find("source").text] = bool(finished)
    return tree, context, messages


def main():
    mode = sys.argv[1] if len(sys.argv) > 1 else "check"
    keys = keys_in_code()
    tree, context, messages = table()
    missing = [key for key in keys if not messages.get(key)]
    if mode == "add":
        for key in missing:
            if key in messages:
                continue
            message = ET.SubElement(context, "message")
            ET.SubElement(message, "source").text = key
            ET.SubElement(message, "translation", type="unfinished")
        ET.indent(tree, space="    ")
        tree.write(TABLE, encoding="utf-8", xml_declaration=True)
        print(f"{len(missing)} keys need an English text")
        return 0
    for key in missing:
        print(f"no English text for {key!r} ({keys[key]})")
    print(f"{len(keys) - len(missing)} of {len(keys)} texts translated")
    return 1 if missing else 0


if __name__ == "__main__":
    sys.exit(main())
