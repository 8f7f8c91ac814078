"""What the pages name is there: paths, tests and their functions, options, settings keys, and where links lead.

What a back-quoted word is shows in its shape. Words of other shapes, other programs' commands and places outside the tree
are let be.
"""

import glob
import json
import os
import re
import subprocess
import sys

ROOT, BUILD, CTEST = sys.argv[1:4]
TEST = r"(?:tst|program|faults|bench)_(?!x$)\w+"
OPTION = r"--?([a-z][a-z0-9-]+)"
PATH = r"[\w.<>*-]+/[\w./<>*-]*"
FILE = r"[\w-]+\.(?:cpp|h|ui|py|sh|cmake|md)"
# Where the program is built, where it is installed, and folders of its users.
ELSEWHERE = r"(?:build|bin|lib|DIR|hosts)/"


def files(pattern):
    return glob.glob(pattern, root_dir=ROOT, recursive=True)


def text_of(*paths):
    texts = []
    for path in paths:
        with open(os.path.join(ROOT, path), encoding="utf-8") as file:
            texts.append(file.read())
    return "\n".join(texts)


def known_tests():
    listed = subprocess.run([CTEST, "--test-dir", BUILD, "--show-only=json-v1"], capture_output=True, check=True).stdout
    benchmarks = {os.path.basename(path).split(".")[0] for path in files("benchmarks/bench_*")}
    return {test["name"] for test in json.loads(listed)["tests"]} | benchmarks


class Tree:
    tests = known_tests()
    programs = text_of(*files("app/*.cpp"), *files("tools/**/*.cpp"), *files("scripts/*.sh"))
    settings = text_of(*files("notify/settings/*.cpp"))
    names = {os.path.basename(path) for top in os.listdir(ROOT) if top != "build" for path in files(f"{top}/**/*.*")}

    @classmethod
    def has_option(cls, name):
        return re.search(rf'(?:"-{{0,2}}|(?<![\w-])--){name}(?![\w-])', cls.programs)

    @staticmethod
    def has_path(path, page):
        pattern = re.sub("<.+?>", "*", path)
        return files(pattern) or files(os.path.join(os.path.dirname(page), pattern))


def faults_of_word(word, page):
    option = re.fullmatch(OPTION, word)
    if option and not Tree.has_option(option[1]):
        yield f"no program has the option {word}"
    elif re.fullmatch(TEST, word) and word not in Tree.tests:
        yield f"there is no test {word}"
    elif re.fullmatch(PATH, word) and not re.match(ELSEWHERE, word):
        if not Tree.has_path(word, page) and f'"{word}"' not in Tree.settings:
            yield f"{word} is neither a path nor a settings key"
    elif re.fullmatch(FILE, word) and word not in Tree.names:
        yield f"there is no file {word}"


def faults_of_functions(text):
    for test, functions in re.findall(r"`(tst_\w+)`((?:[ ,(]+`[a-z][A-Za-z0-9]+`)+)", text):
        code = text_of(*files(f"tests/**/{test}.cpp"))
        for function in re.findall(r"`(\w+)`", functions):
            if f"void {function}()" not in code:
                yield f"{test} has no function {function}"


def faults_of_links(text, page):
    headings = [re.sub(r"[^\w -]", "", line).replace(" ", "-").lower() for line in re.findall(r"(?m)^#+ (.+)$", text)]
    for link in re.findall(r"\]\(([^)]+)\)", text):
        path = os.path.join(ROOT, os.path.dirname(page), link.split("#")[0])
        is_right = link[1:] in headings if link.startswith("#") else ":" in link or os.path.exists(path)
        if not is_right:
            yield f"the link {link} leads nowhere"


def faults_of(page):
    text = text_of(page)
    for quoted in re.findall(r"`([^`\n]+)`", text):
        first, *others = quoted.split()
        if not others or re.match(f"{OPTION}$|scripts/|tarrow-", first):
            for word in (first, *others):
                yield from faults_of_word(word, page)
    yield from faults_of_functions(text)
    yield from faults_of_links(text, page)


pages = [*files("*.md"), *files("docs/*.md")]
faults = [f"{page}: {fault}" for page in sorted(pages) for fault in faults_of(page)]
print(*faults, f"{len(pages)} pages", sep="\n")
sys.exit(1 if faults or not pages else 0)
