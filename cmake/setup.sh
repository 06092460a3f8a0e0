# Sourced by ./run and ./test, after they have gone to the top folder: Debian's packages, and steps
# that say one line while all is well.

logs=build/logs

fail() {
  printf '%s: %s\n' "${0##*/}" "$*" >&2
  exit 1
}

# step TEXT COMMAND...: one line and the seconds it took. The output goes to a log, whose end is shown
# when the command fails.
step() {
  local text=$1 start=$SECONDS log
  shift
  log=$logs/${text//[^A-Za-z0-9-]/_}.log
  mkdir -p "$logs"
  printf '%s ... ' "$text"
  if "$@" </dev/null >"$log" 2>&1; then
    printf '%d s\n' $((SECONDS - start))
    return
  fi
  printf 'FAILED\n'
  grep -vE '^\[[0-9]+/[0-9]+\] ' "$log" | tail -n 60 >&2 # without ninja's count of steps
  fail "\"$text\" failed; the end of $PWD/$log is above."
}

# configure PRESET [ARGUMENT...]: a build folder that was made for another place of the clone, and came here when the
# clone was moved or copied, is made anew. One that was made by other presets is configured from the beginning.
configure() {
  local folder=build/$1 cache=build/$1/CMakeCache.txt fresh=()
  if [[ -f $cache ]] && ! { made_for CMAKE_HOME_DIRECTORY . && made_for CMAKE_CACHEFILE_DIR "$folder"; }; then
    rm -rf "$folder"
  fi
  [[ ! CMakePresets.json -nt $cache ]] || fresh=(--fresh)
  cmake "${fresh[@]}" --preset "$@"
}

# made_for ENTRY FOLDER: whether the folder that an entry of $cache names is this one.
made_for() {
  [[ $(sed -n "s/^$1:INTERNAL=//p" "$cache") -ef $2 ]]
}

# Those of the given packages that are not installed, one a line.
missing_packages() {
  local package
  for package in "$@"; do
    dpkg-query -W -f '${db:Status-Status}\n' "$package" 2>/dev/null | grep -qx installed || echo "$package"
  done
}

# as_root COMMAND...
as_root() {
  if ((EUID == 0)); then
    "$@"
  else
    sudo "$@"
  fi
}

apt_install() {
  # A list that cannot be renewed may still be good enough.
  as_root apt-get -q update || true
  as_root env DEBIAN_FRONTEND=noninteractive apt-get -q -y -o DPkg::Lock::Timeout=300 -o Acquire::Retries=3 \
    install --no-install-recommends "$@"
}

# need_packages PACKAGE...: installs what is missing; where nothing is, apt is not asked.
need_packages() {
  local missing
  command -v dpkg-query >/dev/null ||
    fail "this is not a Debian system. Install the counterparts of these packages and build by hand: $*"
  mapfile -t missing < <(missing_packages "$@")
  ((${#missing[@]} > 0)) || return 0
  if ((EUID != 0)); then
    command -v sudo >/dev/null ||
      fail "packages are missing, and there is neither root nor sudo to install them: ${missing[*]}"
    # A password is asked for here, where the question can be seen.
    sudo -n true 2>/dev/null || { [[ -t 2 ]] && sudo -v; } ||
      fail "packages are missing, and sudo refuses to install them: ${missing[*]}"
  fi
  echo "Missing packages: ${missing[*]}"
  step "Installing packages" apt_install "${missing[@]}"
  mapfile -t missing < <(missing_packages "${missing[@]}")
  ((${#missing[@]} == 0)) || fail "apt-get has not installed: ${missing[*]}"
}
