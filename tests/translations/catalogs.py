"""Every translation has all texts of the sources, each with the place markers, tags and line breaks of the text, and the
blanks at its ends. Those into English change nothing.
    catalogs.py SOURCES    SOURCES is the folder of this project
"""

import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

MARK = re.compile(r"%\d|</?\w+/?>|\n|^ +| +$")  # Tags with attributes may differ: some writings have no italics.


def fault(message, catalog):
    source, translation = message.find("source").text, message.find("translation")
    text = translation.text or ""
    if translation.attrib or not text.strip():
        return "is unfinished"
    if sorted(MARK.findall(text)) != sorted(MARK.findall(source)):
        return f"does not have the marks of the text: {text!r}"
    if catalog.stem.endswith("_en") and text != source:
        return f"is in English already, not {text!r}"
    return None


sources = pathlib.Path(sys.argv[1])
catalogs = sorted((sources / "resources/languages").glob("Torvane_*.ts"))
faults = [] if catalogs else ["no catalogs"]
with tempfile.TemporaryDirectory() as folder:
    updated = [shutil.copy(catalog, folder) for catalog in catalogs]
    subprocess.run([sources / "scripts/update-translations", folder], check=True)
    for catalog, new in zip(catalogs, updated):
        if catalog.read_bytes() != pathlib.Path(new).read_bytes():
            faults.append(f"{catalog.name}: update-translations would change it")
for catalog in catalogs:
    messages = list(ElementTree.parse(catalog).iter("message"))
    faults += [f"{catalog.name}: {message.find('source').text!r} {found}"
               for message in messages if (found := fault(message, catalog))]
    faults += [] if messages else [f"{catalog.name}: no texts"]
sys.exit("\n".join(faults) or 0)
