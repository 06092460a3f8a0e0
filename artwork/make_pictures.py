#!/usr/bin/env python3
"""Draws the pictures of the demo stores from shapes/*.svg and the tables in pictures/.

make_pictures.py TABLE TARGET_FOLDER; a table whose name ends in "_scenes.txt" holds wide pictures of
several shapes. Needs rsvg-convert (librsvg2-bin), convert (imagemagick) and the font Lato.
"""
import pathlib
import re
import subprocess
import sys
import tempfile

HERE = pathlib.Path(__file__).resolve().parent
TOKENS = ("#a00001", "#a00002", "#a00003")  # main, dark and accent colour in the shapes


def shape(name, colours, label):
    """The inside of a shape's SVG, in these three colours and with this lettering."""
    text = (HERE / "shapes" / f"{name}.svg").read_text()
    text = re.sub(r"</?svg[^>]*>", "", text)
    for token, colour in zip(TOKENS, colours):
        text = text.replace(token, colour)
    return text.replace("@LABEL@", "" if label == "-" else label.replace("_", " "))


def single(background, name, colours, label):
    return (
        '<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 400 400">'
        f'<rect width="400" height="400" fill="{background}"/>'
        '<ellipse cx="200" cy="338" rx="134" ry="15" fill="#000" opacity=".07"/>'
        f"{shape(name, colours, label)}</svg>"
    )


def scene(background, width, height, items):
    step = width / (len(items) + 0.4)
    size = min(step * 1.4, height * 0.92)  # pages cut wide pictures a little above and below
    floor = height * 0.80
    parts = [f'<rect width="{width}" height="{height}" fill="{background}"/>']
    parts.append(f'<rect y="{floor}" width="{width}" height="{height - floor}" fill="#000" opacity=".06"/>')
    for number, (name, colours, label) in enumerate(items):
        x = step * (number + 0.7) - size / 2
        y = floor - size * 0.825
        parts.append(
            f'<g transform="translate({x:.0f} {y:.0f}) scale({size / 400:.3f})">'
            '<ellipse cx="200" cy="330" rx="120" ry="12" fill="#000" opacity=".10"/>'
            f"{shape(name, colours, label)}</g>"
        )
    return f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {width} {height}">{"".join(parts)}</svg>'


def write(svg, width, target):
    """Renders to a JPEG, GIF or PNG, by the ending of the target's name."""
    with tempfile.TemporaryDirectory() as folder:
        source, png = pathlib.Path(folder) / "a.svg", pathlib.Path(folder) / "a.png"
        source.write_text(svg)
        subprocess.run(["rsvg-convert", "-w", str(width), "-o", str(png), str(source)], check=True)
        options = {
            ".jpg": ["-strip", "-interlace", "JPEG", "-sampling-factor", "4:2:0", "-quality", "84"],
            ".gif": ["-strip", "-dither", "None", "-colors", "64"],
            ".png": ["-strip", "-dither", "None", "-colors", "128", "-define", "png:exclude-chunks=date,time"],
        }[target.suffix.lower()]
        prefix = "png8:" if target.suffix == ".png" else ""
        subprocess.run(["convert", str(png), *options, prefix + str(target)], check=True)


def main(table, folder):
    target = pathlib.Path(folder)
    target.mkdir(parents=True, exist_ok=True)
    for line in pathlib.Path(table).read_text().splitlines():
        if not line or line.startswith("#"):
            continue
        fields = line.split()
        if table.endswith("_scenes.txt"):
            name, background, size = fields[:3]
            width, height = map(int, size.split("x"))
            items = [(s, c.split(","), label) for s, c, label in (f.split(":") for f in fields[3:])]
            write(scene(background, width, height, items), width, target / name)
        else:
            name, kind, main_colour, dark, accent, background, label, size = fields
            write(single(background, kind, (main_colour, dark, accent), label), int(size), target / name)


if __name__ == "__main__":
    main(*sys.argv[1:])
