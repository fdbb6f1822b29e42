# shellcheck shell=bash
# The set-up that run.sh, test.sh and scripts/lint.sh share: missing packages, configuration, build. Sourced, not run.
# Build folders follow CMakePresets.json: build/ for the preset release, build/windows/ for windows, build-NAME/ for each
# other preset.

root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"

say() { printf '%s\n' "$*"; }

die() {
  printf 'Error: %s\n' "$*" >&2
  exit 1
}

# The packages of one section of packages.txt, one a line.
packages_of() {
  awk -v wanted="[$1]" '
    { sub(/#.*/, "") }
    /^\[/ { inside = ($1 == wanted); next }
    inside && NF { print $1 }
  ' "$root/packages.txt"
}

is_installed() {
  [[ "$(dpkg-query --show --showformat='${db:Status-Status}' "$1" 2>/dev/null)" == installed* ]]
}

# Runs apt-get without questions; says only why it failed. Uses as_root of its caller.
apt_get() {
  local output
  output="$("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get -qq -o Dpkg::Use-Pty=0 -o DPkg::Lock::Timeout=120 "$@" </dev/null 2>&1)" || {
    head --lines=6 <<<"$output" >&2
    return 1
  }
}

# install_packages SECTION...: installs what is missing from these sections of packages.txt; silent when nothing is.
install_packages() {
  local section package missing=() as_root=()
  if ! command -v dpkg-query >/dev/null; then
    say "This is not a Debian system. Set-up goes on with what is installed; packages.txt lists what is needed."
    return
  fi
  for section in "$@"; do
    for package in $(packages_of "$section"); do
      is_installed "$package" || missing+=("$package")
    done
  done
  ((${#missing[@]} > 0)) || return 0

  if ((EUID != 0)); then
    command -v sudo >/dev/null ||
      die "packages are missing, and installing them needs root: there is no sudo here. As root, run:
  apt-get install --no-install-recommends ${missing[*]}"
    as_root=(sudo)
  fi
  say "Installing missing packages: ${missing[*]}"
  "${as_root[@]}" true || die "installing packages needs root, and sudo did not grant it."
  apt_get update || die "the package lists could not be updated; apt-get says why above."
  apt_get install --yes --no-install-recommends "${missing[@]}" ||
    die "not all packages could be installed; apt-get says why above.
Is the network there, and is this Debian 12 (bookworm) with its section main?"
}

# The build folder of a preset.
folder_of() {
  case "$1" in
    release) printf '%s' "$root/build" ;;
    windows) printf '%s' "$root/build/windows" ;;
    *) printf '%s' "$root/build-$1" ;;
  esac
}

# configure PRESET: only when it was never done, the presets changed since, or the tree was moved. Otherwise the build
# itself notices changed CMake files.
configure() {
  local preset="$1" folder fresh=() output
  folder="$(folder_of "$preset")"
  if [[ -f "$folder/CMakeCache.txt" ]] &&
    ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$folder/CMakeCache.txt"; then
    fresh=(--fresh)
  elif [[ -f "$folder/build.ninja" && "$folder/build.ninja" -nt "$root/CMakePresets.json" ]]; then
    return
  fi
  say "Configuring $folder"
  output="$(cd "$root" && cmake --preset "$preset" "${fresh[@]}" 2>&1)" || {
    rm -f "$folder/build.ninja" # so that the next run configures again
    printf '%s\n' "$output" >&2
    die "the configuration failed; CMake says why above."
  }
}

# build PRESET [TARGET]: everything, or one target. Progress is shown on a terminal only.
build() {
  local preset="$1" target=() quiet=()
  (($# < 2)) || target=(--target "$2")
  [[ -t 1 ]] || quiet=(-- --quiet)
  configure "$preset"
  say "Building $(folder_of "$preset")"
  (cd "$root" && cmake --build --preset "$preset" "${target[@]}" "${quiet[@]}") ||
    die "the build failed; the first error above is the one to look at."
}
