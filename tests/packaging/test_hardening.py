"""test_hardening.py [--fortified] FILE…

Programs and modules are position-independent, bound and sealed at their start, with guarded stacks that are not executable;
with --fortified, as an optimised build is, copies are checked too.
"""

import re
import subprocess
import sys


def faults_of(path, fortified):
    command = ["readelf", "--wide", "--file-header", "--program-headers", "--dynamic", "--dyn-syms", path]
    text = subprocess.run(command, capture_output=True, text=True, check=True).stdout
    wanted = {
        "position-independent": r"Type: +DYN ",
        "bound at its start": r"\(FLAGS.*\bNOW\b",
        "sealed once it is bound": r"\bGNU_RELRO\b",
        "without an executable stack": r"GNU_STACK .* RW ",
        "guarding its stack": r"\b__stack_chk_fail\b",
    }
    if fortified:
        wanted["checking its copies"] = r"\b__(?!stack)\w+_chk\b"
    return [f"{path} is not {what}" for what, pattern in wanted.items() if not re.search(pattern, text)]


fortified = "--fortified" in sys.argv
paths = [path for path in sys.argv[1:] if path != "--fortified"]
faults = [fault for path in paths for fault in faults_of(path, fortified)]
print(*faults, f"{len(paths)} files", sep="\n")
sys.exit(1 if faults or not paths else 0)
