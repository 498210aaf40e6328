#!/usr/bin/env python3
"""Fills English translations into i18n/tarvelle-forge_en.ts.

Reads lines "German source<TAB>English translation" from standard input and sets the
translation of every message with that source text that has none yet (in any context); with
--replace also of those translated already. Then brings the catalogue back into lupdate's own
form (so that merges see only the new texts) and prints the German texts that still have no
English translation.
"""
import os
import subprocess
import sys
import xml.etree.ElementTree as ET

root = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..")
path = os.path.join(root, "i18n", "tarvelle-forge_en.ts")
replace = "--replace" in sys.argv[1:]
pairs = {}
for line in sys.stdin:
    line = line.rstrip("\n")
    if not line.strip() or "\t" not in line:
        continue
    src, en = line.split("\t", 1)
    pairs[src] = en

tree = ET.parse(path)
for msg in tree.iter("message"):
    src = msg.find("source").text or ""
    tr = msg.find("translation")
    untranslated = tr.get("type") == "unfinished" or not (tr.text or "")
    # A text translated already keeps its translation: the same German word may stand for
    # different things in two contexts ("Formen": a graphics group, a tool's shapes).
    if src in pairs and (untranslated or replace):
        tr.text = pairs[src]
        tr.attrib.pop("type", None)
tree.write(path, encoding="utf-8", xml_declaration=True)

subprocess.run([os.path.join(root, "scripts", "update-translations.sh")], check=True,
               stdout=subprocess.DEVNULL)
for msg in ET.parse(path).iter("message"):
    tr = msg.find("translation")
    if tr.get("type") == "unfinished" or not (tr.text or ""):
        print("untranslated:", msg.find("source").text or "")
