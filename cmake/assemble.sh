#!/usr/bin/env bash
# assemble.sh SOURCE TARGET [PROGRAM...]: makes TARGET the installation: what SOURCE ships, and the programs.
# It may be run again over an installation in use. What was changed there stays as it is, with a line that
# says so; a project is taken as a whole. What was never changed follows SOURCE. "TARGET.shipped", beside the
# folder, remembers what was put there.
set -euo pipefail
export LC_ALL=C
source=$(readlink -e "$1")
mkdir -p "$2"
target=$(readlink -e "$2")
shift 2
manifest=$target.shipped
declare -A now=() there=() before=() keep=() told=()

# Checksum and name of each file below a folder, but for what the program itself makes of a project.
sums() {
  (cd "$1" && find . -type f ! -path './Projects/*/Web/*' ! -path './Projects/*/Backup/*' -printf '%P\0' |
    xargs -0 -r sha256sum --) | sed 's/  /\t/'
}
# What is kept or renewed together: a project's folder, or the file alone. The result is in `unit`.
unit_of() {
  unit=$1
  [[ $1 != Projects/*/* ]] || { unit=${1#Projects/}; unit=Projects/${unit%%/*}; }
}
while IFS=$'\t' read -r sum file; do now[$file]=$sum; done < <(sums "$source")
while IFS=$'\t' read -r sum file; do there[$file]=$sum; done < <(sums "$target")
[[ ! -f $manifest ]] || while IFS=$'\t' read -r sum file; do before[$file]=$sum; done <"$manifest"

# A file is changed when it is neither as it was put there nor as it is shipped now.
for file in "${!there[@]}"; do
  [[ ${there[$file]} == "${before[$file]:-}" || ${there[$file]} == "${now[$file]:-}" ]] && continue
  unit_of "$file"
  # A file of the owner's own means something where it is part of a shipped project; elsewhere it is in nobody's way.
  [[ -z ${now[$file]:-} && $unit != Projects/* ]] || keep[$unit]=1
done
# So is a project from which a file was taken. Another file that is gone is simply put back.
for file in "${!before[@]}"; do
  unit_of "$file"
  [[ -n ${there[$file]:-} || $unit != Projects/* || ! -d $target/$unit ]] || keep[$unit]=1
done

for file in "${!before[@]}"; do
  unit_of "$file"
  [[ -n ${now[$file]:-} || -n ${keep[$unit]:-} ]] || rm -f "$target/$file"
done
for file in "${!now[@]}"; do
  unit_of "$file"
  if [[ -n ${keep[$unit]:-} ]]; then
    told[$unit]=1
    # Remembered as before, so that it stays the owner's.
    [[ -z ${before[$file]:-} ]] || printf '%s\t%s\n' "${before[$file]}" "$file"
    continue
  fi
  if [[ ${now[$file]} != "${there[$file]:-}" ]]; then
    mkdir -p "${target}/$(dirname "$file")"
    cp "$source/$file" "$target/$file"
  fi
  printf '%s\t%s\n' "${now[$file]}" "$file"
done >"$manifest.new"
sort -k 2 "$manifest.new" >"$manifest"
rm "$manifest.new"

for program in "$@"; do
  # A copy over a program that is running would fail; a new file in its place does not.
  cp "$program" "$target/.new-program"
  mv -f "$target/.new-program" "$target/$(basename "$program")"
done
for unit in "${!told[@]}"; do echo "kept as it was changed: $unit"; done | sort
