#!/usr/bin/env bash
# Sets up, builds and starts the host program. See --help.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/scripts/setup.sh"

usage() {
  cat <<'END'
Usage: ./run.sh [--build-only] [-- ARGUMENTS]

Installs the missing packages of packages.txt, builds the programs in build/ and starts the host program with the
editor on the sample instrument. Without a display it runs the same program off screen, saves a picture and the cycle
that the editor hands back, and ends.

  --build-only   stop after the build
  -- ARGUMENTS   start the host program with these arguments instead of the sample instrument
  --help         this text
END
}

build_only=false
own_arguments=false
while (($# > 0)); do
  case "$1" in
    --build-only) build_only=true ;;
    --help | -h) usage; exit ;;
    --) own_arguments=true; shift; break ;;
    *) usage >&2; die "unknown argument: $1" ;;
  esac
  shift
done

on_display=false
if [[ -z "${CI:-}" && -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]]; then on_display=true; fi

sections=(build run)
if $on_display && [[ -z "${DISPLAY:-}" ]]; then sections+=(wayland); fi
install_packages "${sections[@]}"
build release apps/all
if $build_only; then
  say "Built: $root/build/bin"
  exit
fi

host="$root/build/bin/cyced-host"
if $own_arguments; then
  arguments=("$@")
else
  arguments=(--catalogue "$root/samples/catalogue.xml" --config "$root/samples/configuration.xml"
    --cycle "$root/samples/cycle-standard.xml")
fi

if $on_display; then exec "$host" "${arguments[@]}"; fi

export QT_QPA_PLATFORM=offscreen
if $own_arguments; then
  say "There is no display: the host program runs off screen."
  exec "$host" "${arguments[@]}"
fi
screenshot="$root/build/screenshot.png"
cycle="$root/build/retrieved-cycle.xml"
rm -f "$screenshot" "$cycle"
"$host" "${arguments[@]}" --screenshot "$screenshot" --out "$cycle" --quit ||
  die "the host program ended with exit code $?."
for file in "$screenshot" "$cycle"; do
  [[ -s "$file" ]] || die "the host program left no $file."
done
say "There is no display: the host program ran off screen."
say "  Picture of the editor: $screenshot"
say "  Cycle it handed back:  $cycle"
