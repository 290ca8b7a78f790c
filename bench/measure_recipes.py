#!/usr/bin/env python3
# measure_recipes.py [ICONS]: how near the recipes for small sizes come to the small pictures that
# designers drew: on as many icons of each theme as said, else on 40, 0 for all. Fetches the themes'
# Debian packages, and a program that renders SVG, into a cache folder; nothing is installed. Build
# orbelle_measure first; measure_recipes.cpp says what is measured.
import hashlib
import os
import subprocess
import sys
from pathlib import Path

PROGRAM = Path(__file__).resolve().parent.parent / "build/release/bin/orbelle_measure"
CACHE = Path(os.environ.get("XDG_CACHE_HOME") or Path.home() / ".cache") / "orbelle-recipes"
MASTER = 512  # pixels; drawings are rendered so large

# Where the pictures of a theme stand, from its package's usr/share/icons on.
THEMES = {
    "gnome-icon-theme": "gnome/{0}x{0}/{1}/{2}",
    "mate-icon-theme": "mate/{0}x{0}/{1}/{2}",
    "oxygen-icon-theme": "oxygen/base/{0}x{0}/{1}/{2}",
    "elementary-icon-theme": "elementary/{1}/{0}/{2}",
    "tango-icon-theme": "Tango/{0}x{0}/{1}/{2}",
}
KINDS = "actions apps categories devices emblems emotes mimes mimetypes places status".split()


def fetch(package):
    """The folder with the contents of a Debian package."""
    folder = CACHE / package
    if not folder.exists():
        unpacked = CACHE / "unpacked"
        subprocess.run(["apt-get", "-qq", "download", package], cwd=CACHE, check=True)
        for file in CACHE.glob(f"{package}_*.deb"):
            subprocess.run(["dpkg", "-x", file, unpacked], check=True)
            file.unlink()
        unpacked.rename(folder)
    return folder


def raster(file, side):
    """The file, or the picture of `side` pixels that it draws."""
    if file.suffix == ".png":
        return file
    made = CACHE / "rendered" / str(side) / file.relative_to(CACHE).with_suffix(".png")
    if not made.exists():
        made.parent.mkdir(parents=True, exist_ok=True)
        convert = fetch("librsvg2-bin") / "usr/bin/rsvg-convert"
        drawn = subprocess.run([convert, "-w", str(side), "-h", str(side), file, "-o", made],
                               stderr=subprocess.DEVNULL)
        if drawn.returncode != 0:
            return None
    return made


def own_file(*names):
    """The first that is a file: a link shows another icon, which is counted by itself."""
    return next((n for name in names for n in (name.with_suffix(".png"), name.with_suffix(".svg"))
                 if n.is_file() and not n.is_symlink()), None)


def pairs(package, place, limit, seen):
    """Lines of the list for one theme."""
    folder = fetch(package) / "usr/share/icons"
    large = [place.format(256, "{1}", "{2}"), place.format(128, "{1}", "{2}"),
             place.format(256, "{1}", "{2}").replace("256x256", "scalable")]
    names = {(kind, file.stem) for kind in KINDS for pattern in large
             for file in folder.glob(pattern.format(0, kind, "*.*g"))}
    icons = 0
    # In an order without a meaning that is the same everywhere: any number is a fair choice.
    for kind, name in sorted(names, key=lambda n: hashlib.md5("/".join(n).encode()).digest()):
        if "symbolic" in name or icons == limit > 0:
            continue
        source = own_file(*(folder / pattern.format(0, kind, name + ".x") for pattern in large))
        master = source and raster(source, MASTER)
        lines = []
        for size in (16, 22, 24, 32, 48):
            drawn = own_file(folder / place.format(size, kind, name + ".x"))
            # A picture of 24 where there is one of 22 is that one with a margin around it.
            if not master or not drawn or (size == 24 and lines and lines[-1].startswith("22")):
                continue
            picture = raster(drawn, size)
            if picture and picture.read_bytes() not in seen:
                seen.add(picture.read_bytes())
                lines.append(f"{size}\t{master}\t{picture}\n")
        icons += bool(lines)
        yield from lines


def main():
    limit = int(sys.argv[1]) if len(sys.argv) > 1 else 40
    CACHE.mkdir(parents=True, exist_ok=True)
    seen = set()
    with open(CACHE / "list", "w") as file:
        for package, place in THEMES.items():
            file.writelines(pairs(package, place, limit, seen))
    return subprocess.run([PROGRAM, CACHE / "list"]).returncode


if __name__ == "__main__":
    sys.exit(main())
