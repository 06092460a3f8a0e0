#!/usr/bin/env python3
"""Writes scheme.dat and the pictures of every scheme: make_schemes.py INSTALLATION.

The table below is the source of the catalogue of layouts. The pictures are drawn from scheme/*.svg in the
colours of each scheme, at twice the size at which pages show them. Needs rsvg-convert, convert and the
fonts Inter, Lato and EB Garamond.
"""
import pathlib
import subprocess
import sys
import tempfile

HERE = pathlib.Path(__file__).resolve().parent

# What the schemes of a style have in common: radius of buttons, font of buttons and of cart headings, and
# the text of the heading (slot 10).
STYLES = {
    "Meadow": dict(folder="meadow", round=22, font="Inter", weight=600, head_font="Inter", head_weight=700,
                   heading='<img src="h1.gif" alt="" width="44" height="44">'),
    "Gallery": dict(folder="gallery", round=0, font="Lato", weight=500, head_font="EB Garamond", head_weight=500,
                    heading='<img src="h1.gif" alt="" width="120" height="36">'),
    "Market": dict(folder="market", round=8, font="Lato", weight=900, head_font="Lato", head_weight=900,
                   heading='<img src="h1.gif" alt="" width="1440" height="30">'),
}
# page, text, link, visited link, active link, menu, second colour of the awning
SCHEMES = {
    "Meadow": {
        "Sage": ("#FFFFFF", "#22302A", "#2F6B4F", "#565A7D", "#A8472A", "#EEF4EE", "#FFFFFF"),
        "Sky": ("#FFFFFF", "#1F2D3A", "#1F5F94", "#5D5590", "#A8472A", "#EBF3F9", "#FFFFFF"),
        "Rose": ("#FFFDFC", "#35252A", "#A03A56", "#6D5070", "#7A4A12", "#FBEEF0", "#FFFFFF"),
    },
    "Gallery": {
        "Paper": ("#FBFAF7", "#1F1D1A", "#8A4B2A", "#6A5570", "#B3261E", "#F3F0E9", "#FFFFFF"),
        "Stone": ("#F4F5F5", "#1E2326", "#2E5A66", "#5E5877", "#9C3D1E", "#E8EBEC", "#FFFFFF"),
        "Night": ("#17191E", "#ECE9E2", "#E8B96A", "#CDB2DC", "#FFD9A0", "#20242B", "#FFFFFF"),
    },
    "Market": {
        "Marigold": ("#FFFBF2", "#2B2118", "#A83E0E", "#6E4A6A", "#7A1F1F", "#FFF0D2", "#FFD27A"),
        "Ocean": ("#F7FCFC", "#12303A", "#0B6474", "#55548A", "#A8472A", "#DFF1F3", "#A9DDE2"),
        "Berry": ("#FEF9FB", "#2F1A26", "#961E59", "#5E5590", "#A8472A", "#F9E6EF", "#F3B8D3"),
    },
}
GIFS = {
    "h1.gif": None, "h2.gif": "heading_cart", "h3.gif": "heading_checkout", "f.gif": "bullet_f", "g.gif": "bullet_g",
    "o.gif": "bullet_o", "a.gif": "bullet_a", "add.gif": "button_add", "remove.gif": "button_remove", "back.gif": "button_back",
}


def draw(svg, target, values, matte):
    text = (HERE / "scheme" / f"{svg}.svg").read_text()
    for key, value in values.items():
        text = text.replace(f"@{key}@", str(value))
    with tempfile.TemporaryDirectory() as folder:
        source, png = pathlib.Path(folder) / "a.svg", pathlib.Path(folder) / "a.png"
        source.write_text(text)
        subprocess.run(["rsvg-convert", "-o", str(png), str(source)], check=True)
        # A GIF knows only whole transparency: half transparent edges are laid over the colour behind them.
        subprocess.run(
            ["convert", str(png), "(", "+clone", "-alpha", "extract", "-threshold", "35%", ")",
             "(", "-clone", "0", "-background", matte, "-alpha", "remove", ")", "-delete", "0", "+swap",
             "-alpha", "off", "-compose", "CopyOpacity", "-composite", "-dither", "None", "-colors", "63", "-strip", str(target)],
            check=True)


def pictures(target, style, colours):
    page, text, link, _, _, menu, stripe = colours
    # Items of a shelf stand on the menu colour in one style, so its buttons are cut out there.
    values = dict(PAGE=page, TEXT=text, LINK=link, MENU=menu, STRIPE=stripe, CART=menu, CARTTEXT=text, ROUND=style["round"],
                  SMALLROUND=min(style["round"], 15), FONT=style["font"], WEIGHT=style["weight"], HEADFONT=style["head_font"],
                  HEADWEIGHT=style["head_weight"])
    target.mkdir(parents=True, exist_ok=True)
    for name, svg in GIFS.items():
        draw(svg or f"heading_{style['folder']}", target / name, values, menu if name in ("f.gif", "g.gif", "o.gif", "a.gif") else page)


def slots(style, colours):
    page, text, link, visited, active, menu, _ = colours
    bullet = '<img src="%s.gif" alt="" width="16" height="16">'
    frame = link
    return [
        menu, link, visited, active,                      # 0 to 3: cart
        page, text, link, visited, active, menu,          # 4 to 9: pages
        style["heading"],                                 # 10
        '<img src="h2.gif" alt="Your cart" width="180" height="28">',
        '<img src="h3.gif" alt="Checkout" width="180" height="22">',
        page, text, link, visited, active,                # 13 to 17: order form
        menu, frame, menu, link, page,                    # 18 to 22: list, frame, form, heading and its text
        text,                                             # 23: cart text
        bullet % "f", bullet % "g", bullet % "o", bullet % "a",
        "add.gif", "back.gif", "remove.gif",
    ]


def catalogue():
    lines = ["product=Varlo PRO", "version=1.07", "template=1.07"]
    for name, style in STYLES.items():
        lines += ["", f"SCHEMA={name}", f"DEF={style['folder']}", "#CAT"]
        for scheme, colours in SCHEMES[name].items():
            folder = f"img\\{style['folder']}\\{scheme.lower()}"
            lines += ["", f"SCHEMA={scheme}", f"PREVIEW=img\\preview\\{style['folder']}_{scheme.lower()}.bmp", f"DEF={style['folder']}"]
            lines += [f"{number}={value}" for number, value in enumerate(slots(style, colours))]
            lines += [f"SCF={folder}\\{gif}" for gif in GIFS] + ["SCF=template\\cart.js"]
        lines.append("#BREAK")
    return "\n".join(lines) + "\n"


def main(installation):
    root = pathlib.Path(installation)
    (root / "scheme.dat").write_bytes(catalogue().encode("cp1252"))
    for name, style in STYLES.items():
        for scheme, colours in SCHEMES[name].items():
            pictures(root / "img" / style["folder"] / scheme.lower(), style, colours)
    # Layouts that an owner makes start with these; their own colours are not known, so neutral ones serve.
    neutral = dict(STYLES["Meadow"], round=6, folder="plain")
    pictures(root / "img", neutral, ("#FFFFFF", "#222222", "#901000", "#800080", "#C04000", "#FFFFFF", "#FFFFFF"))


if __name__ == "__main__":
    main(sys.argv[1])
