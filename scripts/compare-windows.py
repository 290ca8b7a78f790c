#!/usr/bin/env python3
# compare-windows.py LINUX_BIN WINDOWS_BIN: runs orbelle-cli of one folder and orbelle-cli.exe of the
# other, by Wine, over the samples: every style in every format, and the other verbs that draw,
# measure and write. What both write and print has to be the same to the last byte. Status 1 when
# it is not.
import os
import shutil
import subprocess
import sys
import tempfile
import time
from pathlib import Path

SAMPLES = Path(__file__).resolve().parent.parent / "samples"
STYLES = ("disabled hot fresh ios origami-vertical origami-horizontal mac vista crystal blur sharpen "
          "irradiation shade reflection shadow").split()
FORMATS = "ico cur icns png gif jpg bmp".split()
RECIPES = "plain sharper fill fill-outline outline snapped".split()
SLIDERS = "opacity scale hue saturation brightness contrast".split()
WIDTHS = [f"line-width {width}" for width in (1, 2, 5, 12)]
FILLS = [f"fill {fill}" for fill in ("solid", "horizontal", "vertical", "radial")]
# With what is set for each.
TOOLS = {"pencil": ["foreground #C03070A0"], "line": WIDTHS, "rectangle": WIDTHS, "ellipse": WIDTHS,
         "filled-rectangle": FILLS, "filled-ellipse": FILLS, "pencil-eraser": ["active foreground"],
         "brush-eraser": ["brush-size 1", "brush-size 30", "brush-opacity 40"]}


def styles():
    for style in STYLES:
        yield "open {}"
        yield f"style {style}"
        yield "info"
        for kind in FORMATS:
            yield f"export styles/{style}/{{stem}}.{kind}"
        yield f"save styles/{style}/{{stem}}.volf"
        yield f"write-page styles/{style}/{{stem}}-page.png"


def sliders():
    changes = [f"{slider} {value}" for slider in SLIDERS for value in (7, 83)]
    changes += ["rotate cw", "rotate cww", "flip horizontal", "flip vertical", "nudge left",
                "page 100 77"]
    for change in changes:
        yield "open {}"
        yield change
        yield f"write-page sliders/{{stem}}-{change.replace(' ', '-')}.png"
        yield "region 0"


def sizes():
    yield "open {}"
    yield "check"
    for size in (8, 16, 24, 31, 64, 128):
        for recipe in RECIPES:
            yield f"size {size} {recipe}"
            yield f"write-page sizes/{{stem}}-{size}-{recipe}.png"
    yield "size master"
    yield "save sizes/{stem}.volf"
    for kind in ("bmp", "png256", "png"):
        for sizes_of in ("windows", "favicon", "table", "12 33 100 255"):
            yield f"icon-format {kind}"
            yield f"icon-sizes {sizes_of}"
            yield f"export sizes/{{stem}}-{kind}-{sizes_of.replace(' ', '-')}.ico"
    yield "hotspot 3 5"
    yield "export sizes/{stem}-pointer.cur"
    yield "entries sizes/{stem}-pointer.cur"
    for kind in ("png", "gif", "jpg", "bmp"):
        for size in (1, 17, 300):
            yield f"export-size {size}"
            yield "background #80F06030" if size == 17 else "background none"
            yield f"export sizes/{{stem}}-{size}.{kind}"
    yield "gif-threshold 20"
    yield "export sizes/{stem}-threshold.gif"
    yield "compress small"
    yield "export-size 64"
    yield "export sizes/{stem}-small.png"


def sets():
    yield "open {}"
    yield "export-set sets/{stem} windows macos linux web android ios"


# What the program itself has written, and the pictures that come in other ways.
def again():
    for kind in ("png", "gif", "jpg", "bmp", "ico", "volf"):
        yield f"open styles/vista/{{stem}}.{kind}"
        yield "import-fit {}"
        yield f"write-page again/{{stem}}-{kind}.png"
    yield "diff styles/vista/{stem}.ico styles/shadow/{stem}.ico again/{stem}-sheet.png"


def drawing():
    yield "new 96 96"
    yield "foreground #C03070A0"
    yield "background-colour #2060F0"
    for number, (tool, settings) in enumerate(TOOLS.items()):
        yield f"tool {tool}"
        for setting in settings:
            yield setting
            yield f"mirror {('none', 'horizontal', 'vertical', 'both')[number % 4]}"
            yield f"drag {3 * number} 7 60 31 90 {50 + number}"
            yield f"write-page drawing/{tool}-{setting.replace(' ', '-').replace('#', '')}.png"
    for tool, select in (("rectangle", "drag 10 12 60 70"), ("ellipse", "drag 5 5 90 71"),
                         ("polygon", "click 3 3 click 80 20 click 40 88 right-click 3 3")):
        yield f"tool select-{tool}"
        yield from select.replace(" click", "\nclick").replace(" right", "\nright").split("\n")
        yield "selection"
        yield "copy"
        yield "paste"
        yield "rotate cw"
        yield f"write-page drawing/pasted-{tool}.png"
    yield "zoom 2.5"
    yield "write-scene drawing/scene.png"
    yield "save \"drawing/büro ✓.volf\""
    yield "export \"drawing/büro ✓.ico\""
    yield "open \"drawing/büro ✓.volf\""
    yield "info"


# Each is one run, of all samples but the last.
RUNS = {"styles": styles, "sliders": sliders, "sizes": sizes, "sets": sets, "again": again}


def prepare(folder):
    """Samples and scripts, as both programs find them."""
    folder.mkdir()
    for sample in SAMPLES.iterdir():
        if sample.suffix in (".volf", ".png"):
            shutil.copy(sample, folder)
    for name, lines in {**RUNS, "drawing": drawing}.items():
        folders = [f"styles/{style}" for style in STYLES] if name == "styles" else [name]
        for made in folders:
            (folder / made).mkdir(parents=True)
        (folder / f"{name}.txt").write_text("\n".join(lines()) + "\n", encoding="utf-8")


def run(command, folder):
    """Runs all scripts in the folder; what is printed goes to files, too."""
    samples = sorted(path.name for path in folder.glob("*.volf")) + sorted(
        path.name for path in folder.glob("*.png"))
    environment = {**os.environ, "LC_ALL": "C.UTF-8", "WINEDEBUG": "-all",
                   "XDG_STATE_HOME": str(folder / "state")}
    for name in [*RUNS, "drawing"]:
        words = ["--script", f"{name}.txt"]
        if name != "drawing":
            words = ["--each", *samples, "--json", "--keep-going", "--", *words]
        start = time.monotonic()
        with open(folder / f"{name}.output", "wb") as output, \
                open(folder / f"{name}.errors", "wb") as errors:
            status = subprocess.run([*command, *words], cwd=folder, env=environment,
                                    stdin=subprocess.DEVNULL, stdout=output, stderr=errors,
                                    check=False).returncode
        (folder / f"{name}.status").write_text(f"{status}\n", encoding="utf-8")
        print(f"  {name}: {time.monotonic() - start:.0f} s", flush=True)


def files(folder):
    return {path.relative_to(folder) for path in folder.rglob("*") if path.is_file()}


def content(path):
    """The bytes, but that folders may be parted as the system does it in what is printed."""
    read = path.read_bytes()
    return read.replace(rb"\\", b"/") if path.suffix == ".output" else read


def compare(linux, windows):
    """Prints what differs; the number of files that are alike and of those that are not."""
    names = files(linux) | files(windows)
    different = [name for name in sorted(names)
                 if not (linux / name).is_file() or not (windows / name).is_file()
                 or content(linux / name) != content(windows / name)]
    for name in different:
        print(f"differs: {name}")
    return len(names) - len(different), len(different)


def has_failed(folder):
    """Of the program that is the measure: nothing may go wrong but that sheets of `diff` tell."""
    for name in [*RUNS, "drawing"]:
        errors = (folder / f"{name}.errors").read_text(encoding="utf-8")
        if errors:
            print(f"{name}: {errors}", end="")
            return True
    return False


def main():
    if len(sys.argv) != 3:
        sys.exit("compare-windows.py LINUX_BIN WINDOWS_BIN")
    programs = {"linux": [str(Path(sys.argv[1], "orbelle-cli").resolve())],
                "windows": ["wine", str(Path(sys.argv[2], "orbelle-cli.exe").resolve())]}
    with tempfile.TemporaryDirectory(prefix="orbelle-") as work:
        for system, command in programs.items():
            print(f"{system}:", flush=True)
            prepare(Path(work, system))
            run(command, Path(work, system))
        if has_failed(Path(work, "linux")):
            sys.exit(1)
        alike, different = compare(Path(work, "linux"), Path(work, "windows"))
    print(f"{alike} files are alike" + (f", {different} are not" if different else ""))
    sys.exit(different > 0 or alike == 0)


main()
