"""The viewer's own program as a user calls it: what it grabs, by pixels, and how it ends."""

import os
import subprocess
import sys

from farmtest import check, equal

VIEW = os.path.abspath(sys.argv[1])
FOLDER = os.environ["TMPDIR"]
SIZE = "16x8"


def path(name):
    return os.path.join(FOLDER, name)


def oiiotool(*arguments):
    subprocess.run(["oiiotool", *arguments], check=True, capture_output=True)


def make(name, colour, channels="R,G,B,A"):
    oiiotool("--pattern", f"constant:color={colour}", SIZE, str(channels.count(",") + 1), "--chnames", channels, "-d", "half", "-o", path(name))


def view(*arguments, code=0, **environment):
    """What the program prints, both streams; the code is the one that it ends with."""
    done = subprocess.run([VIEW, *arguments], capture_output=True, text=True, timeout=120, env={**os.environ, **environment})
    equal(done.returncode, code, f"exit of {arguments}: {done.stdout}{done.stderr}")
    return done.stdout + done.stderr


def pixel(*arguments, channels="0,1,2", size=SIZE):
    """The colour in the middle of what is grabbed, 0 to 255, without being multiplied by alpha."""
    view(*arguments, "--grab", path("grab.png"))
    oiiotool("--iconfig", "oiio:UnassociatedAlpha", "1", path("grab.png"), "--ch", channels, "-o", path("grab.ppm"))
    with open(path("grab.ppm"), "rb") as file:
        header, extent, most, pixels = file.read().split(b"\n", 3)
    equal((header, extent, most), (b"P6", size.replace("x", " ").encode(), b"255"), "the grabbed file")
    width, height = map(int, size.split("x"))
    at = 3 * (height // 2 * width + width // 2)
    return tuple(pixels[at:at + 3])


make("a.exr", "0.5,0.25,1,1")
make("shot.0001.exr", "0,0,0,1")
make("shot.0002.exr", "1,1,1,1")
make("shot.-0001.exr", "0,1,0,1")
make("layers.exr", "0,0,0,1,1,0.25,0", "R,G,B,A,mask.R,mask.G,mask.B")
oiiotool("--pattern", "constant:color=0.5,0.25,1", SIZE, "3", "-d", "uint8", "-o", path("a.png"))
with open(path("broken.exr"), "wb") as broken:
    broken.write(b"\x76\x2f\x31\x01 and no more")
os.mkdir(path("empty"))

# 0.5 and 0.25 under EXR's import gamma of 2.2; other formats show as they are.
equal(pixel(path("a.exr")), (186, 136, 255), "EXR")
equal(pixel(path("a.png")), (128, 64, 255), "PNG")
equal(pixel("--gl2", path("a.exr")), (186, 136, 255), "EXR by OpenGL 2.1")
equal(pixel("--set", "inputGamma=1,outputGamma=1", path("a.exr")), (128, 64, 255), "neutral gamma")
equal(pixel("--set", "inputGamma=1", "--set", "brightness=0.5", path("a.exr")), (0, 0, 128), "two sets")
for mode, shown in [("rgba", (186, 136, 255)), ("red", (186,) * 3), ("green", (136,) * 3), ("blue", (255,) * 3), ("alpha", (255,) * 3)]:
    equal(pixel("--channel", mode, path("a.exr")), shown, mode)
make("b.exr", "0.25,0.5,0,1")
equal(pixel("--channel", "luminance", path("b.exr")), (186,) * 3, "luminance, the largest of the three")

# What each kind of sample is for OpenGL; the last is brighter than white.
make("half.exr", "2,1,0,1")
equal(pixel("--set", "inputGamma=1,inputLevelEnd=4", path("half.exr")), (128, 64, 0), "halves")
for name, kind, count, colour, shown in [("grey.png", "uint8", 1, "0.5", (128,) * 3), ("deep.png", "uint16", 3, "0.5,0.25,1", (128, 64, 255)),
                                         ("deepgrey.png", "uint16", 1, "0.25", (64,) * 3), ("float.tif", "float", 3, "0.5,0.25,0", (128, 64, 0))]:
    oiiotool("--pattern", f"constant:color={colour}", SIZE, str(count), "-d", kind, "-o", path(name))
    equal(pixel(path(name)), shown, name)
# Stored as it is before alpha, 1, 0.5 and 1; shown by half, on the grey of the checker.
oiiotool("--pattern", "constant:color=0.5,0.25,0.5,0.5", SIZE, "4", "-d", "uint8", "-o", path("straight.png"))
equal(pixel(path("straight.png")), (192, 128, 192), "straight alpha")
oiiotool("--pattern", "constant:color=0.25,0.5", SIZE, "2", "--chnames", "Y,A", "-d", "uint8", "-o", path("straightgrey.png"))
equal(pixel(path("straightgrey.png")), (128, 128, 128), "straight grey")

# Half of a colour, in an EXR that is multiplied by its alpha already: over what, and taken for what.
make("blend.exr", "0.3125,0.125,0.4375,0.5")
plain = ["--set", "inputGamma=1", path("blend.exr")]
equal(pixel(*plain), (144, 96, 176), "over the checker's 0.5")
equal(pixel("--checker", "off", *plain), (80, 32, 112), "over black")
equal(pixel("--checker", "off", "--background", "#ff0000", *plain), (207, 32, 112), "over red")
equal(pixel("--premultiplied", "off", "--checker", "off", *plain), (40, 16, 56), "straight colours")
equal(pixel("--composite", "off", *plain), (159, 64, 223), "the colour that has the alpha")
equal(pixel("--composite", "off", *plain, channels="3,3,3"), (128,) * 3, "its alpha")
equal(pixel("--composite", "off", "--channel", "alpha", *plain), (128,) * 3, "alpha as a grey")
equal(pixel("--zoom", "2.5", path("a.exr"), size="40x20"), (186, 136, 255), "zoomed")

mask = path("shot.####.exr")
equal(pixel(mask), (0, 0, 0), "a mask starts at its first frame")
equal(pixel("--frame", "2", mask), (255, 255, 255), "the frame that is asked for")
equal(pixel("--frame", "-1", mask), (0, 255, 0), "a frame below 0")
equal(pixel("--layer", "mask.RGB", path("layers.exr")), (255, 136, 0), "the layer that is asked for")
os.mkdir(path("folder"))
os.rename(path("shot.0002.exr"), path("folder/shot.0002.exr"))
equal(pixel(path("folder")), (255, 255, 255), "a folder's first sequence")
equal(pixel("FILE://localhost" + path("folder")), (255, 255, 255), "its address")
make("folder/shot.0004.exr", "0,0,1,1")
equal(pixel("--frame", "4", path("folder/shot.0004.exr"), path("folder/shot.0002.exr")), (0, 0, 255), "files of one sequence")
check("a.exr" in view("--grab", path("grab.png"), path("b.exr"), path("a.exr")), "nothing tells what is left out")
equal(pixel(path("b.exr"), path("a.exr")), (136, 186, 0), "the first of several files")
equal(pixel("--layer", "RGB", path("a.exr")), (186, 136, 255), "a layer that another stands in for")
os.chdir(path("folder"))
equal(pixel("shot.0002.exr"), (255, 255, 255), "a path of the working directory")

check("Usage: tarrow-view [options] [PATH...]" in " ".join(view("--help").split()), "the usage line")
for arguments in [["--frame", "x", mask], ["--channel", "cyan", mask], ["--set", "brightness", mask], ["--set", "glow=1", mask],
                  ["--set", "brightness=nan", mask], ["--unknown"], ["--frame"], ["--zoom", "0", mask], ["--checker", "no", mask],
                  ["--background", "blackish", mask], ["--background", "#ff000080", mask], ["--grab", "", mask]]:
    view(*arguments, code=2)
grab = ["--grab", path("none.png")]
for arguments in [[*grab, path("missing.exr")], [*grab, path("broken.exr")], [*grab, path("empty")], grab,
                  [*grab, "--layer", "depth", path("a.exr")], [*grab, "--frame", "3", mask], [*grab, "--frame", "2", path("a.exr")], ["--grab", path("missing/none.png"), path("a.exr")]]:
    check(view(*arguments, code=1).strip(), f"{arguments} failed without a word")

check("no such file" in view(*grab, path("missing.exr"), code=1), "nothing tells why there is no picture")

# What there is of a frame is no picture, unless it is asked for.
oiiotool("--pattern", "constant:color=1,1,1", "16x64", "3", "-d", "half", "--compression", "zip", "-o", path("cut.exr"))
os.truncate(path("cut.exr"), os.path.getsize(path("cut.exr")) - 4)
view(*grab, path("cut.exr"), code=1)
check("3 of 4 chunks" in view("--grab", path("cut.png"), "--incomplete", path("cut.exr")), "nothing tells what is missing")
check(os.path.exists(path("cut.png")), "nothing was written of what there is")
view("--incomplete", path("cut.exr"), code=2)

# Drivers that draw no pictures, none of this kind, or none so large.
OLD = {"MESA_GL_VERSION_OVERRIDE": "2.1"}
for told, file, driver in [
    ("tarrow.viewer: Program ", "a.png", {**OLD, "MESA_GLSL_VERSION_OVERRIDE": "110"}),
    ("refused by OpenGL", "a.exr", {**OLD, "MESA_EXTENSION_OVERRIDE": "-GL_ARB_texture_float -GL_ARB_texture_rg"}),
    ("OpenGL not supported by your GPU!", "a.png", {"MESA_GL_VERSION_OVERRIDE": "2.0"}),
]:
    output = view(*grab, path(file), code=1, **driver)
    check(told in output and "uniformLocation" not in output, f"{driver} says {output}")
check(not os.path.exists(path("none.png")), "a failed grab left a file")
oiiotool("--pattern", "constant:color=1,1,1", "20000x8", "3", "-d", "half", "-o", path("wide.exr"))
check("1/2" in view(path("wide.exr"), "--grab", path("wide.png")), "nothing tells that the picture is smaller")
oiiotool(path("wide.png"), "-o", path("wide.ppm"))
with open(path("wide.ppm"), "rb") as wide:
    equal(wide.read().split(b"\n", 2)[1], b"10000 4", "a picture wider than OpenGL allows, at half its size")
