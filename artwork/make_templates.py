#!/usr/bin/env python3
"""Puts the page templates together: templates/*.htm, base.css and one style's CSS make a set.

make_templates.py INSTALLATION: writes the default set into its folder "template" and one set for each
style into a folder below. Checks the rules that every template must obey.
"""
import pathlib
import sys

HERE = pathlib.Path(__file__).resolve().parent / "templates"
SETS = {"": "plain", "meadow": "meadow", "gallery": "gallery", "market": "market"}
PAGES = ("category.htm", "product.htm", "shelf.htm", "list.htm")
FORMS = ("order.htm", "confirm.htm")  # written by hand for the default set, and the same in all others


def read(name):
    return (HERE / name).read_text().rstrip("\n")


def page(name, style):
    text = read(name)
    if "@FOOT@\n" in text:  # a script behind the foot belongs inside the body
        start, tail = text.split("@FOOT@\n")
        text = start + read("foot.htm").replace("</body>", tail + "\n</body>")
    text = text.replace("@FOOT@", read("foot.htm")).replace("@HEAD@", read("head.htm"))
    return text.replace("@CSS@", read("base.css") + "\n" + read(f"{style}.css")) + "\n"


def check(name, text):
    lines = text.split("\n")
    assert len(text) < 100_000, f"{name} is too long"
    assert all(len(line) < 19_000 for line in lines), f"{name} has a line that is too long"
    assert not any(line.startswith(";") for line in lines), f"{name} has a line that begins with a semicolon"
    assert text.count("<!--") == text.count("-->"), f"{name} has a comment that is not closed"
    text.encode("cp1252")


def main(installation):
    for folder, style in SETS.items():
        target = pathlib.Path(installation) / "template" / folder
        target.mkdir(parents=True, exist_ok=True)
        for name in PAGES:
            text = page(name, style)
            check(f"{folder}/{name}", text)
            (target / name).write_bytes(text.encode("cp1252"))
        for name in FORMS if folder else ():
            (target / name).write_bytes((target.parent / name).read_bytes())


if __name__ == "__main__":
    main(sys.argv[1])
