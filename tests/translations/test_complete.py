"""Every text in the sources is translated into every language, with the same placeholders and line ends."""

import glob
import os
import re
import shutil
import subprocess
import sys
import xml.etree.ElementTree as xml

FOLDERS = ["app", "net", "notify", "ui", "viewer", "tools"]


def texts_of(path):
    """Text and translation of each message, by context, text and comment; no translation while it is unfinished."""
    texts = {}
    for context in xml.parse(path).getroot().iter("context"):
        for message in context.iter("message"):
            source, translation = message.findtext("source"), message.find("translation")
            key = (context.findtext("name"), source, message.findtext("comment"))
            done = translation.get("type") is None and translation.text
            texts[key] = (source, translation.text if done else None)
    return texts


def faults_of(path):
    fresh = os.path.join(os.environ["TMPDIR"], os.path.basename(path))
    shutil.copy(path, fresh)
    options = ["-silent", "-locations", "none", "-no-obsolete", "-extensions", "cpp,h,ui"]
    subprocess.run([sys.argv[1], *options, *FOLDERS, "-ts", fresh], check=True)
    before, now = texts_of(path), texts_of(fresh)
    for key in before.keys() - now.keys():
        yield f"{key}: is no longer in the sources"
    for key, (source, translation) in now.items():
        if translation is None:
            yield f"{key}: is not translated"
            continue
        for part in (r"%\d", r"\n", r"\t", r";;"):
            if sorted(re.findall(part, source)) != sorted(re.findall(part, translation)):
                yield f"{key}: {part} in another number than in {translation!r}"


def main():
    sheets = sorted(glob.glob("translations/*.ts"))
    faults = [f"{sheet}: {fault}" for sheet in sheets for fault in faults_of(sheet)]
    print(*faults, sep="\n")
    print(len(sheets), "languages; the target update_translations adds what is new in the sources")
    sys.exit(1 if faults or not sheets else 0)


main()
