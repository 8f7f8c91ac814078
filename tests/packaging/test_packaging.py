"""An installed prefix and the unpacked package hold what they should, and the client starts from either."""

import glob
import os
import re
import subprocess
import sys

import farmtest
from desktop import alertor
from farmtest import PRODUCT, VERSION, check, equal

BUILD, CMAKE = sys.argv[1:3]
PROGRAMS = ["tarrow-alertor", "tarrow-demofarm", "tarrow-imageinfo", "tarrow-view"]


def output(*command):
    """What the command prints; it has to end with 0."""
    result = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False)
    equal(result.returncode, 0, f"exit code of {command}, which printed {result.stdout}")
    return result.stdout


def files_are_there(prefix, etc, packed):
    """`packed` is the ending that the man pages have."""
    wanted = [f"bin/{program}" for program in PROGRAMS]
    wanted += [f"share/man/man1/{program}.1{packed}" for program in PROGRAMS]
    wanted += ["share/icons/hicolor/48x48/apps/tarrow-alertor.png", "lib/tarrow-alertor/templates"]
    wanted += ["share/applications/tarrow-alertor.desktop", "share/applications/tarrow-view.desktop"]
    wanted += ["share/doc/tarrow-alertor/copyright", "share/doc/tarrow-alertor/user-guide.md"]
    paths = [os.path.join(prefix, name) for name in wanted]
    paths.append(os.path.join(etc, "xdg/autostart/tarrow-alertor.desktop"))
    equal([path for path in paths if not os.path.exists(path)], [], "files that are missing")
    equal(os.listdir(prefix + "/lib"), ["tarrow-alertor"], "what is among the libraries")


def entries_are_valid(prefix, etc):
    for entry in glob.glob(f"{prefix}/share/applications/*") + glob.glob(f"{etc}/xdg/autostart/*"):
        equal(output("desktop-file-validate", entry), "", f"complaints of {entry}")
    for data in glob.glob(f"{prefix}/share/metainfo/*"):
        output("appstreamcli", "validate", "--no-net", data)
    for page in glob.glob(f"{prefix}/share/man/man1/*"):
        text = output("man", "--warnings", "--local-file", "--encoding=UTF-8", page)
        equal([line for line in text.splitlines() if "warning:" in line], [], f"warnings of {page}")


def versions_agree(prefix):
    """Of the client, the man pages and the entry for software centres with the project's."""
    check(f" {VERSION} (" in output(f"{prefix}/bin/tarrow-alertor", "--version"), "the client is of another version")
    for page in glob.glob(f"{prefix}/share/man/man1/*"):
        check(f'"{PRODUCT}"' in output("zcat", "--force", page).splitlines()[0], f"{page} is of another version")
    with open(*glob.glob(f"{prefix}/share/metainfo/*"), encoding="utf-8") as file:
        release = re.search(r'<release version="(.+)" date="(.+)"/>', file.read())
    with open(f"{prefix}/share/doc/tarrow-alertor/CHANGELOG.md", encoding="utf-8") as file:
        dated = re.search(r"^## \[(\d.+)\] - (.+)$", file.read(), re.MULTILINE)
    equal(release.groups(), dated.groups(), "version and date of the release, to those of the changelog's last")


def client_starts(prefix):
    """From a folder that is not the program's, through the link, with the templates that lie beside the program."""
    farmtest.CLIENT = os.path.join(prefix, "bin", "tarrow-alertor")
    with open(os.path.join(prefix, "lib/tarrow-alertor/templates/beside.py"), "w", encoding="utf-8") as file:
        file.write("print('loaded', __name__)\n")
    program = alertor()
    program.expect("^loaded ")
    program.quit()


def test():
    work = os.environ["TMPDIR"]
    prefix = os.path.join(work, "prefix")
    output(CMAKE, "--install", BUILD, "--prefix", prefix)
    files_are_there(prefix, f"{prefix}/etc", "")
    entries_are_valid(prefix, f"{prefix}/etc")
    moved = os.path.join(work, "moved")
    os.rename(prefix, moved)
    client_starts(moved)

    output(os.path.join(os.path.dirname(CMAKE), "cpack"), "--config", f"{BUILD}/CPackConfig.cmake", "-B", work)
    (package,) = glob.glob(f"{work}/*.deb")
    root = os.path.join(work, "root")
    output("dpkg-deb", "--extract", package, root)
    files_are_there(f"{root}/usr", f"{root}/etc", ".gz")
    entries_are_valid(f"{root}/usr", f"{root}/etc")
    versions_agree(f"{root}/usr")
    equal(output("dpkg-deb", "--field", package, "Version"), f"{VERSION}\n", "version of the package")
    changes = output("zcat", f"{root}/usr/share/doc/tarrow-alertor/changelog.gz")
    check(changes.startswith(f"tarrow-alertor ({VERSION})"), "the package's changelog is of another version")
    for needed in "libqt6widgets6", "libpython3.11", "libopenimageio2.4":
        check(needed in output("dpkg-deb", "--field", package, "Depends"), f"the package does not name {needed}")
    equal(
        output("dpkg-deb", "--info", package, "conffiles").split(), ["/etc/xdg/autostart/tarrow-alertor.desktop"], "conffiles"
    )
    client_starts(f"{root}/usr")


farmtest.run(test)
