"""Puts the faults of a list into a copy of the project, one at a time, and runs the tests that could see them.

A fault is a block of three lines: the file and what it breaks, the line as it stands ("- …") and as it is wrong ("+ …").
The line stands once in its file; blanks at its ends do not count.
"""

import argparse
import collections
import filecmp
import glob
import os
import re
import shutil
import subprocess
import sys

GOAL = 95  # per cent
SLOWEST_TEST = 90  # seconds; a test that stands still has noticed

# The tests that look at a folder most closely; the others run only when these stay green.
CLOSEST = [
    ("app/", "tst_templates|tst_startup|program_(start|tray|instance|protocol|templates)"),
    ("net/", "tst_messagereader|tst_packets|tst_qlwtcpsocket|tst_dispatchersession|program_(protocol|reconnect|link)"),
    ("notify/settings/", "tst_settings|tst_messagereader"),
    ("notify/events/", "tst_events|tst_alertor"),
    ("notify/", "tst_(alertor|results|events|preferences|settings|plaintext)|program_(tray|sound|protocol|link)"),
    ("viewer/frames/", "tst_(frame|compositelayers|viewersession)"),
    ("viewer/session/", "tst_viewersession|tst_(imageviewer|viewerpicture|openglfaults)$"),
    ("viewer/widgets/", "tst_(picture|hud|imagewidget|timeline|strips)|tst_(imageviewer|viewerpicture|openglfaults)$"),
    ("resources/shaders/", "tst_picture"),
    ("viewer/", "tst_(imageviewer|viewerpicture|openglfaults)$"),
    ("ui/", "tst_(ui_helpers|skinned_dialog|message_box|startup|translations)"),
    ("farmlibs/client_lib/", "tst_client_lib|tst_events"),
    ("farmlibs/framework/", "tst_framework|tst_framesequence"),
    ("farmlibs/image_library/", "tst_image_library"),
    ("farmlibs/template_engine/", "tst_template_engine|tst_templates"),
    ("system/", "tst_startup|tst_framework|program_(start|instance)|faults_signals"),
    ("tools/view/", "program_(view|accessibility)"),
    ("tools/imageinfo/", "tst_image_library_info"),
    ("tools/demofarm/", "tst_demofarm|program_(events|reconnect|templates)"),
]

PROGRAMS = ["tarrow-alertor", "tarrow-demofarm", "tarrow-imageinfo", "tarrow-view", "tst_picture", "tst_hud"]

Fault = collections.namedtuple("Fault", "file breaks line wrong")


def faults_of(path):
    with open(path, encoding="utf-8") as text:
        blocks = [block.splitlines() for block in re.split(r"\n\s*\n", text.read()) if block.strip()]
    faults = []
    for block in blocks:
        lines = [line for line in block if not line.startswith("#")]
        if not lines:
            continue
        head = re.fullmatch(r"(\S+): (.+)", lines[0])
        if not head or len(lines) != 3 or not lines[1].startswith("- ") or not lines[2].startswith("+ "):
            sys.exit(f"{path}: this is no fault: {block}")
        faults.append(Fault(head[1], head[2], lines[1][2:].strip(), lines[2][2:].strip()))
    return faults


class Copy:
    """The tracked files of the project, and a build of them."""

    def __init__(self, root):
        self.source = os.path.join(root, "build", "mutants")
        # Where a checkout has it: what the compiler's cache knows of one serves the other.
        self.build_folder = os.path.join(self.source, "build", "dev")
        os.makedirs(self.source, exist_ok=True)
        self.take(root)
        self.run("cmake", "--preset", "dev", must=True)
        self.run("cmake", "--build", self.build_folder, must=True)
        self.tests = re.findall(r"Test +#\d+: (\S+)", self.run("ctest", "--test-dir", self.build_folder, "-N", must=True)[1])
        # What is red without a fault would catch every one.
        while red := self.failing(self.tests):
            self.tests.remove(red.split(",")[0])
            print(f"{red} is red without a fault: left out", flush=True)

    def take(self, root):
        tracked = subprocess.run(["git", "-C", root, "ls-files", "-z"], check=True, capture_output=True, text=True).stdout
        for name in filter(None, tracked.split("\0")):
            original, copy = os.path.join(root, name), os.path.join(self.source, name)
            # What did not change keeps its time, so that it is not built again.
            if not os.path.exists(copy) or not filecmp.cmp(original, copy, shallow=False):
                os.makedirs(os.path.dirname(copy), exist_ok=True)
                shutil.copy(original, copy)

    def run(self, *command, must=False):
        done = subprocess.run(command, cwd=self.source, stdin=subprocess.DEVNULL, capture_output=True, text=True, errors="replace",
                              env={"CCACHE_BASEDIR": self.source, "CCACHE_NOHASHDIR": "1", **os.environ})
        if must and done.returncode != 0:
            sys.exit(f"{' '.join(command)} failed:\n{(done.stdout + done.stderr)[-4000:]}")
        return done.returncode == 0, done.stdout

    def build(self, targets=()):
        return self.run("cmake", "--build", self.build_folder, *(["--target", *targets] if targets else []))

    def failing(self, tests):
        """Name of a test that turns red; none when all stay green."""
        pattern = "^(" + "|".join(map(re.escape, tests)) + ")$"
        passed, output = self.run("ctest", "--test-dir", self.build_folder, "-R", pattern, "-j", str(os.cpu_count()),
                                  "--stop-on-failure", "--timeout", str(SLOWEST_TEST))
        if passed:
            return None
        failed = re.search(r"#\d+: (\S+) \.+ *(\*\*\*Timeout|\*\*\*|Subprocess)", output)
        if not failed:
            return "ctest"
        return failed[1] + (", which stood still" if failed[2].endswith("Timeout") else "")


def verdict(copy, fault, closest_only):
    """What became of the fault: "caught by …", "survived" or why it could not be put in."""
    path = os.path.join(copy.source, fault.file)
    if not os.path.exists(path):
        return "there is no such file"
    with open(path, encoding="utf-8") as file:
        right = file.read()
    lines = right.splitlines(keepends=True)
    places = [number for number, line in enumerate(lines) if line.strip() == fault.line]
    if len(places) != 1:
        return f"the line stands there {len(places)} times"
    lines[places[0]] = lines[places[0]].replace(fault.line, fault.wrong)
    try:
        with open(path, "w", encoding="utf-8") as file:
            file.write("".join(lines))
        return outcome(copy, fault, closest_only)
    finally:
        with open(path, "w", encoding="utf-8") as file:
            file.write(right)


def outcome(copy, fault, closest_only):
    pattern = next((tests for folder, tests in CLOSEST if fault.file.startswith(folder)), "$^")
    close = [test for test in copy.tests if re.match(pattern, test)]
    units = [test for test in close if os.path.exists(os.path.join(copy.build_folder, "tests", test))]
    programs = [test for test in close if test not in units]
    # The quickest come first; each needs no more than itself built.
    stages = [(units, units), (programs, PROGRAMS)]
    if not closest_only:
        stages.append(([test for test in copy.tests if test not in close], []))
    for tests, targets in stages:
        if not tests:
            continue
        if not copy.build(targets)[0]:
            return "does not build"
        red = copy.failing(tests)
        if red:
            return f"caught by {red}"
    return "survived"


def main():
    options = argparse.ArgumentParser()
    options.add_argument("root")
    options.add_argument("pattern", nargs="?", default="")
    options.add_argument("--list", action="append")
    options.add_argument("--closest", action="store_true")
    options = options.parse_args()
    lists = options.list or sorted(glob.glob(os.path.join(options.root, "tests", "mutants", "*.txt")))
    faults = [fault for path in lists for fault in faults_of(path) if re.search(options.pattern, ": ".join(fault[:2]))]
    copy = Copy(options.root)
    scores = collections.defaultdict(collections.Counter)
    for fault in faults:
        result = verdict(copy, fault, options.closest)
        kind = "caught" if result.startswith("caught") else "survived" if result == "survived" else "unusable"
        scores[os.path.dirname(fault.file)][kind] += 1
        print(f"{result:40} {fault.file}: {fault.breaks}", flush=True)
    total = collections.Counter()
    print()
    for folder, score in sorted(scores.items()):
        total += score
        print(f"{folder:30} {score['caught']:3} caught, {score['survived']:3} survived, {score['unusable']:3} unusable")
    share = 100 * total["caught"] / max(1, total["caught"] + total["survived"])
    print(f"{share:.0f} % of {sum(total.values())} faults were caught, {GOAL} % are to be")
    return 0 if share >= GOAL and not total["unusable"] else 1


sys.exit(main())
