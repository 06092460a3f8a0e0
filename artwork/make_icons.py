#!/usr/bin/env python3
"""Draws the desktop program's bitmap strips and its icon: make_icons.py FOLDER.

Each picture of the tables below is drawn from icons/*.svg at each size of a screen, so that nothing is ever
scaled. "a+b" is b on top of a; "~a" is a, paled, for what is disabled. Needs rsvg-convert and convert.
"""
import pathlib
import struct
import subprocess
import sys
import tempfile

ICONS = pathlib.Path(__file__).resolve().parent / "icons"

# By image index.
STRIPS = {
    "toolbar": ["store+plus", "open", "save", "upgrade", "help", "preview", "cart", "build",
                "product+plus", "shelf+plus", "category+plus", "list+plus"],
    "items": ["page", "picture", "variable", "card", "region", "scheme_file", "store", "arrow", "template", "freight",
              "category", "product", "cart", "order_form", "confirmation", "tax", "keyword",
              "~category", "link", "~product", "shelf", "~shelf", "style_shipped", "list", "~list", "text", "style_other",
              "tick", "cross", "box", "box+small_tick"],
}
# For screens of 100%, 150% and 200%.
SIZES = {16: "", 24: "_24", 32: "_32"}
ICON_SIZES = (16, 24, 32, 48, 256)

MASK = (255, 0, 255)
# A mask knows no half-transparent pixels. Those of an edge are laid over a colour between white and the grey of
# windows, or left out where less than this is covered: half a pixel of a straight edge would be a second outline.
MATTE = (240, 240, 240)
COVERED = 140


def drawn(name, size):
    """The pixels of one SVG, as rows of (r, g, b, alpha)."""
    png = subprocess.run(["rsvg-convert", "-w", str(size), "-h", str(size), str(ICONS / f"{name}.svg")], check=True, capture_output=True)
    rgba = subprocess.run(["convert", "png:-", "-depth", "8", "rgba:-"], input=png.stdout, check=True, capture_output=True).stdout
    return [tuple(rgba[at:at + 4]) for at in range(0, len(rgba), 4)]


def over(top, below):
    """One pixel on top of another."""
    alpha = top[3] + below[3] * (255 - top[3]) / 255
    if alpha == 0:
        return (0, 0, 0, 0)
    share = top[3] / alpha
    return tuple(round(t * share + b * (1 - share)) for t, b in zip(top[:3], below[:3])) + (round(alpha),)


def paled(pixel):
    """Nearly grey, and much lighter, so that it reads as disabled on white and on grey."""
    grey = 0.3 * pixel[0] + 0.59 * pixel[1] + 0.11 * pixel[2]
    return tuple(round(136 + 0.43 * (0.75 * grey + 0.25 * colour)) for colour in pixel[:3]) + (pixel[3],)


def picture(recipe, size):
    layers = [drawn(name, size) for name in recipe.lstrip("~").split("+")]
    pixels = layers[0]
    for layer in layers[1:]:
        pixels = [over(top, below) for top, below in zip(layer, pixels)]
    return [paled(pixel) for pixel in pixels] if recipe.startswith("~") else pixels


def masked(pixel):
    return over(pixel, MATTE + (255,))[:3] if pixel[3] >= COVERED else MASK


def write_strip(target, recipes, size):
    """An uncompressed bitmap of 24 bits, from the lowest row up. Rows are whole words, as sizes are multiples of 4."""
    pictures = [picture(recipe, size) for recipe in recipes]
    body = bytearray()
    for row in reversed(range(size)):
        for pixels in pictures:
            for pixel in pixels[row * size:(row + 1) * size]:
                body += bytes(reversed(masked(pixel)))
    head = struct.pack("<2sIHHI", b"BM", 54 + len(body), 0, 0, 54)
    info = struct.pack("<IiiHHIIiiII", 40, size * len(recipes), size, 1, 24, 0, len(body), 2835, 2835, 0, 0)
    target.write_bytes(head + info + body)


def write_icon(target, name):
    with tempfile.TemporaryDirectory() as folder:
        files = [f"{folder}/{size}.png" for size in ICON_SIZES]
        for size, file in zip(ICON_SIZES, files):
            subprocess.run(["rsvg-convert", "-w", str(size), "-h", str(size), "-o", file, str(ICONS / f"{name}.svg")], check=True)
        subprocess.run(["convert", *files, "-strip", "-define", "png:exclude-chunks=date,time", str(target)], check=True)


def main(folder):
    folder = pathlib.Path(folder)
    folder.mkdir(parents=True, exist_ok=True)
    for strip, recipes in STRIPS.items():
        for size, suffix in SIZES.items():
            write_strip(folder / f"{strip}{suffix}.bmp", recipes, size)
    write_icon(folder / "varlo.ico", "program")


if __name__ == "__main__":
    main(sys.argv[1])
