#!/usr/bin/env python3
# measure_packing.py [ROUNDS]: how small and how fast PNG, icon and GIF files of 20 icons of 256 pixels
# are written, ten of each of two themes, beside ImageMagick and zopflipng where these are installed.
# Times are of whole processes, the programs in turn, of ROUNDS (else 5) the fastest: the mean of all
# icons and that of the slowest. Fetches the themes' Debian packages into the cache folder of
# measure_recipes.py. Build orbelle-cli first; ORBELLE_CLI names another one, to compare two.
import hashlib
import os
import shutil
import subprocess
import sys
import tempfile
import time
from pathlib import Path

from measure_recipes import CACHE, fetch

PROGRAM = os.environ.get("ORBELLE_CLI") or str(
    Path(__file__).resolve().parent.parent / "build/release/bin/orbelle-cli")
THEMES = {"gnome-icon-theme": "gnome/256x256", "oxygen-icon-theme": "oxygen/base/256x256"}
SIZES = "256,128,64,48,32,24,16"


def icons():
    """Ten of each theme, in an order without a meaning that is the same everywhere."""
    for package, place in THEMES.items():
        folder = fetch(package) / "usr/share/icons" / place
        files = [f for f in folder.glob("*/*.png") if not f.is_symlink()]
        files.sort(key=lambda f: hashlib.md5(f"{f.parent.name}/{f.stem}".encode()).digest())
        yield from files[:10]


def ways(convert):
    """Name, ending of what is made and the command, IN and OUT in it."""
    ours = [PROGRAM, "open", "IN"]
    magick = [convert, "IN"]
    yield "png", "orbelle fast", ours + ["export", "OUT"]
    yield "png", "orbelle small", ours + ["compress", "small", "export", "OUT"]
    if convert:
        yield "png", "ImageMagick", magick + ["PNG32:OUT"]
        yield "png", "ImageMagick, its choice of form", magick + ["OUT"]
    if shutil.which("zopflipng"):
        yield "png", "zopflipng", ["zopflipng", "-y", "--lossy_transparent", "IN", "OUT"]
    yield "ico", "orbelle fast", ours + ["export", "OUT"]
    yield "ico", "orbelle fast, all PNG", ours + ["icon-format", "png", "export", "OUT"]
    yield "ico", "orbelle small, all PNG", ours + [
        "icon-format", "png", "compress", "small", "export", "OUT"]
    if convert:
        yield "ico", "ImageMagick", magick + ["-define", f"icon:auto-resize={SIZES}", "OUT"]
    yield "gif", "orbelle", ours + ["export", "OUT"]
    if convert:
        yield "gif", "ImageMagick", magick + ["OUT"]


def run(command, source, output):
    made = [word.replace("IN", str(source)).replace("OUT", str(output))
            if word in ("IN", "OUT", "PNG32:OUT") else word for word in command]
    start = time.perf_counter()
    subprocess.run(made, check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    return time.perf_counter() - start


def main():
    rounds = int(sys.argv[1]) if len(sys.argv) > 1 else 5
    CACHE.mkdir(parents=True, exist_ok=True)
    convert = next((p for p in ("/usr/bin/convert-im6.q16", "/usr/bin/magick") if Path(p).exists()),
                   shutil.which("magick"))
    rows = list(ways(convert))
    sizes = [0] * len(rows)
    times = [0.0] * len(rows)
    slowest = [0.0] * len(rows)
    with tempfile.TemporaryDirectory() as folder:
        for source in icons():
            best = [float("inf")] * len(rows)
            for turn in range(rounds):
                for i, (ending, name, command) in enumerate(rows):
                    if name == "zopflipng" and turn > 0:
                        continue
                    output = Path(folder) / f"made.{ending}"
                    best[i] = min(best[i], run(command, source, output))
                    if turn == 0:
                        sizes[i] += output.stat().st_size
            times = [a + b for a, b in zip(times, best)]
            slowest = [max(a, b) for a, b in zip(slowest, best)]
    for (ending, name, _), size, seconds, most in zip(rows, sizes, times, slowest):
        print(f"{ending}  {name:32} {size:9,} bytes {seconds * 1000 / 20:8.1f} ms each,"
              f" {most * 1000:8.1f} at most")


if __name__ == "__main__":
    main()
