#!/usr/bin/env bash
# Takes the preview picture of every scheme: the demo store is built in that scheme and photographed in
# Chromium. Run it after changing a scheme, a template or the demo's front page, and commit the results.
# Needs varlo-cli: build/native/src/varlo-cli, or the one that VARLO_CLI names.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
. cmake/setup.sh

need_packages chromium imagemagick librsvg2-bin nodejs
cli=$(readlink -f "${VARLO_CLI:-build/native/src/varlo-cli}")
work=build/previews
mkdir -p "$work" installation/img/preview
[[ -d $work/node_modules/playwright-core ]] || step "Fetching playwright-core" npm install --prefix "$work" --no-save playwright-core

# style_schemes: "Style/Scheme directory preview" of every scheme of the catalogue.
style_schemes() {
  awk -F= '/^#CAT/ { inside = 1 } /^#BREAK/ { inside = 0 }
    /^SCHEMA=/ { if (inside) scheme = $2; else style = $2 }
    inside && /^PREVIEW=/ { preview = $2 }
    inside && /^DEF=/ { print style "/" scheme, $2, preview }' installation/scheme.dat
}

while read -r layout directory preview; do
  copy=$work/installation
  rm -rf "$copy"
  cp -r installation "$copy"
  cp "$copy/template/$directory"/*.htm "$copy/Projects/Demo/Template/"
  sed -i "s|^LAYOUT=.*|LAYOUT=$layout|" "$copy/Projects/Demo/Demo.stp"
  step "Building the demo in $layout" "$cli" --install "$copy" build Projects/Demo/Demo.stp
  step "Taking its picture" node artwork/photograph.mjs "$work" "$copy/Projects/Demo/Web" "$work/shot.png"
  convert "$work/shot.png" -filter Lanczos -resize 240x180! -dither FloydSteinberg -colors 256 -compress None \
    "BMP3:installation/${preview//\\//}"
done < <(style_schemes)

# What the layout page shows where a scheme has no picture of its own.
rsvg-convert -o "$work/none.png" artwork/scheme/no_preview.svg
convert "$work/none.png" -colors 64 -compress None BMP3:installation/s0.bmp
