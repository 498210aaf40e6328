#!/usr/bin/env bash
# Brings the two catalogues in i18n/ up to date with the texts in the code: new texts are
# added (German ones translated as themselves), texts no longer in the code are dropped.
# English translations of new texts are then written in i18n/tarvelle-forge_en.ts.
set -euo pipefail
cd "$(dirname "$0")/.."
lupdate=/usr/lib/qt6/bin/lupdate
"$lupdate" -silent -no-obsolete -locations none -source-language de \
  src -ts i18n/tarvelle-forge_de.ts i18n/tarvelle-forge_en.ts
# German is the source language: its catalogue translates every text as itself.
python3 - <<'PY'
import xml.etree.ElementTree as ET
path = "i18n/tarvelle-forge_de.ts"
tree = ET.parse(path)
for msg in tree.iter("message"):
    src = msg.find("source")
    tr = msg.find("translation")
    if src is not None and tr is not None:
        tr.text = src.text
        tr.attrib.pop("type", None)
tree.write(path, encoding="utf-8", xml_declaration=True)
PY
grep -c 'type="unfinished"' i18n/tarvelle-forge_en.ts | sed 's/^/English texts still to translate: /' || true
