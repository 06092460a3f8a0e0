#!/usr/bin/env bash
# Draws all shipped pictures and icons, and puts the page templates together again; the results are committed.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
. cmake/setup.sh

need_packages fonts-ebgaramond fonts-inter fonts-lato imagemagick librsvg2-bin python3
step "Putting templates together" python3 artwork/make_templates.py installation
step "Drawing schemes" python3 artwork/make_schemes.py installation
step "Drawing icons" python3 artwork/make_icons.py src/win32/resources
for project in Demo Bookshop; do
  for table in "artwork/pictures/${project,,}"*.txt; do
    step "Drawing $(basename "$table")" python3 artwork/make_pictures.py "$table" "installation/Projects/$project/images"
  done
done
# The projects have their own copies of their style's templates, as the program makes them.
for pair in Demo:meadow Bookshop:market; do
  cp installation/template/"${pair#*:}"/*.htm "installation/Projects/${pair%:*}/Template/"
done
