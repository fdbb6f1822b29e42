#!/usr/bin/env bash
# Builds the Windows edition and tests it under Wine. See --help.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/scripts/setup.sh"
source "$root/scripts/windows-libraries.sh"
source "$root/scripts/wine.sh"

usage() {
  cat <<'END'
Usage: ./windows.sh [--build-only] [-- CTEST ARGUMENTS]

Installs the missing packages of packages.txt, builds the Windows programs and the help file in build/windows/bin/
with mingw-w64, and runs their tests with Wine, which gets a folder of its own below build/ and needs no display.

  --build-only         stop after the build
  -- CTEST ARGUMENTS   more arguments for ctest, as in ./windows.sh -- -R scenarios
  --help               this text
END
}

build_only=false
while (($# > 0)); do
  case "$1" in
    --build-only) build_only=true ;;
    --help | -h) usage; exit ;;
    --) shift; break ;;
    *) usage >&2; die "unknown argument: $1" ;;
  esac
  shift
done

sections=(build windows help)
$build_only || sections+=(wine)
install_packages "${sections[@]}"
build_windows_libraries
build windows
"$root/scripts/help.sh" "$root/build/windows/bin"
if $build_only; then
  say "Built: $root/build/windows/bin"
  exit
fi

start_wine
trap stop_wine EXIT
cd "$root"
ctest --preset windows "$@"
