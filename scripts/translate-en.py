#!/usr/bin/env python3
"""Fills English translations into i18n/tarvelle-forge_en.ts.

Reads lines "German source<TAB>English translation" from standard input and sets the
translation of every message with that source text (in any context). Prints the German texts
that still have no English translation afterwards.
"""
import sys
import xml.etree.ElementTree as ET

path = "i18n/tarvelle-forge_en.ts"
pairs = {}
for line in sys.stdin:
    line = line.rstrip("\n")
    if not line.strip() or "\t" not in line:
        continue
    src, en = line.split("\t", 1)
    pairs[src] = en

tree = ET.parse(path)
missing = []
for msg in tree.iter("message"):
    src = msg.find("source").text or ""
    tr = msg.find("translation")
    if src in pairs:
        tr.text = pairs[src]
        tr.attrib.pop("type", None)
    elif tr.get("type") == "unfinished" or not (tr.text or ""):
        missing.append(src)
tree.write(path, encoding="utf-8", xml_declaration=True)
for m in missing:
    print("untranslated:", m)
