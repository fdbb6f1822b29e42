#!/usr/bin/env bash
# Compiles the help pages of docs/help/ to OUTPUT_FOLDER/mavCycEd.chm, the help file of the Windows control:
#   scripts/help.sh OUTPUT_FOLDER
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/setup.sh"

(($# == 1)) || die "name the folder that the help file goes to: scripts/help.sh OUTPUT_FOLDER"
output_folder="$1"

# The compiler: its name carries the version where the package has set up no plain one.
compiler() {
  { compgen -c chmcmd || true; } | sort | sed --quiet 1p
}

install_packages help
chmcmd="$(compiler)"
[[ -n "$chmcmd" ]] || die "there is no chmcmd, the help compiler; it is in the package fp-utils."

# The compiler writes beside the pages: it works on a copy.
work="$(mktemp --directory)"
trap 'rm -rf "$work"' EXIT
cp -R "$root/docs/help/." "$work"
said="$(cd "$work" && "$chmcmd" mavCycEd.hhp 2>&1)" || true
# It ends well whatever it found.
if grep --extended-regexp '^(Error|Warning)' <<<"$said" >&2 || [[ ! -s "$work/mavCycEd.chm" ]]; then
  printf '%s\n' "$said" >&2
  die "the help was not compiled; $chmcmd says why above."
fi
mkdir -p "$output_folder"
cp "$work/mavCycEd.chm" "$output_folder/mavCycEd.chm"
say "Help: $output_folder/mavCycEd.chm"
